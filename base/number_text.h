// Numbers as decimal text and back, in the forms the settings store and the widgets use.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnel {

// "0" to "9" and nothing else.
constexpr bool IsDigit(wchar_t unit) {
  return unit >= L'0' && unit <= L'9';
}

// The decimal text of a whole number: "-12", "0", "235".
std::wstring NumberText(long long value);

// `value` with at least `digits` digits, zeros in front: (5, 2) gives "05", (123, 2) "123".
std::wstring PaddedNumber(long long value, int digits);

// The numeric value of a text: leading blanks are skipped, an optional sign, digits and one decimal
// point are read, anything else ends the number; nothing readable gives 0. Never fails and is
// always finite (at most 300 digits count).
double LeadingNumber(std::wstring_view text);

// The whole text as a decimal whole number (blanks around it allowed), or nothing when it is
// anything else or does not fit.
std::optional<long long> WholeNumber(std::wstring_view text);

// Rounds to the nearest whole number, exact halves to the even neighbour. Values beyond the range
// of long long are clamped to it; NaN gives 0.
long long RoundHalfEven(double value);

}  // namespace varnel
