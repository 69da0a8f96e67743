#include "win/net/web_page.h"

#include <shellapi.h>

#include "base/text.h"
#include "base/web_address.h"

namespace varnel {

void OpenWebPage(HWND owner, const std::wstring& address) {
  const bool web = EqualsIgnoreCase(address.substr(0, 7), L"http://") ||
                   EqualsIgnoreCase(address.substr(0, 8), L"https://");
  if (web) ::ShellExecuteW(owner, L"OPEN", address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
}

void OpenAddress(HWND owner, const std::wstring& address) {
  if (IsMailAddress(address)) {
    ::ShellExecuteW(owner, L"OPEN", address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  } else {
    OpenWebPage(owner, address);
  }
}

}  // namespace varnel
