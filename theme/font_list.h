// Which of the installed fonts the theme dialog offers.
#pragma once

#include <string_view>

namespace varnel {

// False for faces that begin with "@" (turned for vertical writing) or with "WST", in these very
// letters; true for all others, the script variants of fonts among them.
bool IsFontOffered(std::wstring_view face);

}  // namespace varnel
