#include "win/system/process.h"

#include <windows.h>

#include <shellapi.h>

namespace varnel {

std::wstring ProgramPath() {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        ::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    if (length < path.size()) {
      path.resize(length);
      return path;
    }
    path.resize(path.size() * 2);
  }
}

std::vector<std::wstring> CommandLineWords() {
  int count = 0;
  wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  if (!words) return {};
  std::vector<std::wstring> result(words + (count > 0 ? 1 : 0), words + count);
  ::LocalFree(words);
  return result;
}

}  // namespace varnel
