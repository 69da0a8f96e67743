#include "base/canvas.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace varnel {
namespace {

constexpr std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}

}  // namespace

Rect Canvas::Load(Image pixels) {
  EndStroke();
  history_.Forget();
  const int width = std::min(pixels.width(), kLongestSide);
  const int height = std::min(pixels.height(), kLongestSide);
  if (width == pixels.width() && height == pixels.height()) {
    pixels_ = std::move(pixels);
  } else {
    pixels_ = Image(width, height);
    for (int y = 0; y < height; ++y) {
      std::ranges::copy(pixels.Row(y).first(At(width)), pixels_.Row(y).begin());
    }
  }
  return Whole();
}

Rect Canvas::Grow(Size least) {
  const Size grown{std::clamp(least.width, std::max(pixels_.width(), 1), kLongestSide),
                   std::clamp(least.height, std::max(pixels_.height(), 1), kLongestSide)};
  if (grown == size()) return {};
  KeepStroke();
  Image larger(grown.width, grown.height, ground_);
  for (int y = 0; y < pixels_.height(); ++y) {
    std::ranges::copy(pixels_.Row(y), larger.Row(y).begin());
  }
  pixels_ = std::move(larger);
  return Whole();
}

void Canvas::BeginStroke(std::uint32_t pixel, PenTip tip) {
  EndStroke();
  drawing_ = true;
  pen_pixel_ = pixel;
  pen_tip_ = tip;
}

void Canvas::EndStroke() {
  KeepStroke();
  drawing_ = false;
}

// Makes a step of what the stroke has drawn so far.
void Canvas::KeepStroke() {
  std::vector<CanvasTile> tiles;
  tiles.reserve(stroke_.size());
  for (StrokeTile& tile : stroke_) {
    stroke_index_[IndexAt(tile.area.left / kTile, tile.area.top / kTile)] = 0;
    tiles.emplace_back(tile.area, std::move(tile.before));
  }
  stroke_.clear();
  history_.Add(std::move(tiles), pixels_);
}

std::size_t Canvas::IndexAt(int across, int down) {
  return At(down * kTilesAcross + across);
}

Rect Canvas::TileArea(int across, int down) const {
  return Intersection(RectAt({across * kTile, down * kTile}, {kTile, kTile}), Whole());
}

std::vector<CanvasTile> Canvas::TilesOf(const Rect& area) const {
  std::vector<CanvasTile> tiles;
  for (int down = area.top / kTile; down * kTile < area.bottom; ++down) {
    for (int across = area.left / kTile; across * kTile < area.right; ++across) {
      tiles.emplace_back(TileArea(across, down), pixels_);
    }
  }
  return tiles;
}

Rect Canvas::DrawSegment(PointF from, PointF to) {
  if (!drawing_) return {};
  const Capsule capsule(from, to, pen_tip_);
  const Rect changed = Intersection(capsule.bounds(), Whole());
  for (int down = changed.top / kTile; down * kTile < changed.bottom; ++down) {
    for (int across = changed.left / kTile; across * kTile < changed.right; ++across) {
      DrawInTile(capsule, across, down);
    }
  }
  return changed;
}

Canvas::StrokeTile& Canvas::TileOfStroke(int across, int down) {
  stroke_index_.resize(At(kTilesAcross * kTilesAcross));
  int& index = stroke_index_[IndexAt(across, down)];
  if (index == 0) {
    index = static_cast<int>(stroke_.size()) + 1;
    StrokeTile& tile = stroke_.emplace_back();
    tile.area = TileArea(across, down);
    const std::size_t width = At(tile.area.width());
    tile.before.reserve(width * At(tile.area.height()));
    for (int y = tile.area.top; y < tile.area.bottom; ++y) {
      const auto row = pixels_.Row(y).subspan(At(tile.area.left), width);
      tile.before.insert(tile.before.end(), row.begin(), row.end());
    }
    tile.covered.assign(tile.before.size(), 0);
  }
  return stroke_[At(index - 1)];
}

void Canvas::DrawInTile(const Capsule& capsule, int across, int down) {
  const Rect part = Intersection(TileArea(across, down), capsule.bounds());
  StrokeTile* tile = nullptr;
  for (int y = part.top; y < part.bottom; ++y) {
    const Capsule::RowReach reach = capsule.Reach(y);
    const int left = std::max(part.left, reach.any.left);
    const int right = std::min(part.right, reach.any.right);
    if (left >= right) continue;
    const int whole_left = std::clamp(reach.whole.left, left, right);
    const int whole_right = std::clamp(reach.whole.right, whole_left, right);
    if (!tile) tile = &TileOfStroke(across, down);
    DrawEdge(capsule, *tile, y, left, whole_left);
    FillRow(*tile, y, whole_left, whole_right - whole_left);
    DrawEdge(capsule, *tile, y, whole_right, right);
  }
}

std::size_t Canvas::StrokeTile::PlaceOf(int x, int y) const {
  return At(y - area.top) * At(area.width()) + At(x - area.left);
}

void Canvas::DrawEdge(const Capsule& capsule, StrokeTile& tile, int y, int left, int right) {
  if (left == right) return;
  std::uint8_t coverage[kTile + Capsule::kLanes];
  const std::size_t count = At(right - left);
  const std::size_t groups = (count + Capsule::kLanes - 1) / Capsule::kLanes;
  capsule.Cover(left, y, std::span(coverage).first(groups * Capsule::kLanes));
  const std::uint32_t* const before = tile.before.data() + tile.PlaceOf(left, y);
  std::uint8_t* const covered = tile.covered.data() + tile.PlaceOf(left, y);
  std::uint32_t* const pixel = pixels_.Row(y).data() + left;
  for (std::size_t i = 0; i < count; ++i) {
    if (coverage[i] <= covered[i]) continue;
    covered[i] = coverage[i];
    pixel[i] = MixPixels(before[i], pen_pixel_, coverage[i]);
  }
}

void Canvas::FillRow(StrokeTile& tile, int y, int left, int count) {
  if (count == 0) return;
  std::fill_n(tile.covered.data() + tile.PlaceOf(left, y), count, std::uint8_t{255});
  std::fill_n(pixels_.Row(y).data() + left, count, pen_pixel_);
}

Rect Canvas::Merge(const Image& object, Point corner) {
  EndStroke();
  // An object that begins too far off to be seen must not overflow the sum of place and size.
  if (corner.x > kLongestSide || corner.y > kLongestSide) return {};
  const Rect area = Intersection(RectAt(corner, {object.width(), object.height()}), Whole());
  if (area.empty()) return {};
  std::vector<CanvasTile> before = TilesOf(area);
  for (int y = area.top; y < area.bottom; ++y) {
    const std::uint32_t* const above = object.Row(y - corner.y).data() + (area.left - corner.x);
    std::uint32_t* const row = pixels_.Row(y).data() + area.left;
    for (int x = 0; x < area.width(); ++x) row[x] = PixelOver(row[x], above[x]);
  }
  history_.Add(std::move(before), pixels_);
  return area;
}

Rect Canvas::Clear() {
  EndStroke();
  std::vector<CanvasTile> before = TilesOf(Whole());
  pixels_.Fill(ground_);
  history_.Add(std::move(before), pixels_);
  return Whole();
}

Rect Canvas::Undo() {
  EndStroke();
  return history_.Undo(pixels_);
}

Rect Canvas::Redo() {
  EndStroke();
  return history_.Redo(pixels_);
}

}  // namespace varnel
