// Files as engines see them. Paths are absolute, with "\" between the parts.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnel {

class FileStore {
 public:
  virtual ~FileStore() = default;

  // The whole content, or nothing when the file is missing, unreadable or larger than `limit`
  // bytes.
  virtual std::optional<std::string> Read(const std::wstring& path, std::size_t limit) const = 0;

  // Puts `bytes` in place of the file's content, whole or not at all: whatever fails, and whenever
  // the program ends, the file holds the old or the new content. False when the old one stayed.
  virtual bool Replace(const std::wstring& path, std::string_view bytes) = 0;

  // Adds `bytes` at the end of the file, which must have `size` bytes. Where that fails, and where
  // the program ends meanwhile, a first part of them may stand there. False when not all do, and
  // when the file is missing or of another size.
  virtual bool Append(const std::wstring& path, std::size_t size, std::string_view bytes) = 0;

  virtual bool FileExists(const std::wstring& path) const = 0;
  virtual bool FolderExists(const std::wstring& path) const = 0;
  // Creates the folder and every missing one above it. True when it exists afterwards.
  virtual bool CreateFolder(const std::wstring& path) = 0;
  virtual bool MoveFolder(const std::wstring& old_path, const std::wstring& new_path) = 0;
  // Gives the file another name or place; a file that already stands there is never replaced. True
  // when it was moved.
  virtual bool Rename(const std::wstring& old_path, const std::wstring& new_path) = 0;
  // False when the file is still there.
  virtual bool Remove(const std::wstring& path) = 0;
  // Names (without folder) of the files in `folder` whose name ends in `ending` (any case), sorted
  // without regard to case; empty when there is no such folder.
  virtual std::vector<std::wstring> FileNames(const std::wstring& folder,
                                              std::wstring_view ending) const = 0;
};

}  // namespace varnel
