// The system's answers about files, as results of the file store.
#pragma once

#include <windows.h>

#include "base/file_store.h"

namespace varnel {

// `error` as GetLastError gives it after a failed call.
FileResult FileResultOf(DWORD error);
inline FileResult LastFileResult() {
  return FileResultOf(::GetLastError());
}

inline constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::wstring WithoutSeparator(std::wstring path);

}  // namespace varnel
