#include "base/path.h"

#include "base/text.h"

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

std::wstring DocumentFolderIn(std::wstring chosen, std::wstring_view name) {
  if (!chosen.ends_with(L'\\')) chosen.push_back(L'\\');
  chosen.append(name).push_back(L'\\');
  std::wstring path;
  bool named_before = false;
  for (std::size_t at = 0; at < chosen.size();) {
    const std::size_t end = chosen.find(L'\\', at);
    const std::wstring_view part = std::wstring_view(chosen).substr(at, end - at);
    const bool named = EqualsIgnoreCase(part, name);
    if (!named || !named_before) path.append(part).push_back(L'\\');
    named_before = named;
    at = end + 1;
  }
  return path;
}

bool EnsureFolder(FileStore& files, const std::wstring& new_path, const std::wstring& old_path) {
  if (new_path != old_path && files.FolderExists(old_path)) {
    return files.MoveFolder(old_path, new_path) == FileResult::kDone;
  }
  return files.FolderExists(new_path) || files.CreateFolder(new_path);
}

}  // namespace varnel
