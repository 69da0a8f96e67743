// The file store on the disk.
#pragma once

#include "base/file_store.h"

namespace varnel {

class DiskFiles : public FileStore {
 public:
  FileRead Read(const std::wstring& path, std::size_t limit) const override;
  // Writes a new file in the same folder, counts what was written, flushes it and moves it over the
  // old one in one step. A target that another program holds is tried again for a tenth of a
  // second, any other trouble ends it at once.
  FileWritten Replace(const std::wstring& path, std::string_view bytes,
                      const std::optional<FileStamp>& expected = {}) override;
  // One write, counted and flushed; one that falls short is taken back.
  FileWritten Append(const std::wstring& path, const FileStamp& expected,
                     std::string_view bytes) override;
  FileStamp Stamp(const std::wstring& path) const override;
  bool IsReadOnly(const std::wstring& path) const override;
  bool FolderExists(const std::wstring& path) const override;
  bool CreateFolder(const std::wstring& path, FolderLook look = FolderLook::kPlain) override;
  // On another drive the copy grows under its name followed by ".moving", and the old folder goes
  // when the copy has been compared with it.
  FileResult MoveFolder(const std::wstring& old_path, const std::wstring& new_path) override;
  FileResult Rename(const std::wstring& old_path, const std::wstring& new_path) override;
  // A second name of the same content where the drive can have that, else a copy.
  FileResult Keep(const std::wstring& path, const std::wstring& copy_path) override;
  FileResult Remove(const std::wstring& path, Removal removal = Removal::kUnlessReadOnly) override;
  FolderListing Files(const std::wstring& folder) const override;
};

}  // namespace varnel
