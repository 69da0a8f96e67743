// Characters that XML and HTML write by name or number.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

// `text` with the five entities of XML, "&nbsp;" (as a blank), "&deg;" and numbers of characters,
// decimal or hexadecimal, in place of what they stand for. Line ends and other control characters
// become blanks; whatever else follows an "&" stays as it is.
std::wstring WithoutEntities(std::wstring_view text);

}  // namespace varnel
