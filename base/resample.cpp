#include "base/resample.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

namespace varnel {
namespace {

constexpr int kOne = 1 << 14;  // a weight of all
// Sums between the passes keep eight more bits than a channel has.
constexpr int kKeptShift = 6;
constexpr int kLastShift = 22;

// The pixels of the picture that one shown pixel is made of, and their weights.
struct Taps {
  int first = 0;
  std::vector<int> weights;  // kOne together; none when the pixel shows nothing
};

double CatmullRom(double at) {
  const double t = std::fabs(at);
  if (t < 1) return 1 + t * t * (1.5 * t - 2.5);
  if (t < 2) return 2 + t * (-4 + t * (2.5 - 0.5 * t));
  return 0;
}

Taps TapsOf(const AxisMap& axis, int shown, int kept_size) {
  const AxisMap::Part& part = axis.PartAt(shown + 0.5);
  const double per_pixel = part.kept_length / part.shown_length;
  const double centre = part.kept + (shown + 0.5 - part.shown) * per_pixel;
  const double width = std::max(1.0, per_pixel);
  const double begin = std::max({0.0, part.kept, std::ceil(centre - 2 * width - 0.5)});
  const double end = std::min({static_cast<double>(kept_size), part.kept + part.kept_length,
                               std::floor(centre + 2 * width - 0.5) + 1});
  Taps taps;
  const bool outside = shown < part.shown || shown >= part.shown + part.shown_length;
  if (begin >= end || outside) return taps;
  taps.first = static_cast<int>(begin);
  std::vector<double> exact;
  double sum = 0;
  for (double pixel = begin; pixel < end; ++pixel) {
    exact.push_back(CatmullRom((pixel + 0.5 - centre) / width));
    sum += exact.back();
  }
  int left = kOne;
  std::size_t largest = 0;
  for (std::size_t i = 0; i < exact.size(); ++i) {
    taps.weights.push_back(static_cast<int>(std::lround(exact[i] / sum * kOne)));
    left -= taps.weights.back();
    if (exact[i] > exact[largest]) largest = i;
  }
  taps.weights[largest] += left;
  return taps;
}

std::vector<Taps> AllTaps(const AxisMap& axis, int from, int to, int kept_size) {
  std::vector<Taps> all;
  for (int shown = from; shown < to; ++shown) all.push_back(TapsOf(axis, shown, kept_size));
  return all;
}

using Sums = std::array<int, 4>;

void AddWeighted(Sums& sums, std::uint32_t pixel, int weight) {
  sums[0] += static_cast<int>(pixel & 0xFF) * weight;
  sums[1] += static_cast<int>(pixel >> 8 & 0xFF) * weight;
  sums[2] += static_cast<int>(pixel >> 16 & 0xFF) * weight;
  sums[3] += static_cast<int>(pixel >> 24) * weight;
}

// No colour may exceed the opacity.
std::uint32_t PixelOf(const Sums& sums) {
  const auto channel = [](int sum, int most) {
    return static_cast<std::uint32_t>(
        std::clamp((sum + (1 << (kLastShift - 1))) >> kLastShift, 0, most));
  };
  const std::uint32_t opacity = channel(sums[3], 255);
  const auto most = static_cast<int>(opacity);
  return opacity << 24 | channel(sums[2], most) << 16 | channel(sums[1], most) << 8 |
         channel(sums[0], most);
}

class Resampler {
 public:
  Resampler(const Image& kept, std::vector<Taps> columns)
      : kept_(kept), columns_(std::move(columns)) {
    for (const Taps& taps : columns_) {
      if (taps.weights.empty()) continue;
      if (left_ == right_) left_ = taps.first;
      left_ = std::min(left_, taps.first);
      right_ = std::max(right_, taps.first + static_cast<int>(taps.weights.size()));
    }
    sums_.resize(static_cast<std::size_t>(right_ - left_));
    inked_.resize(static_cast<std::size_t>(kept.height()));
  }

  void ShowRow(const Taps& rows, std::uint32_t* out) {
    Span inked;
    for (std::size_t i = 0; i < rows.weights.size(); ++i) {
      if (rows.weights[i] != 0) inked = Around(inked, InkedPart(rows.first + static_cast<int>(i)));
    }
    if (inked.empty()) {
      std::fill_n(out, columns_.size(), 0U);
      return;
    }
    std::fill(sums_.begin() + inked.from, sums_.begin() + inked.to, Sums{});
    for (std::size_t i = 0; i < rows.weights.size(); ++i) {
      AddRow(rows.first + static_cast<int>(i), rows.weights[i]);
    }
    for (int x = inked.from; x < inked.to; ++x) {
      for (int& sum : sums_[static_cast<std::size_t>(x)]) {
        sum = (sum + (1 << (kKeptShift - 1))) >> kKeptShift;
      }
    }
    for (const Taps& taps : columns_) *out++ = Across(taps, inked);
  }

 private:
  // Columns that are looked at, counted from the first.
  struct Span {
    int from = 0;
    int to = 0;
    bool known = false;
    bool empty() const { return from >= to; }
  };

  static Span Around(const Span& one, const Span& other) {
    if (one.empty()) return other;
    if (other.empty()) return one;
    return {std::min(one.from, other.from), std::max(one.to, other.to), true};
  }

  // Ink covers little of a sheet.
  const Span& InkedPart(int y) {
    Span& span = inked_[static_cast<std::size_t>(y)];
    if (span.known) return span;
    const auto row = kept_.Row(y).subspan(static_cast<std::size_t>(left_), sums_.size());
    // Most rows have none, which is soonest seen of all pixels together.
    std::uint32_t any = 0;
    for (const std::uint32_t pixel : row) any |= pixel;
    span = {0, 0, true};
    if (any == 0) return span;
    const auto is_ink = [](std::uint32_t pixel) { return pixel != 0; };
    const auto first = std::ranges::find_if(row, is_ink);
    const auto last = std::find_if(row.rbegin(), std::make_reverse_iterator(first), is_ink);
    span = {static_cast<int>(first - row.begin()), static_cast<int>(row.rend() - last), true};
    return span;
  }

  void AddRow(int y, int weight) {
    const Span& span = InkedPart(y);
    if (weight == 0 || span.empty()) return;
    const std::uint32_t* const row = kept_.Row(y).data() + left_;
    for (int x = span.from; x < span.to; ++x) {
      AddWeighted(sums_[static_cast<std::size_t>(x)], row[x], weight);
    }
  }

  std::uint32_t Across(const Taps& taps, const Span& inked) const {
    const int first = taps.first - left_;
    const int from = std::max(first, inked.from);
    const int to = std::min(first + static_cast<int>(taps.weights.size()), inked.to);
    if (from >= to) return 0;
    Sums total{};
    for (int x = from; x < to; ++x) {
      const Sums& sums = sums_[static_cast<std::size_t>(x)];
      const int weight = taps.weights[static_cast<std::size_t>(x - first)];
      for (std::size_t c = 0; c < total.size(); ++c) total[c] += sums[c] * weight;
    }
    return PixelOf(total);
  }

  const Image& kept_;
  std::vector<Taps> columns_;
  int left_ = 0, right_ = 0;  // the columns of the picture that are looked at
  std::vector<Sums> sums_;
  std::vector<Span> inked_;  // of every row, once it was looked at
};

}  // namespace

void Resample(const Image& kept, const AxisMap& across, const AxisMap& down, Image& shown,
              const Rect& part) {
  const Rect area = Intersection(part, {0, 0, shown.width(), shown.height()});
  if (area.empty()) return;
  Resampler resampler(kept, AllTaps(across, area.left, area.right, kept.width()));
  for (int y = area.top; y < area.bottom; ++y) {
    resampler.ShowRow(TapsOf(down, y, kept.height()), shown.Row(y).data() + area.left);
  }
}

Image Resampled(const Image& picture, Size size) {
  Image shown(size.width, size.height);
  Resample(picture, AxisMap({{0, 0}, {size.width, picture.width()}}),
           AxisMap({{0, 0}, {size.height, picture.height()}}), shown,
           {0, 0, size.width, size.height});
  return shown;
}

}  // namespace varnel
