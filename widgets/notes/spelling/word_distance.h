// The words of a list that few changes make of another.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "widgets/notes/spelling/word_list.h"

namespace varnel {

inline constexpr int kMostChanges = 2;

// How many changes make `left` of `right`: a unit put in, left out or replaced, or two neighbours
// swapped, no place changed twice (the optimal string alignment distance). More than kMostChanges
// give kMostChanges + 1.
int WordDistance(std::wstring_view left, std::wstring_view right);

// The indices of at most `most` words whose folded forms are within kMostChanges of `folded`, which
// is folded, best first: fewest changes; the same letters; the same first letter; the same sound;
// then in the order of the list. Names come after other words, possessive forms last unless
// `folded` has an apostrophe. Empty for a word that is longer than any of a list can be.
std::vector<std::uint32_t> NearestWords(std::wstring_view folded, const WordList& list,
                                        std::size_t most);

}  // namespace varnel
