// A file store that fails when it is told to, over another that does the work.
#pragma once

#include <limits>
#include <optional>
#include <string>

#include "base/file_store.h"

namespace varnel::test {

class FailingFiles : public FileStore {
 public:
  explicit FailingFiles(FileStore& files) : files_(files) {}

  // Fails the operation that follows after `operations` more, with `fault`, once or for ever.
  // Readings count too, questions about names do not.
  void FailAfter(int operations, FileResult fault, bool for_ever) {
    left_ = operations;
    fault_ = fault;
    for_ever_ = for_ever;
  }
  void Heal() { left_ = std::numeric_limits<int>::max(); }
  // Whether a fault was met since FailAfter.
  bool failed() const { return left_ < 0; }

  FileRead Read(const std::wstring& path, std::size_t limit) const override {
    return Fails() ? FileRead{fault_, {}, {}} : files_.Read(path, limit);
  }
  FileWritten Replace(const std::wstring& path, std::string_view bytes,
                      const std::optional<FileStamp>& expected = {}) override {
    return Fails() ? FileWritten{fault_, {}} : files_.Replace(path, bytes, expected);
  }
  FileWritten Append(const std::wstring& path, const FileStamp& expected,
                     std::string_view bytes) override {
    if (!Fails()) return files_.Append(path, expected, bytes);
    // As when the program is ended in the middle of it.
    if (for_ever_) files_.Append(path, expected, bytes.substr(0, bytes.size() / 2));
    return {fault_, {}};
  }
  FileStamp Stamp(const std::wstring& path) const override { return files_.Stamp(path); }
  bool IsReadOnly(const std::wstring& path) const override { return files_.IsReadOnly(path); }
  bool FolderExists(const std::wstring& path) const override { return files_.FolderExists(path); }
  bool CreateFolder(const std::wstring& path, FolderLook look = FolderLook::kPlain) override {
    return files_.FolderExists(path) || (!Fails() && files_.CreateFolder(path, look));
  }
  FileResult MoveFolder(const std::wstring& old_path, const std::wstring& new_path) override {
    return Fails() ? fault_ : files_.MoveFolder(old_path, new_path);
  }
  FileResult Rename(const std::wstring& old_path, const std::wstring& new_path) override {
    return Fails() ? fault_ : files_.Rename(old_path, new_path);
  }
  FileResult Keep(const std::wstring& path, const std::wstring& copy_path) override {
    return Fails() ? fault_ : files_.Keep(path, copy_path);
  }
  FileResult Remove(const std::wstring& path, Removal removal = Removal::kUnlessReadOnly) override {
    return Fails() ? fault_ : files_.Remove(path, removal);
  }
  FolderListing Files(const std::wstring& folder) const override { return files_.Files(folder); }

 private:
  bool Fails() const {
    if (left_ < 0) return for_ever_;
    return --left_ < 0;
  }

  FileStore& files_;
  mutable int left_ = std::numeric_limits<int>::max();
  FileResult fault_ = FileResult::kFailed;
  bool for_ever_ = false;
};

}  // namespace varnel::test
