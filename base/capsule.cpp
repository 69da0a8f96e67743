#include "base/capsule.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace varnel {
namespace {

constexpr double kFarthest = 1e6;
// Half a pixel's diagonal: no edge farther off than this crosses the pixel.
constexpr float kHalfDiagonal = 0.7072F;
// The least inner radius from which on it pays to tell what is covered wholly.
constexpr float kWideInside = 1.5F;
// The larger part of a normal of length 1 is never less.
constexpr float kLeastOfMost = 0.7071F;

double Clamped(double place) {
  return std::clamp(place, -kFarthest, kFarthest);
}

// Of what an int can hold; the library's own is a call.
int Floor(float place) {
  const int near = static_cast<int>(place);
  return near - (static_cast<float>(near) > place ? 1 : 0);
}

double SaneWidth(double width) {
  return width > 0 ? std::clamp(width, PenTip::kThinnest, PenTip::kThickest) : 1;
}

bool IsFinite(PointF point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

}  // namespace

Capsule::Capsule(PointF from, PointF to, PenTip tip) {
  if (!IsFinite(from) || !IsFinite(to)) return;
  const double width = SaneWidth(tip.width);
  const double height = SaneWidth(tip.height);
  from = {Clamped(from.x), Clamped(from.y)};
  to = {Clamped(to.x), Clamped(to.y)};
  base_ = {static_cast<int>(std::floor(from.x)), static_cast<int>(std::floor(from.y))};
  to_centre_x_ = static_cast<float>(base_.x + 0.5 - from.x);
  to_centre_y_ = static_cast<float>(base_.y + 0.5 - from.y);
  const double across = to.x - from.x;
  const double down = (to.y - from.y) * width / height;
  const double length = std::sqrt(across * across + down * down);
  stretch_ = static_cast<float>(width / height);
  radius_ = static_cast<float>(width / 2);
  length_ = static_cast<float>(length);
  if (length > 0) {
    along_x_ = static_cast<float>(across / length);
    along_y_ = static_cast<float>(down / length);
  }
  const float widest = std::max(1.0F, stretch_);
  end_left_out_ = 1 / (24 * std::max(radius_, 0.25F));
  const float margin = widest * (kHalfDiagonal + end_left_out_);
  outer_ = radius_ + margin;
  inner_ = radius_ - margin;
  if (std::fabs(along_y_) > 1e-4F) per_row_ = 1 / along_y_;
  const double beside = static_cast<double>(outer_);
  const double above = beside / static_cast<double>(stretch_);
  bounds_ = {static_cast<int>(std::floor(std::min(from.x, to.x) - beside)),
             static_cast<int>(std::floor(std::min(from.y, to.y) - above)),
             static_cast<int>(std::ceil(std::max(from.x, to.x) + beside)),
             static_cast<int>(std::ceil(std::max(from.y, to.y) + above))};
}

// Where the line `row` enters and leaves the shape with another radius; in no order when it does
// not meet it.
inline Capsule::Extent Capsule::Within(float row, float radius) const {
  Extent extent{4e6F, -4e6F};
  const auto include = [&](float left, float right) {
    extent = {std::min(extent.left, left), std::max(extent.right, right)};
  };
  const float beyond = row - length_ * along_y_;
  const float squared = radius * radius;
  if (const float chord = squared - row * row; chord > 0) {
    const float half = std::sqrt(chord);
    include(-half, half);
  }
  if (const float chord = squared - beyond * beyond; chord > 0) {
    const float half = std::sqrt(chord);
    include(length_ * along_x_ - half, length_ * along_x_ + half);
  }
  if (per_row_ == 0) return extent;
  for (const float side : {radius, -radius}) {
    const float along = (row - side * along_x_) * per_row_;
    const float at = along * along_x_ - side * along_y_;
    if (along >= 0 && along <= length_) include(at, at);
  }
  return extent;
}

// The same for the body drawn on beyond its ends, which needs no roots; not along a row.
inline Capsule::Extent Capsule::BodyWithin(float row, float radius) const {
  const float middle = std::clamp(row * along_x_ * per_row_, -4e6F, 4e6F);
  const float half = std::min(std::fabs(radius * per_row_), 4e6F);
  return {middle - half, middle + half};
}

inline float Capsule::RowOf(int y) const {
  return (static_cast<float>(y - base_.y) + to_centre_y_) * stretch_;
}

// The pixels whose centres lie in the extent.
inline Capsule::Columns Capsule::ColumnsOf(const Extent& extent) const {
  return {base_.x - Floor(to_centre_x_ - extent.left),
          base_.x + Floor(extent.right - to_centre_x_) + 1};
}

Capsule::RowReach Capsule::Reach(int y) const {
  if (y < bounds_.top || y >= bounds_.bottom) return {};
  const float row = RowOf(y);
  RowReach reach;
  reach.any = {bounds_.left, bounds_.right};
  const bool wide = inner_ >= kWideInside;
  if (wide || per_row_ != 0) {
    const Columns outer = ColumnsOf(wide ? Within(row, outer_) : BodyWithin(row, outer_));
    reach.any = {std::max(bounds_.left, outer.left), std::min(bounds_.right, outer.right)};
  }
  reach.whole = {reach.any.right, reach.any.right};
  if (!wide) return reach;
  const Extent inner = Within(row, inner_);
  if (inner.left > inner.right) return reach;
  const Columns whole = ColumnsOf(inner);
  if (whole.left < whole.right) reach.whole = whole;
  return reach;
}

// Lanes are computed without a choice of ways, and by value, so that they can go side by side.
static inline float Least(float one, float other) {
  return one < other ? one : other;
}
static inline float Most(float one, float other) {
  return one > other ? one : other;
}

// How much of a pixel lies on the inner side of a straight edge, when its centre lies `inside` of
// it; `most` and `least` are the larger and the smaller part of the edge's normal, which may have
// any length, by which `inside` is then multiplied too. Seen along the edge a pixel is a trapezium:
// level on both sides of its centre (`core`), then falling to nothing.
static inline float EdgeShare(float most, float least, float inside) {
  const float core = (most - least) * 0.5F;
  const float off = std::fabs(inside);
  const float level = Least(off, core);
  const float falling = Least(Most(off - core, 0.0F), least);
  const float half = ((level + falling) * least - 0.5F * falling * falling) / (most * least);
  return 0.5F + std::copysign(half, inside);
}

template <bool kStretched, bool kSlender>
inline void Capsule::CoverLanes(float first, float row, float* shares) const {
  const float along_x = along_x_, along_y = along_y_, length = length_, radius = radius_;
  const float to_centre = to_centre_x_, end_left_out = end_left_out_, stretch = stretch_;
  for (int i = 0; i < kLanes; ++i) {
    const float right = first + static_cast<float>(i) + to_centre;
    const float along = right * along_x + row * along_y;
    const float across = row * along_x - right * along_y;
    const float beyond = along - Least(Most(along, 0.0F), length);
    const float distance = Most(std::sqrt(across * across + beyond * beyond), 1e-3F);
    const float one = std::fabs(beyond * along_x - across * along_y);
    float other = std::fabs(beyond * along_y + across * along_x);
    // Where the end begins its edge is still nearly that of the body.
    float left_out = end_left_out * Least(std::fabs(beyond) * 4, 1.0F);
    float normal = distance;
    float least_most = distance * kLeastOfMost;
    if constexpr (kStretched) {
      other *= stretch;
      normal = Most(std::sqrt(one * one + other * other), 1e-3F);
      left_out *= normal / distance;
      least_most = normal * kLeastOfMost;
    }
    const float most = Most(Most(one, other), least_most);
    const float least = Most(Least(one, other), 1e-6F);
    const float inside = (radius - distance) * distance - left_out * normal;
    float share = EdgeShare(most, least, inside);
    if constexpr (kSlender) {
      const float far_inside = (radius + distance) * distance - left_out * normal;
      share = Most(0.0F, share + EdgeShare(most, least, far_inside) - 1);
    }
    shares[i] = share * 255 + 0.5F;
  }
}

template <bool kStretched, bool kSlender>
inline void Capsule::CoverRow(int x, int y, std::span<std::uint8_t> shares) const {
  const float row = RowOf(y);
  const std::size_t whole = shares.size() / kLanes * kLanes;
  for (std::size_t done = 0; done < whole; done += kLanes) {
    float lanes[kLanes];
    CoverLanes<kStretched, kSlender>(static_cast<float>(x + static_cast<int>(done) - base_.x), row,
                                     lanes);
    for (int i = 0; i < kLanes; ++i) {
      shares[done + static_cast<std::size_t>(i)] =
          static_cast<std::uint8_t>(static_cast<int>(lanes[i]));
    }
  }
}

void Capsule::Cover(int x, int y, std::span<std::uint8_t> shares) const {
  const bool slender = inner_ < 0;
  if (stretch_ == 1) {
    slender ? CoverRow<false, true>(x, y, shares) : CoverRow<false, false>(x, y, shares);
  } else {
    slender ? CoverRow<true, true>(x, y, shares) : CoverRow<true, false>(x, y, shares);
  }
}

std::uint8_t Capsule::CoverageAt(int x, int y) const {
  std::uint8_t shares[kLanes];
  Cover(x, y, shares);
  return shares[0];
}

}  // namespace varnel
