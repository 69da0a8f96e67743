#include "base/halo.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

#include "base/pixel_mix.h"

namespace varnel {
namespace {

// Distances count sixteenths of a pixel. A distance straight up or down to ink is kept as whole
// pixels in the upper bits and the uncovered share of the inked pixel in the lower four.
constexpr int kUnit = 16;
using Distances = std::vector<std::uint16_t>;

double SaneLength(double length) {
  return length > 0 ? std::min(length, HaloShape::kLongest) : 0;
}

class HaloTables {
 public:
  explicit HaloTables(const HaloShape& shape)
      : reach_(HaloMargin(shape) + 1), side_(static_cast<std::size_t>(reach_) + 1) {
    FillStrengths(SaneLength(shape.radius), SaneLength(shape.softness));
    for (std::size_t across = 0; across < side_; ++across) {
      for (std::size_t down = 0; down < side_; ++down) {
        const double length = kUnit * std::hypot(across, down);
        lengths_.push_back(static_cast<std::uint16_t>(std::lround(length)));
      }
    }
  }

  // Whole pixels; nothing at this distance or farther has a halo.
  int reach() const { return reach_; }
  int end() const { return reach_ * kUnit; }
  std::uint8_t Strength(int distance) const {
    return distance < end() ? strengths_[static_cast<std::size_t>(distance)] : 0;
  }
  // The distance to ink in a column `across` pixels away which there is `down` away.
  int Distance(int across, std::uint16_t down) const {
    return lengths_[static_cast<std::size_t>(across) * side_ + down / kUnit] + down % kUnit;
  }

 private:
  void FillStrengths(double radius, double softness) {
    for (int distance = 0; distance < end(); ++distance) {
      const double beyond = static_cast<double>(distance) / kUnit - radius;
      const double faded = beyond <= 0 ? 0 : beyond < softness ? beyond / softness : 1;
      const double kept = 1 - faded * faded * (3 - 2 * faded);  // level at both ends
      strengths_.push_back(static_cast<std::uint8_t>(std::lround(255 * kept)));
    }
  }

  int reach_;
  std::size_t side_;
  std::vector<std::uint8_t> strengths_;
  Distances lengths_;
};

// For every pixel the distance to the nearest ink straight above or below, or `end`.
Raster<std::uint16_t> DistancesDown(const Mask& text, int end) {
  Raster<std::uint16_t> result(text.width(), text.height());
  Distances carried(static_cast<std::size_t>(text.width()));
  const auto carry = [&](std::size_t x, int here) {
    const int nearest = std::min(carried[x] + kUnit, here);
    return carried[x] = static_cast<std::uint16_t>(std::min(nearest, end));
  };
  std::fill(carried.begin(), carried.end(), static_cast<std::uint16_t>(end));
  for (int y = 0; y < text.height(); ++y) {
    const auto ink = text.Row(y);
    const auto row = result.Row(y);
    for (std::size_t x = 0; x < row.size(); ++x) {
      row[x] = carry(x, ink[x] < kUnit ? end : (255 - ink[x]) / kUnit);
    }
  }
  std::fill(carried.begin(), carried.end(), static_cast<std::uint16_t>(end));
  for (int y = text.height() - 1; y >= 0; --y) {
    const auto row = result.Row(y);
    for (std::size_t x = 0; x < row.size(); ++x) row[x] = carry(x, row[x]);
  }
  return result;
}

// The nearest ink seen from the middle of `columns`, which holds the distances of 2 * reach - 1
// columns side by side. Farther columns cannot win once they lie beyond the best one found.
int NearestInk(const std::uint16_t* middle, const HaloTables& tables) {
  int best = *middle;
  for (int across = 1; across < tables.reach() && across * kUnit < best; ++across) {
    best = std::min(
        {best, tables.Distance(across, middle[-across]), tables.Distance(across, middle[across])});
  }
  return best;
}

void HaloRow(std::span<const std::uint16_t> down, const HaloTables& tables, Distances& padded,
             std::span<std::uint8_t> halo) {
  const auto reach = static_cast<std::size_t>(tables.reach());
  std::copy(down.begin(), down.end(), padded.begin() + tables.reach());
  const auto live = [&](std::size_t at) { return padded[at] < tables.end() ? 1 : 0; };
  int live_columns = 0;
  for (std::size_t at = 0; at < 2 * reach; ++at) live_columns += live(at);
  for (std::size_t x = 0; x < halo.size(); ++x) {
    live_columns += live(x + 2 * reach);
    if (live_columns > 0) {
      halo[x] = tables.Strength(NearestInk(&padded[x + reach], tables));
    }
    live_columns -= live(x);
  }
}

constexpr std::uint32_t kOpacity = 0xFF000000;

void Lay(Image& pixels, Point corner, const Mask& mask, std::uint32_t pixel) {
  const long long left = std::max(0LL, -static_cast<long long>(corner.x));
  const long long right =
      std::min<long long>(mask.width(), static_cast<long long>(pixels.width()) - corner.x);
  for (int y = 0; y < mask.height() && left < right; ++y) {
    const long long target = static_cast<long long>(corner.y) + y;
    if (target < 0 || target >= pixels.height()) continue;
    const auto covered = mask.Row(y);
    const auto row = pixels.Row(static_cast<int>(target));
    for (long long x = left; x < right; ++x) {
      const std::uint8_t coverage = covered[static_cast<std::size_t>(x)];
      auto& below = row[static_cast<std::size_t>(corner.x + x)];
      if (coverage != 0)
        below = MixPixels(below, (below & kOpacity) | (pixel & ~kOpacity), coverage);
    }
  }
}

}  // namespace

int HaloMargin(const HaloShape& shape) {
  return static_cast<int>(std::ceil(SaneLength(shape.radius) + SaneLength(shape.softness)));
}

Mask HaloMask(const Mask& text, const HaloShape& shape) {
  const HaloTables tables(shape);
  const Raster<std::uint16_t> down = DistancesDown(text, tables.end());
  Mask halo(text.width(), text.height());
  Distances padded(static_cast<std::size_t>(text.width() + 2 * tables.reach() + 1),
                   static_cast<std::uint16_t>(tables.end()));
  for (int y = 0; y < text.height(); ++y) HaloRow(down.Row(y), tables, padded, halo.Row(y));
  return halo;
}

void CompositeText(Image& pixels, Point corner, const Mask& text, const Mask& halo,
                   std::uint32_t text_pixel, std::uint32_t halo_pixel) {
  Lay(pixels, corner, halo, halo_pixel);
  Lay(pixels, corner, text, text_pixel);
}

}  // namespace varnel
