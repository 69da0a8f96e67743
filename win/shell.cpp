#include "win/shell.h"

#include <commdlg.h>
#include <objbase.h>
#include <shellapi.h>
#include <shlobj.h>

#include "base/text.h"
#include "win/late_function.h"

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

std::wstring BrowseForFolder(HWND owner, const std::wstring& title) {
  BROWSEINFOW request = {};
  request.hwndOwner = owner;
  request.lpszTitle = title.c_str();
  request.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
  ITEMIDLIST* chosen = ::SHBrowseForFolderW(&request);
  if (!chosen) return {};
  wchar_t path[MAX_PATH] = {};
  const bool known = ::SHGetPathFromIDListW(chosen, path) != FALSE;
  ::CoTaskMemFree(chosen);
  return known ? path : L"";
}

std::wstring BrowseForFile(HWND owner, const wchar_t* title, const wchar_t* filter) {
  // The common dialogs pull in much that start-up does not need, hence the late address.
  using GetOpenFileName = BOOL WINAPI(OPENFILENAMEW*);
  auto* get_name = LateFunction<GetOpenFileName>(L"comdlg32.dll", "GetOpenFileNameW");
  wchar_t path[4096] = {};
  OPENFILENAMEW request = {};
  request.lStructSize = sizeof request;
  request.hwndOwner = owner;
  request.lpstrTitle = title;
  request.lpstrFilter = filter;
  request.lpstrFile = path;
  request.nMaxFile = sizeof path / sizeof *path;
  request.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
  return get_name && get_name(&request) ? path : L"";
}

void ShowInformation(HWND owner, const std::wstring& text, const std::wstring& title) {
  ::MessageBoxW(owner, text.c_str(), title.c_str(), MB_OK | MB_ICONINFORMATION | MB_TOPMOST);
}

bool AskYesNo(HWND owner, const std::wstring& text, const std::wstring& title) {
  return ::MessageBoxW(owner, text.c_str(), title.c_str(),
                       MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) == IDYES;
}

}  // namespace varnel
