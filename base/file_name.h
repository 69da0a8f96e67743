// Names that a user types, made safe before they become names of files.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varnel {

inline constexpr std::size_t kLongestFileName = 100;  // in units of std::wstring, without ending

// The file name (without its ending, which the caller appends) for what a user typed, or nothing
// when it cannot be one. Outer blanks and trailing dots are dropped, as the platform itself would
// drop them. Refused are: a name with nothing left or longer than kLongestFileName; the characters
// < > : " / \ | ? *, controls, text direction controls, invisible separators and broken surrogates;
// the platform's device names (CON, PRN, AUX, NUL, CONIN$, CONOUT$, CLOCK$, COM and LPT with a
// digit or a superscript 1 to 3) in any case, also before a dot. A result holds no path part, so
// that folder + "\" + result stays inside the folder.
std::optional<std::wstring> SafeFileName(std::wstring_view user_text);

}  // namespace varnel
