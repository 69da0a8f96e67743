// The text of any window or control, and its kind.
#pragma once

#include <windows.h>

#include <string>

namespace varnel {

// Empty for no window.
std::wstring WindowText(HWND window);
std::wstring ClassName(HWND window);

}  // namespace varnel
