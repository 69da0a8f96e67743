// The program's name, as windows, messages and the registry show it.
#pragma once

#include <string_view>

namespace varnel {

inline constexpr std::wstring_view kApplicationTitle = L"Widget Varnel";

}  // namespace varnel
