#include "base/logged_files.h"

namespace varnel {
namespace {

constexpr std::size_t kMostKnown = 256;

bool IsFault(FileResult result) {
  return result != FileResult::kDone && result != FileResult::kMissing &&
         result != FileResult::kExists && result != FileResult::kChanged;
}

}  // namespace

FileResult LoggedFiles::Noted(std::wstring_view what, const std::wstring& path,
                              FileResult result) const {
  const std::wstring key = std::wstring(what) + L" " + path;
  if (!IsFault(result)) {
    known_.erase(key);
    return result;
  }
  const auto found = known_.find(key);
  if (found != known_.end() && found->second == result) return result;
  if (known_.size() >= kMostKnown) known_.clear();
  known_[key] = result;
  write_line_(key + L": it " + std::wstring(FileTrouble(result)));
  return result;
}

FileRead LoggedFiles::Read(const std::wstring& path, std::size_t limit) const {
  FileRead read = files_.Read(path, limit);
  const bool absent = read.result == FileResult::kNoFolder;
  Noted(L"cannot read", path, absent ? FileResult::kMissing : read.result);
  return read;
}

FileWritten LoggedFiles::Replace(const std::wstring& path, std::string_view bytes,
                                 const std::optional<FileStamp>& expected) {
  const FileWritten written = files_.Replace(path, bytes, expected);
  Noted(L"cannot write", path, written.result);
  return written;
}

FileWritten LoggedFiles::Append(const std::wstring& path, const FileStamp& expected,
                                std::string_view bytes) {
  const FileWritten written = files_.Append(path, expected, bytes);
  Noted(L"cannot write", path, written.result);
  return written;
}

bool LoggedFiles::CreateFolder(const std::wstring& path, FolderLook look) {
  const bool there = files_.CreateFolder(path, look);
  Noted(L"cannot create", path, there ? FileResult::kDone : FileResult::kFailed);
  return there;
}

FileResult LoggedFiles::MoveFolder(const std::wstring& old_path, const std::wstring& new_path) {
  return Noted(L"cannot move", old_path, files_.MoveFolder(old_path, new_path));
}

FileResult LoggedFiles::Rename(const std::wstring& old_path, const std::wstring& new_path) {
  return Noted(L"cannot rename", old_path, files_.Rename(old_path, new_path));
}

FileResult LoggedFiles::Keep(const std::wstring& path, const std::wstring& copy_path) {
  return Noted(L"cannot keep a copy of", path, files_.Keep(path, copy_path));
}

FileResult LoggedFiles::Remove(const std::wstring& path, Removal removal) {
  return Noted(L"cannot remove", path, files_.Remove(path, removal));
}

}  // namespace varnel
