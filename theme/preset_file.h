// The preset file in hand: keys are read, missing ones completed, and the file written in one
// piece.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/file_store.h"
#include "theme/ini_text.h"

namespace varnel {

// Every key stands in the file with "> " in front of its name, which these functions add.
class PresetFile {
 public:
  // A larger file is no preset: it reads as empty and is never written.
  static constexpr std::size_t kLargestFile = 64 * 1024;

  explicit PresetFile(FileStore& files) : files_(files) {}

  // Takes up the file at `path`; what was not saved of an earlier one is lost. A missing file reads
  // as empty and is created by Save; one that cannot be read or is no text stays as it is.
  void SelectPresetFile(std::wstring path);
  // The same, with whatever the file holds to be replaced by what is written now.
  void StartPresetFile(std::wstring path);

  // The key's value without outer blanks. A missing or empty key is given `fallback`, which is then
  // the result, also without outer blanks.
  std::wstring PresetKeyRead(std::wstring_view section, std::wstring_view key,
                             std::wstring_view fallback);
  void PresetKeyWrite(std::wstring_view section, std::wstring_view key, std::wstring_view value);

  // Brings the file up to date, with one write, and only if it differs. False when the file is not
  // as it should be: it stayed as it was.
  bool Save();

 private:
  FileStore& files_;
  std::wstring path_;
  IniText text_;
  std::string stored_;     // what Save would write of a text that did not change
  bool writable_ = false;  // false for a file that could not be read
};

}  // namespace varnel
