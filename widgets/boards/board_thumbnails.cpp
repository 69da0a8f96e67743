#include "widgets/boards/board_thumbnails.h"

#include <algorithm>
#include <utility>

#include "base/resample.h"

namespace varnel {

namespace {

constexpr std::uint32_t kWhitePixel = 0xFFFFFFFF;

// Around all that is not white; empty on an empty board.
Rect InkOf(const Image& board) {
  const auto is_ink = [](std::uint32_t pixel) { return pixel != kWhitePixel; };
  Rect ink;
  for (int y = 0; y < board.height(); ++y) {
    const auto row = board.Row(y);
    const auto first = std::ranges::find_if(row, is_ink);
    if (first == row.end()) continue;
    const auto last = std::find_if(row.rbegin(), row.rend(), is_ink);
    ink = Union(ink, {static_cast<int>(first - row.begin()), y, static_cast<int>(row.rend() - last),
                      y + 1});
  }
  return ink;
}

// `from` to `to` made at least `least` long about its middle, within 0 to `length`.
AxisMap::Stop Stretched(int from, int to, int least, int length) {
  const int wanted = std::min(std::max(to - from, least), length);
  const int start = std::clamp((from + to - wanted) / 2, 0, length - wanted);
  return {start, start + wanted};
}

// Thin lines are pale once they are small: everything is drawn farther away from white.
std::uint32_t Strengthened(std::uint32_t pixel, double strength) {
  std::uint32_t strong = 0xFF000000;
  for (int shift = 0; shift < 24; shift += 8) {
    const int away = 255 - static_cast<int>(pixel >> shift & 0xFF);
    const int kept = 255 - std::min(255, static_cast<int>(away * strength));
    strong |= static_cast<std::uint32_t>(kept) << shift;
  }
  return strong;
}

}  // namespace

Image ThumbnailOf(const Image& board, Size most) {
  const Rect ink = InkOf(board);
  const int margin = std::max(2, std::max(ink.width(), ink.height()) / 16);
  const auto [left, right] =
      Stretched(ink.left - margin, ink.right + margin, board.width() / 2, board.width());
  const auto [top, bottom] =
      Stretched(ink.top - margin, ink.bottom + margin, board.height() / 2, board.height());
  if (right <= left || bottom <= top) return {};
  const double scale = std::min({static_cast<double>(most.width) / (right - left),
                                 static_cast<double>(most.height) / (bottom - top), 1.0});
  Image shown(std::max(1, static_cast<int>((right - left) * scale)),
              std::max(1, static_cast<int>((bottom - top) * scale)));
  Resample(board, AxisMap({{0, left}, {shown.width(), right}}),
           AxisMap({{0, top}, {shown.height(), bottom}}), shown,
           {0, 0, shown.width(), shown.height()});
  const double strength = std::clamp(0.35 / scale, 1.0, 3.0);
  for (std::uint32_t& pixel : shown.All()) pixel = Strengthened(pixel, strength);
  return shown;
}

const Image* BoardThumbnails::Find(const std::wstring& name, const FileStamp& stamp) {
  const auto found = kept_.find(name);
  const bool known = found != kept_.end();
  if (!known || found->second.stamp != stamp) {
    std::erase_if(wishes_, [&](const Wish& wish) { return wish.name == name; });
    wishes_.push_back({name, stamp});
  }
  return known ? &found->second.picture : nullptr;
}

std::optional<BoardThumbnails::Wish> BoardThumbnails::Next() const {
  return wishes_.empty() ? std::nullopt : std::optional(wishes_.back());
}

void BoardThumbnails::Put(const Wish& wish, Image picture) {
  std::erase(wishes_, wish);
  if (kept_.size() >= kMost) kept_.clear();
  kept_[wish.name] = {wish.stamp, std::move(picture)};
}

void BoardThumbnails::Forget() {
  kept_.clear();
  wishes_.clear();
}

}  // namespace varnel
