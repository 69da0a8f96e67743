// Data that the program file carries.
#pragma once

#include <windows.h>

#include <string_view>

namespace varnel {

// The bytes of a resource, there for as long as the program runs; empty when there is none of that
// name and type.
std::string_view ResourceData(HINSTANCE instance, const wchar_t* name, const wchar_t* type);

}  // namespace varnel
