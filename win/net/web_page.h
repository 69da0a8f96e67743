// Pages in the user's browser.
#pragma once

#include <windows.h>

#include <string>

namespace varnel {

// Opens an http or https address with the shell's "OPEN" verb in the user's browser; anything else
// is refused. Failures are silent.
void OpenWebPage(HWND owner, const std::wstring& address);

// The same, and what IsMailAddress takes in the user's mail program.
void OpenAddress(HWND owner, const std::wstring& address);

}  // namespace varnel
