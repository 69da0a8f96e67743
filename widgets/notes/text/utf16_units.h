// Text in UTF-16 units whatever the width of wchar_t: positions in it are those of the platform.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

// Each character beyond U+FFFF as its two surrogates; other units stay.
std::wstring Utf16Units(std::wstring_view text);

}  // namespace varnel
