#include "base/letters.h"

#include <algorithm>
#include <span>

namespace varnel {
namespace {

using letters_detail::CaseRange;
using letters_detail::KindRange;

bool IsHigh(wchar_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLow(wchar_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}

char32_t Joined(wchar_t high, wchar_t low) {
  return 0x10000 + ((static_cast<char32_t>(high) - 0xD800) << 10) +
         (static_cast<char32_t>(low) - 0xDC00);
}

bool IsAsciiCapital(char32_t point) {
  return point >= 'A' && point <= 'Z';
}

// The range that `point` lies in, or null; ranges are in order and do not overlap.
template <typename Range>
const Range* RangeOf(std::span<const Range> ranges, char32_t point) {
  const auto after = std::ranges::upper_bound(ranges, point, {}, &Range::first);
  if (after == ranges.begin()) return nullptr;
  const Range& range = *(after - 1);
  return point <= range.last ? &range : nullptr;
}

std::span<const CaseRange> CaseRanges() {
  return {letters_detail::kCaseRanges, letters_detail::kCaseRangeCount};
}

bool Folds(const CaseRange& range, char32_t point) {
  return point >= range.first && point <= range.last && (point - range.first) % range.step == 0;
}

char32_t Moved(char32_t point, std::int32_t distance) {
  return static_cast<char32_t>(static_cast<std::int32_t>(point) + distance);
}

}  // namespace

CharacterKind KindOf(char32_t point) {
  if (point < 0x80) {
    if ((point | 0x20) >= 'a' && (point | 0x20) <= 'z') return CharacterKind::kLetter;
    return point >= '0' && point <= '9' ? CharacterKind::kDigit : CharacterKind::kOther;
  }
  const std::span<const KindRange> ranges(letters_detail::kKindRanges,
                                          letters_detail::kKindRangeCount);
  const KindRange* range = RangeOf(ranges, point);
  return range == nullptr ? CharacterKind::kOther : range->kind;
}

Character CharacterAt(std::wstring_view text, std::size_t at) {
  if (IsHigh(text[at]) && at + 1 < text.size() && IsLow(text[at + 1])) {
    return {Joined(text[at], text[at + 1]), 2};
  }
  return {static_cast<char32_t>(text[at]), 1};
}

Character CharacterBefore(std::wstring_view text, std::size_t at) {
  if (at >= 2 && IsLow(text[at - 1]) && IsHigh(text[at - 2])) {
    return {Joined(text[at - 2], text[at - 1]), 2};
  }
  return {static_cast<char32_t>(text[at - 1]), 1};
}

char32_t FoldCase(char32_t point) {
  if (point < 0x80) return IsAsciiCapital(point) ? point + 0x20 : point;
  const CaseRange* range = RangeOf(CaseRanges(), point);
  return range != nullptr && Folds(*range, point) ? Moved(point, range->distance) : point;
}

std::wstring FoldCase(std::wstring_view text) {
  std::wstring folded(text);
  for (std::size_t at = 0; at < text.size();) {
    if (static_cast<char32_t>(text[at]) < 0x80) {
      if (IsAsciiCapital(static_cast<char32_t>(text[at]))) folded[at] += L'a' - L'A';
      ++at;
      continue;
    }
    const Character one = CharacterAt(text, at);
    const char32_t point = FoldCase(one.point);
    if (one.units == 1) {
      folded[at] = static_cast<wchar_t>(point);
    } else if (point != one.point) {
      std::wstring pair;
      AppendCharacter(pair, point);
      folded.replace(at, one.units, pair);
    }
    at += one.units;
  }
  return folded;
}

bool HasCapital(char32_t point) {
  return CapitalOf(point) != point;
}

char32_t CapitalOf(char32_t point) {
  if (point < 0x80) return point >= 'a' && point <= 'z' ? point - 0x20 : point;
  for (const CaseRange& range : CaseRanges()) {
    const char32_t capital = Moved(point, -range.distance);
    if (Folds(range, capital)) return capital;
  }
  return point;
}

void AppendCharacter(std::wstring& text, char32_t point) {
  if (point < 0x10000 || point > 0x10FFFF) {
    text.push_back(static_cast<wchar_t>(point));
    return;
  }
  text.push_back(static_cast<wchar_t>(0xD800 + ((point - 0x10000) >> 10)));
  text.push_back(static_cast<wchar_t>(0xDC00 + ((point - 0x10000) & 0x3FF)));
}

}  // namespace varnel
