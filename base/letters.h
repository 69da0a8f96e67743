// What characters are, in every script: letters, digits, marks, and letters that differ in case
// only. Text is in units of UTF-16; a native build's wider units may also hold whole code points.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace varnel {

enum class CharacterKind : std::uint8_t { kOther, kLetter, kDigit, kMark };

// The kind of a code point by its Unicode category: L letter, N digit, M mark (a combining accent).
CharacterKind KindOf(char32_t point);

// One character of a text: its code point and how many units it takes (1 or 2). Half of a pair
// alone counts as a character of its own.
struct Character {
  char32_t point = 0;
  std::size_t units = 1;
};
Character CharacterAt(std::wstring_view text, std::size_t at);      // `at` < text.size()
Character CharacterBefore(std::wstring_view text, std::size_t at);  // 1 <= `at` <= text.size()

// The form that stands for a letter in every case: "Ä" and "ä" give "ä", "Σ", "σ" and "ς" give "σ".
// Other characters give themselves. A letter beyond ASCII never becomes one of ASCII.
char32_t FoldCase(char32_t point);
// The same for a text. It keeps its length, so positions in both are the same.
std::wstring FoldCase(std::wstring_view text);

// True for a letter that has a capital: "a", "ä"; false for "A", "1", "-" and letters without case.
bool HasCapital(char32_t point);
// That capital, or the character itself.
char32_t CapitalOf(char32_t point);
// True for a letter that has a small form.
inline bool IsCapital(char32_t point) {
  return FoldCase(point) != point && !HasCapital(point);
}

// Appends the unit or units of a code point.
void AppendCharacter(std::wstring& text, char32_t point);

namespace letters_detail {

using Kind = CharacterKind;

struct KindRange {
  char32_t first;
  char32_t last;
  Kind kind;
};
// Every `step`-th of `first` to `last` folds to the letter `distance` away.
struct CaseRange {
  char32_t first;
  char32_t last;
  char32_t step;
  std::int32_t distance;
};

extern const KindRange kKindRanges[];
extern const std::size_t kKindRangeCount;
extern const CaseRange kCaseRanges[];
extern const std::size_t kCaseRangeCount;

}  // namespace letters_detail
}  // namespace varnel
