// The program's name, as windows, messages and the registry show it.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

inline constexpr std::wstring_view kApplicationTitle = L"Widget Varnel";

// The text of a version with two digits after the point: (1, 5) gives "1.05".
std::wstring VersionText(int major, int minor);

}  // namespace varnel
