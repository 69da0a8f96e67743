// Text in the system's code page.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

// Bytes that mean nothing become the code page's own stand-in; never fails. At most 2^30 bytes.
std::wstring WideFromCodePage(std::string_view bytes);
// What the code page lacks becomes its stand-in; never fails. At most 2^28 units.
std::string CodePageFromWide(std::wstring_view text);

// The character of `bytes` in code page `page`; empty when they mean nothing there.
std::wstring CharacterOfPage(int page, std::string_view bytes);
int SystemCodePage();

}  // namespace varnel
