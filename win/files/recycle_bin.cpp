#include "win/files/recycle_bin.h"

#include <windows.h>

#include <shellapi.h>

namespace varnel {

bool RecycleFile(const std::wstring& path, ReadOnlyFile read_only) {
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return true;
  if (attributes & FILE_ATTRIBUTE_DIRECTORY) return false;
  if (attributes & FILE_ATTRIBUTE_READONLY) {
    if (read_only == ReadOnlyFile::kStays) return false;
    ::SetFileAttributesW(path.c_str(), attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY));
  }
  const std::wstring list = path + L'\0';  // of one path; ended by a second zero
  SHFILEOPSTRUCTW operation = {};
  operation.wFunc = FO_DELETE;
  operation.pFrom = list.c_str();
  operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_SILENT | FOF_NOERRORUI;
  ::SHFileOperationW(&operation);
  const auto gone = [&path] {
    return ::GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES;
  };
  if (gone() || ::DeleteFileW(path.c_str()) || gone()) return true;
  ::SetFileAttributesW(path.c_str(), attributes);
  return false;
}

}  // namespace varnel
