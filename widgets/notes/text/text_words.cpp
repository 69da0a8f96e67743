#include "widgets/notes/text/text_words.h"

#include <algorithm>

#include "base/letters.h"
#include "base/text.h"

namespace varnel {
namespace {

bool IsAsciiLetter(wchar_t unit) {
  return (unit >= L'a' && unit <= L'z') || (unit >= L'A' && unit <= L'Z');
}

bool IsLetterOrDigit(char32_t point) {
  const CharacterKind kind = KindOf(point);
  return kind == CharacterKind::kLetter || kind == CharacterKind::kDigit;
}

bool IsSkippedAbbreviation(std::wstring_view word) {
  return word.size() == 3 && (EqualsIgnoreCase(word, L"e.g") || EqualsIgnoreCase(word, L"i.e"));
}

// What remains of a run without gaps; empty when it has neither letter nor digit.
TextRange CoreOf(std::wstring_view text, TextRange run) {
  while (run.begin < run.end && !IsAsciiLetter(text[run.begin])) {
    const Character first = CharacterAt(text.substr(0, run.end), run.begin);
    if (IsLetterOrDigit(first.point)) break;
    run.begin += first.units;
  }
  while (run.begin < run.end && !IsAsciiLetter(text[run.end - 1])) {
    const Character last = CharacterBefore(text, run.end);
    if (KindOf(last.point) != CharacterKind::kOther) break;
    run.end -= last.units;
  }
  return run;
}

}  // namespace

bool IsWordGap(wchar_t unit) {
  if (unit <= L' ') return true;
  if (unit < 0x85) return false;
  return unit == 0x85 || unit == 0xA0 || (unit >= 0x2000 && unit <= 0x200A) || unit == 0x2028 ||
         unit == 0x2029 || unit == 0x202F || unit == 0x205F || unit == 0x3000 || unit == 0xFFFC;
}

std::size_t RunBegin(std::wstring_view text, std::size_t at) {
  at = std::min(at, text.size());
  while (at > 0 && !IsWordGap(text[at - 1])) --at;
  return at;
}

std::optional<TextRange> NextWord(std::wstring_view text, std::size_t from) {
  while (from < text.size()) {
    if (IsWordGap(text[from])) {
      ++from;
      continue;
    }
    TextRange run{from, from};
    while (run.end < text.size() && !IsWordGap(text[run.end])) ++run.end;
    const TextRange core = CoreOf(text, run);
    if (core.begin < core.end &&
        !IsSkippedAbbreviation(text.substr(core.begin, core.end - core.begin))) {
      return core;
    }
    from = run.end;
  }
  return std::nullopt;
}

std::wstring WithStraightApostrophes(std::wstring_view word) {
  std::wstring straight(word);
  std::ranges::replace(straight, L'\x2019', L'\'');
  return straight;
}

bool HasLetter(std::wstring_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const Character one = CharacterAt(text, at);
    if (KindOf(one.point) == CharacterKind::kLetter) return true;
    at += one.units;
  }
  return false;
}

}  // namespace varnel
