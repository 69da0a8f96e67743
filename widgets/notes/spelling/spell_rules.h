// When a word counts as right, and what is offered for one that does not.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "widgets/notes/spelling/word_list.h"

namespace varnel {

// Which words are taken as right without being looked up.
struct SpellOptions {
  bool numbers = true;     // that hold a digit from 1 to 9
  bool capitals = true;    // that begin with A to Z
  bool characters = true;  // that hold a special character: 33 to 64 but ' , . or one beyond 122
};

// Whether a word is right: by an option, or because the list holds it without its commas and stops.
// An empty or blank word is not.
bool IsKnown(std::wstring_view word, const SpellOptions& options, const WordList& list);

// Shown in place of suggestions when there are none; never put into a text.
inline constexpr std::wstring_view kNoSuggestion = L"None Found";

struct Suggestions {
  std::vector<std::wstring> words;  // best first
  std::wstring proposed;            // what to put in place of the word; empty: nothing
};

// The words that sound like `word`, as indices in the order of the list: they have its code, commas
// and stops left out, and its first two letters, case ignored.
std::vector<std::uint32_t> AlikeWords(std::wstring_view word, const WordList& list);

// Suggestions for an unknown word. First the alike words as they stand in the list; the first of
// them with the word's first six letters is the proposed one. Then at most kMostFurther words that
// two or fewer changes make of it (NearestWords). Those, and the proposed word, take over the
// word's capital (TakeCapital). Where that proposes none, the word that fewest changes make is
// proposed, or else the first alike one.
Suggestions SuggestionsFor(std::wstring_view word, const WordList& list);
inline constexpr std::size_t kMostFurther = 12;

// `replacement` in the way `word` is written: a first capital, all capitals (from two letters on),
// a curved apostrophe.
std::wstring TakeCapital(std::wstring_view replacement, std::wstring_view word);

}  // namespace varnel
