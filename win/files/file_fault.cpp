#include "win/files/file_fault.h"

namespace varnel {
namespace {

constexpr DWORD kDiskQuotaExceeded = 1295;  // not among the headers' names

}  // namespace

FileResult FileResultOf(DWORD error) {
  switch (error) {
    case ERROR_SUCCESS:
      return FileResult::kDone;
    case ERROR_FILE_NOT_FOUND:
      return FileResult::kMissing;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_DRIVE:
    case ERROR_NOT_READY:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY:
      return FileResult::kNoFolder;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
      return FileResult::kLocked;
    case ERROR_WRITE_PROTECT:
      return FileResult::kReadOnly;
    case ERROR_ACCESS_DENIED:
      return FileResult::kDenied;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case kDiskQuotaExceeded:
      return FileResult::kFull;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
      return FileResult::kExists;
    default:
      return FileResult::kFailed;
  }
}

std::wstring WithoutSeparator(std::wstring path) {
  while (path.size() > 3 && path.ends_with(L'\\')) path.pop_back();
  return path;
}

}  // namespace varnel
