#include "widgets/notes/pages/text_levels.h"

#include <algorithm>
#include <numeric>

#include "base/letters.h"

namespace varnel {
namespace {

enum class Direction : std::uint8_t { kLeft, kRight, kNumber, kNeutral, kMark };

bool IsRightToLeft(char32_t point) {
  if (point < 0x590) return false;
  return point <= 0x8FF || point == 0x200F || (point >= 0xFB1D && point <= 0xFDFF) ||
         (point >= 0xFE70 && point <= 0xFEFC) || (point >= 0x10800 && point <= 0x10FFF) ||
         (point >= 0x1E800 && point <= 0x1EFFF);
}

Direction DirectionOf(char32_t point) {
  const CharacterKind kind = KindOf(point);
  const bool arabic_digit =
      (point >= 0x660 && point <= 0x669) || (point >= 0x6F0 && point <= 0x6F9);
  if (arabic_digit || (point >= '0' && point <= '9')) return Direction::kNumber;
  if (kind == CharacterKind::kMark) return Direction::kMark;
  if (IsRightToLeft(point)) return Direction::kRight;
  return kind == CharacterKind::kOther ? Direction::kNeutral : Direction::kLeft;
}

std::vector<Direction> DirectionsOf(std::wstring_view text) {
  std::vector<Direction> directions(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Character one = CharacterAt(text, at);
    Direction direction = DirectionOf(one.point);
    if (direction == Direction::kMark) {
      direction = at == 0 ? Direction::kNeutral : directions[at - 1];
    }
    for (std::size_t end = at + one.units; at < end; ++at) directions[at] = direction;
  }
  return directions;
}

// Numbers after letters that run left to right run with them; one sign between two digits belongs
// to the number.
void ResolveNumbers(std::wstring_view text, Direction base, std::vector<Direction>& directions) {
  constexpr std::wstring_view kWithin = L".,:/-+";
  Direction strong = base;
  for (std::size_t at = 0; at < directions.size(); ++at) {
    Direction& direction = directions[at];
    if (direction == Direction::kLeft || direction == Direction::kRight) strong = direction;
    if (direction == Direction::kNumber && strong == Direction::kLeft) direction = strong;
    const bool within = direction == Direction::kNeutral && at > 0 && at + 1 < text.size() &&
                        directions[at - 1] == Direction::kNumber &&
                        directions[at + 1] == Direction::kNumber &&
                        kWithin.find(text[at]) != std::wstring_view::npos;
    if (within) direction = Direction::kNumber;
  }
}

// Neutral stretches between two of one direction go with them, others with the paragraph.
void ResolveNeutrals(std::wstring_view text, Direction base, std::vector<Direction>& directions) {
  const auto strong = [&](std::size_t at) {
    return directions[at] == Direction::kNumber ? Direction::kRight : directions[at];
  };
  for (std::size_t begin = 0; begin < directions.size();) {
    if (directions[begin] != Direction::kNeutral) {
      ++begin;
      continue;
    }
    std::size_t end = begin;
    bool tab = false;
    for (; end < directions.size() && directions[end] == Direction::kNeutral; ++end) {
      tab = tab || text[end] == L'\t';
    }
    const Direction before = begin == 0 ? base : strong(begin - 1);
    const Direction after = end == directions.size() ? base : strong(end);
    const Direction resolved = before == after && !tab ? before : base;
    std::fill(directions.begin() + static_cast<std::ptrdiff_t>(begin),
              directions.begin() + static_cast<std::ptrdiff_t>(end), resolved);
    begin = end;
  }
}

}  // namespace

bool HasRightToLeft(std::wstring_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] >= 0x590 && IsRightToLeft(CharacterAt(text, at).point)) return true;
  }
  return false;
}

std::vector<std::uint8_t> LevelsOf(std::wstring_view text, bool right_to_left) {
  const Direction base = right_to_left ? Direction::kRight : Direction::kLeft;
  std::vector<Direction> directions = DirectionsOf(text);
  ResolveNumbers(text, base, directions);
  ResolveNeutrals(text, base, directions);
  std::vector<std::uint8_t> levels(text.size());
  std::ranges::transform(directions, levels.begin(), [&](Direction direction) -> std::uint8_t {
    if (direction == Direction::kRight) return 1;
    return direction == Direction::kLeft && !right_to_left ? 0 : 2;
  });
  return levels;
}

std::vector<std::size_t> VisualOrder(std::span<const std::uint8_t> levels) {
  std::vector<std::size_t> order(levels.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  // From the highest level to 1, every stretch of at least that level is turned round.
  for (std::uint8_t level = 2; level > 0; --level) {
    for (std::size_t begin = 0; begin < order.size(); ++begin) {
      std::size_t end = begin;
      while (end < order.size() && levels[order[end]] >= level) ++end;
      std::reverse(order.begin() + static_cast<std::ptrdiff_t>(begin),
                   order.begin() + static_cast<std::ptrdiff_t>(end));
      begin = std::max(begin, end);
    }
  }
  return order;
}

}  // namespace varnel
