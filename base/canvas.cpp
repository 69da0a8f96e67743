#include "base/canvas.h"

#include <emmintrin.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <utility>

namespace varnel {
namespace {

// The most pixels for which memory is kept until the next stroke.
constexpr std::size_t kMostKept = 1U << 18;

constexpr std::size_t At(int index) {
  return static_cast<std::size_t>(index);
}

// MixPixels of four pixels, each by its share.
inline void MixFour(const std::uint32_t* below, std::uint32_t above, const std::uint8_t* shares,
                    std::uint32_t* mixed) {
  const __m128i none = _mm_setzero_si128();
  std::int32_t four = 0;
  std::memcpy(&four, shares, sizeof four);
  if (four == -1) {  // each the whole
    std::fill_n(mixed, sizeof four, above);
    return;
  }
  const __m128i bytes = _mm_cvtsi32_si128(four);
  const __m128i twice = _mm_unpacklo_epi8(bytes, bytes);
  const __m128i per_channel = _mm_unpacklo_epi16(twice, twice);
  const __m128i under = _mm_loadu_si128(reinterpret_cast<const __m128i*>(below));
  const __m128i over = _mm_unpacklo_epi8(_mm_set1_epi32(static_cast<int>(above)), none);
  const auto mix = [&](__m128i share, __m128i channels) {
    const __m128i weight = _mm_add_epi16(share, _mm_srli_epi16(share, 7));
    const __m128i rest = _mm_sub_epi16(_mm_set1_epi16(256), weight);
    const __m128i sum =
        _mm_add_epi16(_mm_mullo_epi16(channels, rest), _mm_mullo_epi16(over, weight));
    return _mm_srli_epi16(_mm_add_epi16(sum, _mm_set1_epi16(128)), 8);
  };
  const __m128i low = mix(_mm_unpacklo_epi8(per_channel, none), _mm_unpacklo_epi8(under, none));
  const __m128i high = mix(_mm_unpackhi_epi8(per_channel, none), _mm_unpackhi_epi8(under, none));
  _mm_storeu_si128(reinterpret_cast<__m128i*>(mixed), _mm_packus_epi16(low, high));
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
  for (std::size_t i = 0; i < stroke_.size(); ++i) {
    const auto& [area, touched] = stroke_[i];
    stroke_index_[IndexAt(area.left / kTile, area.top / kTile)] = 0;
    const std::size_t first = At((touched.top - area.top) * kTile + touched.left - area.left);
    tiles.emplace_back(touched, before_.data() + i * kTilePixels + first, kTile);
  }
  stroke_.clear();
  before_.clear();
  covered_.clear();
  if (before_.capacity() > kMostKept) {
    before_.shrink_to_fit();
    covered_.shrink_to_fit();
  }
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
    const int top = std::max(changed.top, down * kTile);
    Capsule::RowReach rows;
    capsule.ReachInRows(top, std::min(changed.bottom, (down + 1) * kTile) - top, rows);
    for (int across = changed.left / kTile; across * kTile < changed.right; ++across) {
      DrawInTile(capsule, rows, across, down);
    }
  }
  return changed;
}

std::size_t Canvas::TileOfStroke(int across, int down) {
  stroke_index_.resize(At(kTilesAcross * kTilesAcross));
  int& index = stroke_index_[IndexAt(across, down)];
  if (index == 0) {
    const Rect area = TileArea(across, down);
    const std::size_t width = At(area.width());
    for (int y = area.top; y < area.bottom; ++y) {
      const std::uint32_t* const row = pixels_.Row(y).data() + area.left;
      before_.insert(before_.end(), row, row + width);
      before_.insert(before_.end(), At(kTile) - width, 0);
    }
    stroke_.push_back({area, {}});
    index = static_cast<int>(stroke_.size());
    before_.resize(stroke_.size() * kTilePixels);
    covered_.resize(stroke_.size() * kTilePixels);
  }
  return At(index - 1);
}

void Canvas::DrawInTile(const Capsule& capsule, const Capsule::RowReach& rows, int across,
                        int down) {
  const Rect part = Intersection(TileArea(across, down), capsule.bounds());
  const Point corner{across * kTile, down * kTile};
  Capsule::SquareReach reach;
  if (part.empty() || !capsule.Reach(corner, part, rows, reach)) return;
  const std::size_t tile = TileOfStroke(across, down);
  stroke_[tile].touched = Union(stroke_[tile].touched, part);
  capsule.Raise(corner, part, reach,
                std::span<std::uint8_t, kTilePixels>(&covered_[tile * kTilePixels], kTilePixels));
  for (int y = part.top; y < part.bottom; ++y) {
    const std::size_t at = At(y - part.top);
    MixRow(tile, y, reach.left[at], reach.right[at]);
  }
}

// The columns count from the tile's left.
inline void Canvas::MixRow(std::size_t tile, int y, int left, int right) {
  constexpr int kGroup = Capsule::kLanes;
  const Rect& area = stroke_[tile].area;
  const int width = area.width();
  const std::size_t row = tile * kTilePixels + At((y - area.top) * kTile);
  const std::uint8_t* const covered = covered_.data() + row;
  const std::uint32_t* const before = before_.data() + row;
  std::uint32_t* const pixels = pixels_.Row(y).data() + area.left;
  if (width < kGroup) {
    for (int x = left; x < right; ++x) pixels[x] = MixPixels(before[x], pen_pixel_, covered[x]);
    return;
  }
  for (int next = left; next < right; next += kGroup) {
    const int x = std::min(next, width - kGroup);
    MixFour(before + x, pen_pixel_, covered + x, pixels + x);
  }
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
