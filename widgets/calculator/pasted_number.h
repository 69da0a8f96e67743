// Numbers from the clipboard.
#pragma once

#include <optional>
#include <string_view>

namespace varnel {

// The number that a pasted text is, or nothing when it is anything else, longer than 400 units or
// too large for a double. White space around it, a sign before it ("+", "-" or U+2212), an exponent
// ("E+15") and thousands separators (commas, points, blanks of any width or apostrophes, one kind,
// in groups of three) are tolerated. The decimal sign is a point or a comma: of two kinds of
// separators the last; a lone point; a lone comma unless it stands before three digits and after
// one to three that do not begin with 0 ("1,234" is a thousand and more, "1,25" and "0,125" are
// not).
std::optional<double> ParsePastedNumber(std::wstring_view text);

}  // namespace varnel
