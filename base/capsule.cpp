#include "base/capsule.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>

namespace varnel {
namespace {

constexpr double kFarthest = 1e6;
// Half a pixel's diagonal: no edge farther off than this crosses the pixel.
constexpr float kHalfDiagonal = 0.7072F;
// The least inner radius from which on it pays to tell what is covered wholly.
constexpr float kWideInside = 1.5F;
// The larger part of a normal of length 1 is never less.
constexpr float kLeastOfMost = 0.7071F;
constexpr float kNowhere = 4e6F;  // farther off than any place

double Clamped(double place) {
  return std::clamp(place, -kFarthest, kFarthest);
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

inline float Capsule::RowOf(int y) const {
  return (static_cast<float>(y - base_.y) + to_centre_y_) * stretch_;
}

// Where the lines `row` enter and leave the shape with another radius; in no order where they do
// not meet it.
inline Capsule::Extent Capsule::Within(Lanes row, float radius) const {
  const Lanes none = AllOf(0), nowhere = AllOf(kNowhere);
  const Lanes squared = AllOf(radius * radius);
  const Lanes beyond = row - AllOf(length_ * along_y_);
  const Lanes end = AllOf(length_ * along_x_);
  const auto half_chord = [&](Lanes off) {
    const Lanes chord = squared - off * off;
    return WhereAtMost(chord, none, -nowhere, RootOf(Most(chord, none)));
  };
  const Lanes half = half_chord(row);
  const Lanes end_half = half_chord(beyond);
  Extent extent{Least(-half, end - end_half), Most(half, end + end_half)};
  if (per_row_ == 0) return extent;
  for (const float side : {radius, -radius}) {
    const Lanes along = (row - AllOf(side * along_x_)) * AllOf(per_row_);
    const Lanes at = along * AllOf(along_x_) - AllOf(side * along_y_);
    const Lanes outside = Most(-along, along - AllOf(length_));
    extent.left = Least(extent.left, WhereAtMost(outside, none, at, nowhere));
    extent.right = Most(extent.right, WhereAtMost(outside, none, at, -nowhere));
  }
  return extent;
}

// The pixels whose centres lie within, counted from `base_`.
inline Capsule::Extent Capsule::ColumnsWithin(Lanes row, float radius) const {
  const Extent extent = Within(row, radius);
  const Lanes to_centre = AllOf(to_centre_x_);
  return {-FloorOf(to_centre - extent.left), FloorOf(extent.right - to_centre) + AllOf(1)};
}

void Capsule::ReachInRows(int top, int rows, RowReach& reach) const {
  const bool wide = inner_ >= kWideInside;
  for (int i = 0; i < rows; i += kLanes) {
    const Lanes row =
        CountFrom(static_cast<float>(top + i - base_.y) + to_centre_y_) * AllOf(stretch_);
    const Extent outer = ColumnsWithin(row, outer_);
    const Extent inner = wide ? ColumnsWithin(row, inner_) : Extent{outer.right, outer.right};
    Store(reach.left.data() + i, outer.left);
    Store(reach.right.data() + i, outer.right);
    Store(reach.whole_left.data() + i, inner.left);
    Store(reach.whole_right.data() + i, inner.right);
  }
}

bool Capsule::Reach(Point corner, const Rect& part, const RowReach& rows,
                    SquareReach& reach) const {
  const Lanes to_corner = AllOf(static_cast<float>(base_.x - corner.x));
  const Lanes part_left = AllOf(static_cast<float>(part.left - corner.x));
  const Lanes part_right = AllOf(static_cast<float>(part.right - corner.x));
  Lanes any = AllOf(0);
  for (int i = 0; i < part.height(); i += kLanes) {
    const auto columns = [&](const RowReach::Columns& from, Lanes least, Lanes most) {
      return Least(Most(Load(from.data() + i) + to_corner, least), most);
    };
    const Lanes left = columns(rows.left, part_left, part_right);
    const Lanes right = columns(rows.right, left, part_right);
    const Lanes whole_right = columns(rows.whole_right, left, right);
    const Lanes whole_left = columns(rows.whole_left, left, whole_right);
    StoreWhole(reach.left.data() + i, left);
    StoreWhole(reach.right.data() + i, right);
    StoreWhole(reach.whole_left.data() + i, whole_left);
    StoreWhole(reach.whole_right.data() + i, whole_right);
    any = Most(any, right - left);
  }
  return AnyAbove(any, 0);
}

// How much of a pixel lies on the inner side of a straight edge, when its centre lies `inside` of
// it; `most` and `least` are the larger and the smaller part of the edge's normal, which may have
// any length, by which `inside` is then multiplied too. Seen along the edge a pixel is a trapezium:
// level on both sides of its centre (`core`), then falling to nothing.
static inline Lanes EdgeShare(Lanes most, Lanes least, Lanes inside) {
  const Lanes core = (most - least) * AllOf(0.5F);
  const Lanes off = WithoutSign(inside);
  const Lanes level = Least(off, core);
  const Lanes falling = Least(Most(off - core, AllOf(0)), least);
  const Lanes half = ((level + falling) * least - AllOf(0.5F) * falling * falling) / (most * least);
  return AllOf(0.5F) + WithSignOf(inside, half);
}

// The shares of four pixels from `x` on, as whole numbers.
template <bool kStretched, bool kSlender>
inline __m128i Capsule::CoverLanes(int x, float row) const {
  const Lanes right = CountFrom(static_cast<float>(x - base_.x) + to_centre_x_);
  const Lanes along_x = AllOf(along_x_), along_y = AllOf(along_y_), radius = AllOf(radius_);
  const Lanes along = right * along_x + AllOf(row * along_y_);
  const Lanes across = AllOf(row * along_x_) - right * along_y;
  const Lanes beyond = along - Least(Most(along, AllOf(0)), AllOf(length_));
  const Lanes distance = Most(RootOf(across * across + beyond * beyond), AllOf(1e-3F));
  const Lanes one = WithoutSign(beyond * along_x - across * along_y);
  Lanes other = WithoutSign(beyond * along_y + across * along_x);
  // Where the end begins its edge is still nearly that of the body.
  Lanes left_out = AllOf(end_left_out_) * Least(WithoutSign(beyond) * AllOf(4), AllOf(1));
  Lanes normal = distance;
  if constexpr (kStretched) {
    other = other * AllOf(stretch_);
    normal = Most(RootOf(one * one + other * other), AllOf(1e-3F));
    left_out = left_out * normal / distance;
  }
  const Lanes most = Most(Most(one, other), normal * AllOf(kLeastOfMost));
  const Lanes least = Most(Least(one, other), AllOf(1e-6F));
  const Lanes inside = (radius - distance) * distance - left_out * normal;
  Lanes share = EdgeShare(most, least, inside);
  if constexpr (kSlender) {
    const Lanes far_inside = (radius + distance) * distance - left_out * normal;
    share = Most(AllOf(0), share + EdgeShare(most, least, far_inside) - AllOf(1));
  }
  return _mm_cvttps_epi32(share * AllOf(255) + AllOf(0.5F));
}

template <bool kStretched, bool kSlender>
inline void Capsule::RaiseRows(Point corner, const Rect& part, const SquareReach& reach,
                               std::uint8_t* covered) const {
  for (int y = part.top; y < part.bottom; ++y) {
    const auto at = static_cast<std::size_t>(y - part.top);
    const float row = RowOf(y);
    std::uint8_t* const line = covered + (y - corner.y) * kSquare;
    const auto raise = [&](int left, int right) {
      for (int next = left; next < right; next += kLanes) {
        const int x = std::min(next, kSquare - kLanes);
        std::int32_t before = 0;
        std::memcpy(&before, line + x, kLanes);
        if (before == -1) continue;  // all four wholly
        const __m128i shares = CoverLanes<kStretched, kSlender>(corner.x + x, row);
        const __m128i words = _mm_packs_epi32(shares, shares);
        const __m128i bytes = _mm_packus_epi16(words, words);
        const int raised = _mm_cvtsi128_si32(_mm_max_epu8(bytes, _mm_cvtsi32_si128(before)));
        std::memcpy(line + x, &raised, kLanes);
      }
    };
    const int left = reach.whole_left[at], right = reach.whole_right[at];
    if (reach.left[at] < left) raise(reach.left[at], left);
    if (left < right) std::memset(line + left, 255, static_cast<std::size_t>(right - left));
    if (right < reach.right[at]) raise(right, reach.right[at]);
  }
}

void Capsule::Raise(Point corner, const Rect& part, const SquareReach& reach,
                    std::span<std::uint8_t, kSquare * kSquare> covered) const {
  const bool slender = inner_ < 0;
  const auto raise = [&](auto rows_of) { (this->*rows_of)(corner, part, reach, covered.data()); };
  if (stretch_ == 1) {
    raise(slender ? &Capsule::RaiseRows<false, true> : &Capsule::RaiseRows<false, false>);
  } else {
    raise(slender ? &Capsule::RaiseRows<true, true> : &Capsule::RaiseRows<true, false>);
  }
}

std::uint8_t Capsule::CoverageAt(int x, int y) const {
  std::array<std::uint8_t, kSquare * kSquare> covered{};
  const Rect part = RectAt({x, y}, {1, 1});
  if (Intersection(part, bounds_).empty()) return 0;
  RowReach rows;
  SquareReach reach;
  ReachInRows(y, 1, rows);
  if (Reach({x, y}, part, rows, reach)) Raise({x, y}, part, reach, covered);
  return covered[0];
}

}  // namespace varnel
