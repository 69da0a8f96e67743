// The log of the calculator: the lines of all calculations, kept in a file.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/file_store.h"
#include "widgets/calculator/record_list.h"

namespace varnel {

// The line of a calculation: "12 / 5 = 2.4".
std::wstring CalculationLine(double first, wchar_t sign, double second, std::wstring_view result);

// What a click on a line puts into the display: what follows its first " = ". Nothing when the line
// has none.
std::optional<std::wstring> RecalledText(std::wstring_view line);

// Every change is written to the file at once: a new line at its end, as long as the file has the
// other lines and nothing else, any other change by replacing the file. What others have added to
// the file meanwhile is taken over, and what they removed goes; a file that they deleted or emptied
// is written anew.
//
// Where the file cannot be read or written, the lines stay in the list and come with the next
// change or with Retry. New lines are meanwhile kept in a second file, the log's name followed by
// ".unsaved", from which the next Load takes them. A file of which not everything could be taken
// over is never overwritten: before the first change is written it is moved aside, to its own name
// followed by ".old", or ".old2" to ".old99" where that is taken. Where that fails nothing is
// written.
class CalculationLog {
 public:
  // `files` must outlive the log; `path` is the file's.
  CalculationLog(FileStore& files, std::wstring path) : files_(files), path_(std::move(path)) {}

  // Takes the lines of the file in place of the present ones and gives them new keys. What of a
  // damaged file can be taken, ListLoadFromFile says.
  void Load();

  std::size_t count() const { return lines_.count(); }
  // The line at `index`, which must be below count().
  std::wstring Line(std::size_t index) const { return lines_.Text(index); }

  // Appends a line under the key that the number of lines gives ("0m" for the first) and writes the
  // file. False when a line still has that key, which happens once another than the last line was
  // deleted: the line is then not logged. Lines taken over from others get new keys, and so do the
  // lines beside them.
  bool Append(std::wstring_view line);

  // Removes the lines at `indexes`, as far as there are such lines, and writes the file.
  void DeleteSelected(std::vector<std::size_t> indexes);

  // Removes all lines and writes the file. Lines that others have added unseen stay.
  void Clear();

  // Reads a file that could not be read, and writes what could not be written. Without effect while
  // there is no trouble.
  void Retry();

  // Why the file was not read, or lacks a change; kDone while it was and does not.
  FileResult trouble() const { return trouble_; }
  bool saved() const { return trouble_ == FileResult::kDone; }

 private:
  std::size_t FirstUnsaved() const { return lines_.count() - unsaved_; }
  void RemoveLine(std::size_t index);
  void NumberKeys();
  bool TakeFile();
  void TakeRescuedLines();
  void Save();
  FileWritten Write();
  FileResult MoveFileAside();
  void KeepUnsavedLines();

  FileStore& files_;
  const std::wstring path_;
  const std::wstring unsaved_path_ = path_ + L".unsaved";
  RecordList lines_;
  std::vector<std::size_t> keys_;  // the numbers of the keys, one for each line

  // The file as it was last read or written.
  bool known_ = false;
  FileState state_ = FileState::kWhole;
  FileStamp stamp_;

  // What it lacks.
  bool changed_ = false;
  std::size_t unsaved_ = 0;  // lines, the last of the list
  RecordList removed_;       // lines that the file has and the list has not
  std::string rescued_;      // what stands in the second file
  FileResult trouble_ = FileResult::kDone;
};

}  // namespace varnel
