// Text in the system's code page.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

// Bytes that mean nothing become the code page's own stand-in; never fails. At most 2^30 bytes.
std::wstring WideFromCodePage(std::string_view bytes);

}  // namespace varnel
