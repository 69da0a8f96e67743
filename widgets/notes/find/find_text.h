// Searching a plain text, in the units of the text throughout.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/notes/text/text_edit.h"

namespace varnel {

// What the options word of a search is made of.
inline constexpr unsigned kFindWholeWords = 2;
inline constexpr unsigned kFindMatchCase = 4;
inline unsigned FindOptionsWord(bool whole_words, bool match_case) {
  return (whole_words ? kFindWholeWords : 0) + (match_case ? kFindMatchCase : 0);
}

// Finds one text in others. Without kFindMatchCase, case does not matter in any script (FoldCase).
// With kFindWholeWords, no letter, digit, mark or "_" of any script may stand right before or
// behind a hit that begins or ends with one. A hit never begins or ends within a pair of units that
// make one character. An empty search text is never found.
class TextFinder {
 public:
  TextFinder(std::wstring_view wanted, unsigned options);

  // A text to search, prepared once for many searches. It refers to `text` and goes no further than
  // that lives.
  class Text {
   public:
    Text(std::wstring_view text, const TextFinder& finder);

   private:
    friend class TextFinder;
    std::wstring_view text_;
    std::wstring folded_;  // empty when case matters
  };

  // Where the first hit at or behind `from` begins.
  std::optional<std::size_t> Next(const Text& in, std::size_t from) const;
  // Where the last hit that begins before `before` begins.
  std::optional<std::size_t> Last(const Text& in, std::size_t before) const;
  // True when `text` is the search text as a whole, by the option for case.
  bool Equals(std::wstring_view text) const;

  std::size_t length() const { return wanted_.size(); }
  unsigned options() const { return options_; }

 private:
  bool IsHit(std::wstring_view text, std::size_t at) const;

  std::wstring wanted_;  // folded unless case matters
  unsigned options_;
};

// Every hit from the start of the text on, each behind the one before.
std::vector<std::size_t> AllHits(std::wstring_view text, const TextFinder& finder);

// Which of `hits`, counted from 1, is selected when the selection begins at `selected`; 0: none.
std::size_t HitNumber(const std::vector<std::size_t>& hits, std::size_t selected);

// What replacing every hit makes of a text.
struct Replacements {
  std::vector<TextEdit> edits;  // none when stopped
  std::size_t count = 0;        // of replacements; those that overlap are one edit
  bool stopped = false;         // by `go_on`, or the text would grow too large; nothing is replaced
};
inline constexpr std::size_t kLargestResult = 64 * 1024 * 1024;  // units

// Replaces from `from` on, in this way: the next hit at or behind the place is replaced, and the
// place becomes where it began plus the length of the search text (whatever the replacement's
// length is), in the text as it is then. So a search goes on within what was just put in; a hit
// that lies wholly in that is not replaced again, so that it always ends. `go_on` is asked now and
// then, with the units done so far; it stops everything by answering false.
Replacements ReplaceAll(std::wstring_view text, const TextFinder& finder,
                        std::wstring_view replacement, std::size_t from,
                        const std::function<bool(std::size_t)>& go_on = nullptr);

}  // namespace varnel
