// A list of short texts that is kept as the file it is saved in: one double-quoted record per line,
// each followed by CR LF. So appending costs no more in a long list than in a short one, and saving
// is one write. Texts are UTF-8 in the file; bytes that are not are kept as they stand.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/file_store.h"

namespace varnel {

class RecordList {
 public:
  std::size_t count() const { return starts_.size(); }
  // The text at `index`, which must be below count().
  std::wstring Text(std::size_t index) const;
  // The same in the bytes of the file, without its quotes.
  std::string_view Record(std::size_t index) const;
  // Appends a text of at most 1,000 bytes without control characters.
  void Add(std::wstring_view text);
  void AddRecord(std::string_view text);
  // Removes the text at `index`, which must be below count().
  void Remove(std::size_t index);
  void Clear();
  // Takes the records of a file, given whole, in place of the present texts: every line that is not
  // empty, without the quote before it and the one after it, where they are there. Left out are
  // lines of more than 1,000 bytes, lines with control characters other than tabs, what follows the
  // first 5,000,000 records, and a record at the end that was cut before its second quote. True
  // when nothing had to be left out.
  bool Parse(std::string_view file);
  // The whole file.
  std::string_view bytes() const { return bytes_; }
  // The file's end, from the record at `index` on; empty where there is none.
  std::string_view BytesFrom(std::size_t index) const;

 private:
  std::size_t End(std::size_t index) const;
  bool TakeLine(std::string_view line);

  std::string bytes_;
  std::vector<std::size_t> starts_;  // where each record begins in bytes_
};

// Writes every item, first to last, in place of the file's content, if the file still has the stamp
// `expected`. A file that could not be written holds what it held before.
FileWritten ListSaveToFile(const RecordList& list, FileStore& files, const std::wstring& path,
                           const FileStamp& expected);

// What a file holds, compared with the list that was read from it.
enum class FileState {
  kSame,   // just what the list would be saved as
  kWhole,  // nothing but what is in the list
  kMore,   // more than is in the list
};

struct ListRead {
  FileResult result = FileResult::kFailed;  // of reading the file
  FileState state = FileState::kWhole;
  FileStamp stamp;
};

// Takes the file's records, as Parse does, in place of the present items. A missing file gives an
// empty list, and so does one of more than 64 MB, which holds more. A file that cannot be read
// leaves the list as it was.
ListRead ListLoadFromFile(RecordList& list, const FileStore& files, const std::wstring& path);

}  // namespace varnel
