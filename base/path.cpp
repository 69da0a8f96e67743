#include "base/path.h"

namespace varnel {
namespace {

bool IsLetter(wchar_t unit) {
  return (unit >= L'A' && unit <= L'Z') || (unit >= L'a' && unit <= L'z');
}

}  // namespace

std::wstring AddTrailingSeparator(std::wstring path) {
  if (!path.ends_with(L'\\') && path.size() > 3) path.push_back(L'\\');
  return path;
}

bool IsAbsolutePath(std::wstring_view path) {
  return path.starts_with(L"\\\\") || (path.size() >= 2 && IsLetter(path[0]) && path[1] == L':');
}

bool EnsureFolder(FileStore& files, const std::wstring& new_path, const std::wstring& old_path) {
  if (new_path != old_path && files.FolderExists(old_path)) {
    return files.MoveFolder(old_path, new_path);
  }
  return files.FolderExists(new_path) || files.CreateFolder(new_path);
}

}  // namespace varnel
