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
// other lines and nothing else, any other change by replacing the file. Where that fails the lines
// stay in the list and the next change writes them too. A file that could not be taken over whole
// is never overwritten: before the first change is written it is moved aside, to its own name
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
  // deleted: the line is then not logged.
  bool Append(std::wstring_view line);

  // Removes the lines at `indexes`, as far as there are such lines, and writes the file.
  void DeleteSelected(std::vector<std::size_t> indexes);

  // Removes all lines and writes the file.
  void Clear();

  // False while the file lacks a change, because it could not be written.
  bool saved() const { return saved_; }

 private:
  void Save();
  bool MoveFileAside();

  FileStore& files_;
  std::wstring path_;
  RecordList lines_;
  std::vector<std::size_t> keys_;  // the numbers of the keys, one for each line
  FileState file_ = FileState::kWhole;
  bool saved_ = true;
};

}  // namespace varnel
