// Floating-point numbers as text and back, the way the platform's BASIC conversions have them, but
// always with a point whatever the user's locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnel {

// The general conversion: at most 15 significant digits (halves away from zero), no needless zeros;
// exponent form "1E+15", "-1.5E-05" for magnitudes that then are 1E+15 or more, or less than
// 0.0001. Zero of either sign gives "0". `value` must be finite; anything else gives "0".
std::wstring GeneralNumber(double value);

// The format "0.0" followed by `most_decimals` - 1 times "#": no exponent, at least one digit on
// either side of the point, the 15 significant digits of the general conversion rounded to
// `most_decimals` (at least 1), halves away from zero. A negative value that rounds to zero keeps
// its sign ("-0.0"), zero has none. `value` as above.
std::wstring FixedNumber(double value, int most_decimals);

// The numeric value of a text: leading blanks are skipped, then an optional sign, digits with one
// decimal point and an exponent ("E" or "e", sign, digits) are read as far as they go; nothing
// readable gives 0. Where LeadingNumber stops at the exponent this takes back what GeneralNumber
// gave. Nothing is returned for a number too large for a double; one too small gives 0.
std::optional<double> LeadingDouble(std::wstring_view text);

}  // namespace varnel
