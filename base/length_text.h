// Lengths on paper as people write them: millimetres or inches.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace varnel {

enum class LengthUnit { kMillimetres, kInches };

// "25 mm" to a tenth, or "1.25 in" to a hundredth, without zeros at the end; `decimal` stands for
// the point. `twips` from -1,000,000 to 1,000,000.
std::wstring LengthText(int twips, LengthUnit unit, wchar_t decimal);

// The length in twips, rounded. A number with point or comma, then one of mm, cm, in, " or pt, or
// nothing for `unit`; blanks may stand between and around. Nothing for any other text, for a
// negative number, and for more than 1,000,000 twips.
std::optional<int> ReadLength(std::wstring_view text, LengthUnit unit);

}  // namespace varnel
