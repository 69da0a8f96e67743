// Plain text on the clipboard.
#pragma once

#include <windows.h>

#include <string>

namespace varnel {

// Puts `text` on the clipboard. False when another program holds it.
bool CopyText(HWND owner, const std::wstring& text);

// The text on the clipboard, at most `most` UTF-16 units of it; empty when it holds none.
std::wstring PastedText(HWND owner, std::size_t most);

}  // namespace varnel
