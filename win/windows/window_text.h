// The text of any window or control.
#pragma once

#include <windows.h>

#include <string>

namespace varnel {

// Empty for no window.
std::wstring WindowText(HWND window);

}  // namespace varnel
