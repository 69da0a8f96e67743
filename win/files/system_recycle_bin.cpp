#include "win/files/system_recycle_bin.h"

#include <windows.h>

#include <shellapi.h>

#include "win/files/file_fault.h"
#include "win/system/handles.h"

namespace varnel {
namespace {

// Why the file cannot be taken away, in words that the shell does not use.
FileResult FaultOf(const std::wstring& path) {
  const UniqueFile file(::CreateFileW(path.c_str(), DELETE, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
  return file ? FileResult::kFailed : LastFileResult();
}

}  // namespace

FileResult SystemRecycleBin::Recycle(const std::wstring& path) {
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return FileResult::kDone;
  if (attributes & FILE_ATTRIBUTE_DIRECTORY) return FileResult::kDenied;
  const std::wstring list = path + L'\0';  // of one path, ended by a second zero
  SHFILEOPSTRUCTW operation = {};
  operation.wFunc = FO_DELETE;
  operation.pFrom = list.c_str();
  operation.fFlags = FOF_ALLOWUNDO | FOF_NOCONFIRMATION | FOF_NOERRORUI | FOF_SILENT;
  const bool done = ::SHFileOperationW(&operation) == 0 && !operation.fAnyOperationsAborted;
  if (::GetFileAttributesW(path.c_str()) == INVALID_FILE_ATTRIBUTES) return FileResult::kDone;
  return done ? FileResult::kFailed : FaultOf(path);
}

}  // namespace varnel
