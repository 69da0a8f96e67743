// A file store whose faults are written down, since those who meet them go on without a word.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "base/file_store.h"

namespace varnel {

// Passes everything on to another store. A fault that lasts is written once for each file, and
// again when it has gone and come back. What callers ask for in order to find out (a file that is
// missing, a name that is taken, a content that others changed) is no fault.
class LoggedFiles : public FileStore {
 public:
  using WriteLine = std::function<void(std::wstring_view line)>;
  // `files` must outlive this.
  LoggedFiles(FileStore& files, WriteLine write_line)
      : files_(files), write_line_(std::move(write_line)) {}

  FileRead Read(const std::wstring& path, std::size_t limit) const override;
  FileWritten Replace(const std::wstring& path, std::string_view bytes,
                      const std::optional<FileStamp>& expected = {}) override;
  FileWritten Append(const std::wstring& path, const FileStamp& expected,
                     std::string_view bytes) override;
  FileStamp Stamp(const std::wstring& path) const override { return files_.Stamp(path); }
  bool IsReadOnly(const std::wstring& path) const override { return files_.IsReadOnly(path); }
  bool FolderExists(const std::wstring& path) const override { return files_.FolderExists(path); }
  bool CreateFolder(const std::wstring& path, FolderLook look = FolderLook::kPlain) override;
  FileResult MoveFolder(const std::wstring& old_path, const std::wstring& new_path) override;
  FileResult Rename(const std::wstring& old_path, const std::wstring& new_path) override;
  FileResult Keep(const std::wstring& path, const std::wstring& copy_path) override;
  FileResult Remove(const std::wstring& path, Removal removal = Removal::kUnlessReadOnly) override;
  FolderListing Files(const std::wstring& folder) const override { return files_.Files(folder); }

 private:
  FileResult Noted(std::wstring_view what, const std::wstring& path, FileResult result) const;

  FileStore& files_;
  WriteLine write_line_;
  mutable std::map<std::wstring, FileResult> known_;  // faults, by operation and path
};

}  // namespace varnel
