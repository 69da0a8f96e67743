#include "win/shell.h"

#include <shellapi.h>

#include "base/text.h"

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

void OpenWebPage(HWND owner, const std::wstring& address) {
  const bool web = EqualsIgnoreCase(address.substr(0, 7), L"http://") ||
                   EqualsIgnoreCase(address.substr(0, 8), L"https://");
  if (web) ::ShellExecuteW(owner, L"OPEN", address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

void ShowInformation(HWND owner, const std::wstring& text, const std::wstring& title) {
  ::MessageBoxW(owner, text.c_str(), title.c_str(), MB_OK | MB_ICONINFORMATION | MB_TOPMOST);
}

bool AskYesNo(HWND owner, const std::wstring& text, const std::wstring& title) {
  return ::MessageBoxW(owner, text.c_str(), title.c_str(),
                       MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) == IDYES;
}

}  // namespace varnel
