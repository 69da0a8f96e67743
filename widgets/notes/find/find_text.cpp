#include "widgets/notes/find/find_text.h"

#include <algorithm>

#include "base/letters.h"

namespace varnel {
namespace {

bool IsWordCharacter(char32_t point) {
  return point == U'_' || KindOf(point) != CharacterKind::kOther;
}

bool IsLowHalf(std::wstring_view text, std::size_t at) {
  return at > 0 && at < text.size() && CharacterBefore(text, at + 1).units == 2;
}

// No word goes on across `at`.
bool IsWordEdge(std::wstring_view text, std::size_t at) {
  return at == 0 || at == text.size() || !IsWordCharacter(CharacterBefore(text, at).point) ||
         !IsWordCharacter(CharacterAt(text, at).point);
}

}  // namespace

TextFinder::TextFinder(std::wstring_view wanted, unsigned options)
    : wanted_((options & kFindMatchCase) != 0 ? std::wstring(wanted) : FoldCase(wanted)),
      options_(options) {}

TextFinder::Text::Text(std::wstring_view text, const TextFinder& finder) : text_(text) {
  if ((finder.options_ & kFindMatchCase) == 0) folded_ = FoldCase(text);
}

bool TextFinder::IsHit(std::wstring_view text, std::size_t at) const {
  const std::size_t end = at + wanted_.size();
  if (IsLowHalf(text, at) || IsLowHalf(text, end)) return false;
  return (options_ & kFindWholeWords) == 0 || (IsWordEdge(text, at) && IsWordEdge(text, end));
}

std::optional<std::size_t> TextFinder::Next(const Text& in, std::size_t from) const {
  if (wanted_.empty()) return std::nullopt;
  const std::wstring_view where = in.folded_.empty() ? in.text_ : in.folded_;
  for (std::size_t at = where.find(wanted_, from); at != std::wstring_view::npos;
       at = where.find(wanted_, at + 1)) {
    if (IsHit(in.text_, at)) return at;
  }
  return std::nullopt;
}

std::optional<std::size_t> TextFinder::Last(const Text& in, std::size_t before) const {
  if (wanted_.empty()) return std::nullopt;
  const std::wstring_view where = in.folded_.empty() ? in.text_ : in.folded_;
  while (before > 0) {
    const std::size_t at = where.rfind(wanted_, before - 1);
    if (at == std::wstring_view::npos) break;
    if (IsHit(in.text_, at)) return at;
    before = at;
  }
  return std::nullopt;
}

bool TextFinder::Equals(std::wstring_view text) const {
  return ((options_ & kFindMatchCase) != 0 ? std::wstring(text) : FoldCase(text)) == wanted_;
}

std::vector<std::size_t> AllHits(std::wstring_view text, const TextFinder& finder) {
  std::vector<std::size_t> hits;
  const TextFinder::Text in(text, finder);
  for (auto at = finder.Next(in, 0); at; at = finder.Next(in, *at + finder.length())) {
    hits.push_back(*at);
  }
  return hits;
}

std::size_t HitNumber(const std::vector<std::size_t>& hits, std::size_t selected) {
  const auto found = std::ranges::lower_bound(hits, selected);
  if (found == hits.end() || *found != selected) return 0;
  return static_cast<std::size_t>(found - hits.begin()) + 1;
}

}  // namespace varnel
