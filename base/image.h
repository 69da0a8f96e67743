// Pictures in memory: a rectangle of values, row by row from the top.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "base/geometry.h"

namespace varnel {

// Every access is safe: reading outside gives zero, writing outside does nothing.
template <typename Value>
class Raster {
 public:
  static constexpr int kLongestSide = 16384;
  static constexpr long long kMostValues = 64LL * 1024 * 1024;

  Raster() = default;
  // `width` x `height` values, all `fill`. A side under 1 or over kLongestSide, or more than
  // kMostValues in all, gives an empty raster (0 x 0).
  Raster(int width, int height, Value fill = {}) {
    if (width < 1 || height < 1 || width > kLongestSide || height > kLongestSide) return;
    if (static_cast<long long>(width) * height > kMostValues) return;
    width_ = width;
    height_ = height;
    values_.assign(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), fill);
  }

  int width() const { return width_; }
  int height() const { return height_; }
  bool empty() const { return values_.empty(); }
  bool Contains(int x, int y) const { return x >= 0 && y >= 0 && x < width_ && y < height_; }

  Value At(int x, int y) const { return Contains(x, y) ? values_[Index(x, y)] : Value{}; }
  void Set(int x, int y, Value value) {
    if (Contains(x, y)) values_[Index(x, y)] = value;
  }
  void Fill(Value value) { std::fill(values_.begin(), values_.end(), value); }
  void Fill(const Rect& rect, Value value) {
    const int left = std::max(rect.left, 0);
    const int right = std::min(rect.right, width_);
    if (left >= right) return;
    for (int y = std::max(rect.top, 0); y < std::min(rect.bottom, height_); ++y) {
      const auto row = Row(y);
      std::fill(row.begin() + left, row.begin() + right, value);
    }
  }

  // The values of one row, empty when there is no such row.
  std::span<Value> Row(int y) {
    return Contains(0, y) ? All().subspan(Index(0, y), width_) : std::span<Value>();
  }
  std::span<const Value> Row(int y) const {
    return Contains(0, y) ? All().subspan(Index(0, y), width_) : std::span<const Value>();
  }
  std::span<Value> All() { return values_; }
  std::span<const Value> All() const { return values_; }

  bool operator==(const Raster&) const = default;

 private:
  std::size_t Index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(x);
  }

  int width_ = 0;
  int height_ = 0;
  std::vector<Value> values_;
};

// Pixels hold blue in the low byte, then green, red and opacity: the layout of a 32-bit surface.
using Image = Raster<std::uint32_t>;
// How much of each pixel is covered: 0 nothing to 255 all.
using Mask = Raster<std::uint8_t>;

// The opaque pixel of a colour with red in the low byte; its top byte is ignored.
constexpr std::uint32_t OpaquePixel(std::int32_t colour) {
  const auto bits = static_cast<std::uint32_t>(colour);
  return 0xFF000000U | (bits & 0xFF) << 16 | (bits & 0xFF00) | (bits >> 16 & 0xFF);
}

}  // namespace varnel
