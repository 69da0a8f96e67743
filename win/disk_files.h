// The file store on the disk.
#pragma once

#include "base/file_store.h"

namespace varnel {

class DiskFiles : public FileStore {
 public:
  std::optional<std::string> Read(const std::wstring& path, std::size_t limit) const override;
  // Writes a new file in the same folder, counts what was written, flushes it and moves it over the
  // old one in one step. A target that another program holds open is tried again for half a second.
  bool Replace(const std::wstring& path, std::string_view bytes) override;
  // One write, counted and flushed; one that falls short is taken back.
  bool Append(const std::wstring& path, std::size_t size, std::string_view bytes) override;
  bool FileExists(const std::wstring& path) const override;
  bool FolderExists(const std::wstring& path) const override;
  bool CreateFolder(const std::wstring& path) override;
  bool MoveFolder(const std::wstring& old_path, const std::wstring& new_path) override;
  bool Rename(const std::wstring& old_path, const std::wstring& new_path) override;
  bool Remove(const std::wstring& path) override;
  std::vector<std::wstring> FileNames(const std::wstring& folder,
                                      std::wstring_view ending) const override;
};

}  // namespace varnel
