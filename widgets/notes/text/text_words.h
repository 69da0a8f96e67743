// The words of a text, as the spelling check takes them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varnel {

// A stretch of a text, in its units.
struct TextRange {
  std::size_t begin = 0;
  std::size_t end = 0;  // behind the last unit
  bool operator==(const TextRange&) const = default;
};

// What separates words: blanks, tabs, ends of lines and paragraphs, pictures (U+FFFC).
bool IsWordGap(wchar_t unit);

// Where the run of units without a gap that holds `at` begins; `at` itself where a gap, or the end
// of the text, stands before it.
std::size_t RunBegin(std::wstring_view text, std::size_t at);

// The first word that begins at or after `from`, or nothing. A word is what is left of a run
// without gaps when the signs around it are taken away: it begins with a letter or digit, ends with
// one or with a mark, and has a letter or digit of any script. Runs without one (a lone dash,
// emoji) and "e.g" and "i.e", in any case, are passed over.
std::optional<TextRange> NextWord(std::wstring_view text, std::size_t from);

// The word with straight apostrophes, as dictionaries write them.
std::wstring WithStraightApostrophes(std::wstring_view word);

// True when the text has a letter of any script.
bool HasLetter(std::wstring_view text);

}  // namespace varnel
