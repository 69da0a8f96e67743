#include "base/name_order.h"

#include <algorithm>
#include <cstddef>

#include "base/number_text.h"

namespace varnel {
namespace {

bool IsWithin(wchar_t unit, wchar_t first, wchar_t last) {
  return unit >= first && unit <= last;
}

// Pairs of neighbours, of which the upper case has the even or the odd number.
bool IsEvenPair(wchar_t unit) {
  return IsWithin(unit, 0x100, 0x12F) || IsWithin(unit, 0x132, 0x137) ||
         IsWithin(unit, 0x14A, 0x177) || IsWithin(unit, 0x460, 0x481) ||
         IsWithin(unit, 0x48A, 0x4BF) || IsWithin(unit, 0x4D0, 0x52F) ||
         IsWithin(unit, 0x1E00, 0x1E95) || IsWithin(unit, 0x1EA0, 0x1EFF);
}

bool IsOddPair(wchar_t unit) {
  return IsWithin(unit, 0x139, 0x148) || IsWithin(unit, 0x179, 0x17E) ||
         IsWithin(unit, 0x4C1, 0x4CE);
}

// Takes the digits at the front of `text` off and gives them without leading zeros.
std::wstring_view TakeNumber(std::wstring_view& text) {
  const auto end = std::ranges::find_if_not(text, IsDigit);
  std::wstring_view digits = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(digits.size());
  digits.remove_prefix(std::min(digits.find_first_not_of(L'0'), digits.size()));
  return digits;
}

std::strong_ordering CompareNumbers(std::wstring_view left, std::wstring_view right) {
  if (left.size() != right.size()) return left.size() <=> right.size();
  return left <=> right;
}

// Without regard to leading zeros and case.
std::strong_ordering CompareTitles(std::wstring_view left, std::wstring_view right) {
  while (!left.empty() && !right.empty()) {
    const bool number = IsDigit(left.front());
    if (number != IsDigit(right.front())) {
      return number ? std::strong_ordering::less : std::strong_ordering::greater;
    }
    if (number) {
      const std::wstring_view left_number = TakeNumber(left);
      const auto order = CompareNumbers(left_number, TakeNumber(right));
      if (order != 0) return order;
    } else {
      const auto order = FoldedUnit(left.front()) <=> FoldedUnit(right.front());
      if (order != 0) return order;
      left.remove_prefix(1);
      right.remove_prefix(1);
    }
  }
  return left.size() <=> right.size();
}

}  // namespace

wchar_t FoldedUnit(wchar_t unit) {
  if (unit < 0x80) return IsWithin(unit, L'A', L'Z') ? static_cast<wchar_t>(unit + 32) : unit;
  const bool latin = IsWithin(unit, 0xC0, 0xDE) && unit != 0xD7;
  const bool greek = IsWithin(unit, 0x391, 0x3AB) && unit != 0x3A2;
  if (latin || greek || IsWithin(unit, 0x410, 0x42F)) return static_cast<wchar_t>(unit + 32);
  if (IsWithin(unit, 0x400, 0x40F)) return static_cast<wchar_t>(unit + 80);
  if (unit == 0x178) return 0xFF;
  if (IsEvenPair(unit)) return static_cast<wchar_t>(unit | 1);
  if (IsOddPair(unit)) return static_cast<wchar_t>(unit + unit % 2);
  return unit;
}

std::wstring FoldedName(std::wstring_view name) {
  std::wstring folded(name);
  std::ranges::transform(folded, folded.begin(), FoldedUnit);
  return folded;
}

std::weak_ordering CompareNames(std::wstring_view left, std::wstring_view right) {
  return std::lexicographical_compare_three_way(
      left.begin(), left.end(), right.begin(), right.end(),
      [](wchar_t one, wchar_t other) { return FoldedUnit(one) <=> FoldedUnit(other); });
}

std::strong_ordering CompareNaturally(std::wstring_view left, std::wstring_view right) {
  const auto order = CompareTitles(left, right);
  if (order != 0) return order;
  // The same titles: the longer one has more leading zeros.
  if (left.size() != right.size()) return left.size() <=> right.size();
  return left <=> right;
}

}  // namespace varnel
