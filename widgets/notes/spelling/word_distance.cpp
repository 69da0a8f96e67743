#include "widgets/notes/spelling/word_distance.h"

#include <algorithm>
#include <array>
#include <string>

#include "base/letters.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr std::size_t kLongest = kLongestListWord + kMostChanges;

bool HasTwoBitsAtMost(std::uint32_t bits) {
  bits &= bits - 1;
  return (bits & (bits - 1)) == 0;
}

// Each change brings in at most one letter and loses at most one.
bool MayBeNear(std::uint32_t left, std::uint32_t right) {
  static_assert(kMostChanges == 2);
  return HasTwoBitsAtMost(left & ~right) && HasTwoBitsAtMost(right & ~left);
}

struct Nearness {
  std::uint32_t rank = 0;  // smaller is nearer
  std::uint32_t index = 0;
  auto operator<=>(const Nearness&) const = default;
};

}  // namespace

int WordDistance(std::wstring_view left, std::wstring_view right) {
  constexpr int kFar = kMostChanges + 1;
  if (left.size() > right.size()) std::swap(left, right);
  if (right.size() > kLongest || right.size() - left.size() > kMostChanges) return kFar;
  using Row = std::array<int, kLongest + 1>;
  std::array<Row, 3> rows;
  Row* before = &rows[0];
  Row* last = &rows[1];
  Row* row = &rows[2];
  for (std::size_t j = 0; j <= right.size(); ++j) (*last)[j] = static_cast<int>(j);
  for (std::size_t i = 1; i <= left.size(); ++i) {
    // Outside a band around the diagonal everything is too far.
    const std::size_t from = i > kMostChanges ? i - kMostChanges : 1;
    const std::size_t to = std::min(right.size(), i + kMostChanges);
    (*row)[from - 1] = from == 1 ? static_cast<int>(i) : kFar;
    if (to == i + kMostChanges) (*last)[to] = kFar;
    int least = (*row)[from - 1];
    for (std::size_t j = from; j <= to; ++j) {
      const int replaced = (*last)[j - 1] + (left[i - 1] == right[j - 1] ? 0 : 1);
      int best = std::min({replaced, (*last)[j] + 1, (*row)[j - 1] + 1});
      if (i > 1 && j > 1 && left[i - 1] == right[j - 2] && left[i - 2] == right[j - 1]) {
        best = std::min(best, (*before)[j - 2] + 1);
      }
      (*row)[j] = best;
      least = std::min(least, best);
    }
    if (least >= kFar) return kFar;
    Row* const oldest = before;
    before = last;
    last = row;
    row = oldest;
  }
  return std::min((*last)[right.size()], kFar);
}

std::vector<std::uint32_t> NearestWords(std::wstring_view folded, const WordList& list,
                                        std::size_t most) {
  if (folded.empty() || folded.size() > kLongest) return {};
  const std::uint32_t letters = LettersOf(folded);
  const std::uint32_t key = PhoneticKey(folded);
  const bool possessive = folded.find(L'\'') != std::wstring_view::npos;
  std::vector<Nearness> near;
  std::wstring word;
  for (std::size_t i = 0; i < list.count(); ++i) {
    const std::uint32_t own = list.Letters(i);
    if (!MayBeNear(letters, own)) continue;
    const std::string_view bytes = list.Bytes(i);
    // A unit takes one to three bytes.
    const std::size_t most_bytes = (list.IsPlain(i) ? 1 : 3) * (folded.size() + kMostChanges);
    if (bytes.size() + kMostChanges < folded.size() || bytes.size() > most_bytes) continue;
    if (list.IsPlain(i)) {
      word.assign(bytes.begin(), bytes.end());
    } else {
      word = FoldCase(WideFromUtf8(bytes));
    }
    const int distance = WordDistance(folded, word);
    if (distance > kMostChanges) continue;
    std::uint32_t rank = !possessive && word.ends_with(L"'s") ? 1 : 0;
    for (const bool worse : {distance > 1, distance > 0, list.IsExact(i), own != letters,
                             word.front() != folded.front(), PhoneticKey(word) != key}) {
      rank = rank * 2 + (worse ? 1 : 0);
    }
    near.push_back({rank, static_cast<std::uint32_t>(i)});
  }
  const auto count = static_cast<std::ptrdiff_t>(std::min(most, near.size()));
  std::ranges::partial_sort(near, near.begin() + count);
  std::vector<std::uint32_t> indices;
  for (std::ptrdiff_t i = 0; i < count; ++i)
    indices.push_back(near[static_cast<std::size_t>(i)].index);
  return indices;
}

}  // namespace varnel
