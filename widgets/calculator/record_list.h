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
  // Appends a text of at most 1,000 bytes without control characters.
  void Add(std::wstring_view text);
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

 private:
  std::size_t End(std::size_t index) const;
  void AddRecord(std::string_view text);
  bool TakeLine(std::string_view line);

  std::string bytes_;
  std::vector<std::size_t> starts_;  // where each record begins in bytes_
};

// Writes every item, first to last, in place of the file's content. False when the file could not
// be written and holds what it held before.
bool ListSaveToFile(const RecordList& list, FileStore& files, const std::wstring& path);

// What a file holds, compared with the list that was read from it.
enum class FileState {
  kSame,   // just what the list would be saved as
  kWhole,  // nothing but what is in the list
  kMore,   // more than is in the list
};

// Takes the file's records, as Parse does, in place of the present items. A file of more than 64
// MB, or one that cannot be read, is left out whole; a missing file gives an empty list.
FileState ListLoadFromFile(RecordList& list, const FileStore& files, const std::wstring& path);

}  // namespace varnel
