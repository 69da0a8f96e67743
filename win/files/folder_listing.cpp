#include "win/files/folder_listing.h"

#include <windows.h>

#include <algorithm>

#include "base/name_order.h"

namespace varnel {

std::vector<std::wstring> FoldersIn(const std::wstring& folder) {
  std::vector<std::wstring> names;
  WIN32_FIND_DATAW found = {};
  const std::wstring pattern = folder + (folder.ends_with(L'\\') ? L"*" : L"\\*");
  HANDLE search = ::FindFirstFileW(pattern.c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    const std::wstring name = found.cFileName;
    const bool is_folder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    const bool hidden = (found.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    if (is_folder && !hidden && name != L"." && name != L"..") names.push_back(name);
  } while (::FindNextFileW(search, &found));
  ::FindClose(search);
  std::ranges::sort(names, [](const std::wstring& left, const std::wstring& right) {
    return CompareNaturally(left, right) < 0;
  });
  return names;
}

std::vector<std::wstring> Drives() {
  wchar_t roots[256] = {};
  ::GetLogicalDriveStringsW(255, roots);
  std::vector<std::wstring> drives;
  for (const wchar_t* root = roots; *root; root += drives.back().size() + 1) {
    drives.emplace_back(root);
  }
  return drives;
}

}  // namespace varnel
