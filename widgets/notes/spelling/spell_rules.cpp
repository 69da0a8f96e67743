#include "widgets/notes/spelling/spell_rules.h"

#include <algorithm>
#include <array>

#include "base/letters.h"
#include "base/text.h"
#include "widgets/notes/spelling/word_distance.h"

namespace varnel {
namespace {

constexpr wchar_t kCurvedApostrophe = L'\x2019';

bool IsCommaOrStop(wchar_t unit) {
  return unit == L',' || unit == L'.';
}

// What decides about a word beside its letters, as bits of what its characters are.
enum : unsigned { kCount = 1, kSpecial = 2, kCommaOrStop = 4 };

constexpr auto kSigns = [] {
  std::array<unsigned char, 123> signs = {};
  for (std::size_t code = 33; code <= 64; ++code) signs[code] = kSpecial;
  for (std::size_t code = '1'; code <= '9'; ++code) signs[code] |= kCount;
  signs['\''] = 0;
  signs[','] = signs['.'] = kCommaOrStop;
  return signs;
}();

unsigned SignsOf(std::wstring_view word) {
  unsigned signs = 0;
  for (const wchar_t unit : word) {
    signs |= static_cast<std::size_t>(unit) < kSigns.size() ? kSigns[static_cast<std::size_t>(unit)]
                                                            : unsigned{kSpecial};
  }
  return signs;
}

std::wstring WithoutCommasAndStops(std::wstring_view word) {
  std::wstring clean(word);
  std::erase_if(clean, IsCommaOrStop);
  return clean;
}

std::wstring_view Trimmed(std::wstring_view word) {
  while (!word.empty() && word.front() == L' ') word.remove_prefix(1);
  while (!word.empty() && word.back() == L' ') word.remove_suffix(1);
  return word;
}

// All letters are capitals, and there are at least two.
bool IsAllCapitals(std::wstring_view word) {
  int capitals = 0;
  for (std::size_t at = 0; at < word.size();) {
    const Character one = CharacterAt(word, at);
    if (HasCapital(one.point)) return false;
    capitals += IsCapital(one.point) ? 1 : 0;
    at += one.units;
  }
  return capitals >= 2;
}

}  // namespace

bool IsKnown(std::wstring_view word, const SpellOptions& options, const WordList& list) {
  word = Trimmed(word);
  if (word.empty()) return false;
  const unsigned signs = SignsOf(word);
  if (options.numbers && (signs & kCount) != 0) return true;
  if (options.capitals && word.front() >= L'A' && word.front() <= L'Z') return true;
  if (options.characters && (signs & kSpecial) != 0) return true;
  if ((signs & kCommaOrStop) == 0) return list.Holds(word);
  return list.Holds(WithoutCommasAndStops(word));
}

std::vector<std::uint32_t> AlikeWords(std::wstring_view word, const WordList& list) {
  word = Trimmed(word);
  const std::wstring wanted = FoldCase(word.substr(0, 2));
  std::vector<std::uint32_t> alike;
  if (word.empty() || list.count() == 0) return alike;
  for (const auto& [key, index] : list.Bucket(PhoneticKey(WithoutCommasAndStops(word)))) {
    if (FoldCase(list.Word(index).substr(0, 2)) == wanted) alike.push_back(index);
  }
  return alike;
}

Suggestions SuggestionsFor(std::wstring_view word, const WordList& list) {
  word = Trimmed(word);
  Suggestions found;
  const std::wstring wanted = FoldCase(word);
  for (const std::uint32_t index : AlikeWords(word, list)) {
    found.words.push_back(list.Word(index));
    const std::wstring& candidate = found.words.back();
    if (found.proposed.empty() && FoldCase(candidate.substr(0, 6)) == wanted.substr(0, 6)) {
      found.proposed = TakeCapital(candidate, word);
    }
  }
  const std::size_t most = found.words.size() + kMostFurther;
  const std::vector<std::uint32_t> near = NearestWords(wanted, list, most);
  for (const std::uint32_t index : near) {
    if (found.words.size() == most) break;
    const std::wstring candidate = list.Word(index);
    std::wstring shown = TakeCapital(candidate, word);
    const bool there = std::ranges::find(found.words, candidate) != found.words.end() ||
                       std::ranges::find(found.words, shown) != found.words.end();
    if (!there) found.words.push_back(std::move(shown));
  }
  if (found.proposed.empty() && !found.words.empty()) {
    found.proposed =
        TakeCapital(near.empty() ? found.words.front() : list.Word(near.front()), word);
  }
  return found;
}

std::wstring TakeCapital(std::wstring_view replacement, std::wstring_view word) {
  std::wstring taken;
  const bool all = IsAllCapitals(word);
  const bool first = !word.empty() && IsCapital(CharacterAt(word, 0).point);
  for (std::size_t at = 0; at < replacement.size();) {
    const Character one = CharacterAt(replacement, at);
    const bool raise = all || (first && at == 0);
    AppendCharacter(taken, raise ? CapitalOf(one.point) : one.point);
    at += one.units;
  }
  if (word.find(kCurvedApostrophe) != std::wstring_view::npos) {
    std::ranges::replace(taken, L'\'', kCurvedApostrophe);
  }
  return taken;
}

}  // namespace varnel
