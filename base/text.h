// Text helpers shared by every room. Text is UTF-16 in std::wstring on Windows; a native test build
// has wider units, which no function here depends on.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

// Removes leading and trailing blanks (U+0020 only; tabs and line ends stay).
std::wstring Trim(std::wstring_view text);

// Compares two texts without regard to the case of A to Z; other letters must be equal.
bool EqualsIgnoreCase(std::wstring_view left, std::wstring_view right);
bool EndsWithIgnoreCase(std::wstring_view text, std::wstring_view ending);

// UTF-8 to text and back. Bytes or units that encode nothing become U+FFFD; never fails.
std::wstring WideFromUtf8(std::string_view bytes);
std::string Utf8FromWide(std::wstring_view text);

}  // namespace varnel
