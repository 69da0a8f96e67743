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

inline Capsule::Edge::Edge(float one, float other) {
  const float most = std::max(std::fabs(one), std::fabs(other));
  least = std::min(std::fabs(one), std::fabs(other));
  reach = (most + least) / 2;
  slope = 1 / most;
  bend = slope / (2 * std::max(least, 1e-6F));
}

inline float Capsule::Edge::Share(float inside) const {
  const float rest = reach - std::fabs(inside);
  if (rest <= 0) return inside > 0 ? 1.0F : 0.0F;
  if (rest >= least) return 0.5F + inside * slope;
  const float corner = rest * rest * bend;
  return inside > 0 ? 1 - corner : corner;
}

Capsule::Capsule(PointF from, PointF to, PenTip tip) {
  if (!IsFinite(from) || !IsFinite(to)) return;
  const double width = SaneWidth(tip.width);
  const double height = SaneWidth(tip.height);
  from_ = {Clamped(from.x), Clamped(from.y)};
  const double across = Clamped(to.x) - from_.x;
  const double down = (Clamped(to.y) - from_.y) * width / height;
  const double length = std::hypot(across, down);
  stretch_ = static_cast<float>(width / height);
  radius_ = static_cast<float>(width / 2);
  length_ = static_cast<float>(length);
  if (length > 0) {
    along_x_ = static_cast<float>(across / length);
    along_y_ = static_cast<float>(down / length);
  }
  const float normal_y = along_x_ * stretch_;
  body_scale_ = 1 / std::hypot(along_y_, normal_y);
  body_edge_ = Edge(along_y_ * body_scale_, normal_y * body_scale_);
  const float widest = std::max(1.0F, stretch_);
  end_left_out_ = 1 / (24 * std::max(radius_, 0.25F));
  const float margin = widest * (kHalfDiagonal + end_left_out_);
  outer_ = radius_ + margin;
  inner_ = radius_ - margin;
  slender_ = inner_ < 0;
  if (std::fabs(along_y_) > 1e-4F) per_row_ = 1 / along_y_;
  const double beside = static_cast<double>(outer_);
  const double above = beside / static_cast<double>(stretch_);
  bounds_ = {static_cast<int>(std::floor(std::min(from_.x, from_.x + across) - beside)),
             static_cast<int>(std::floor(std::min(from_.y, Clamped(to.y)) - above)),
             static_cast<int>(std::ceil(std::max(from_.x, from_.x + across) + beside)),
             static_cast<int>(std::ceil(std::max(from_.y, Clamped(to.y)) + above))};
}

// Where the line `row` enters and leaves the shape with another radius; in no order when it does
// not meet it.
inline Capsule::Extent Capsule::Within(float row, float radius) const {
  Extent extent{1e9F, -1e9F};
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

Capsule::RowReach Capsule::Reach(int y) const {
  if (y < bounds_.top || y >= bounds_.bottom) return {};
  const float row = static_cast<float>(y + 0.5 - from_.y) * stretch_;
  const auto column = [this](float x) { return from_.x - 0.5 + static_cast<double>(x); };
  RowReach reach;
  const Extent outer = Within(row, outer_);
  if (outer.left > outer.right) return reach;
  reach.any = {std::max(bounds_.left, static_cast<int>(std::floor(column(outer.left)))),
               std::min(bounds_.right, static_cast<int>(std::ceil(column(outer.right))) + 1)};
  reach.whole = {reach.any.right, reach.any.right};
  if (inner_ <= 0) return reach;
  const Extent inner = Within(row, inner_);
  if (inner.left > inner.right) return reach;
  const Columns whole{static_cast<int>(std::ceil(column(inner.left))),
                      static_cast<int>(std::floor(column(inner.right))) + 1};
  if (whole.left < whole.right) reach.whole = whole;
  return reach;
}

inline float Capsule::NearBody(float across) const {
  const float share = body_edge_.Share((radius_ - across) * body_scale_);
  if (!slender_) return share;
  return std::max(0.0F, share + body_edge_.Share((radius_ + across) * body_scale_) - 1);
}

inline float Capsule::NearEnd(float along, float across, float squared) const {
  const float distance = std::sqrt(squared);
  const float scale = 1 / std::max(distance, 1e-6F);
  float normal_x = (along * along_x_ - across * along_y_) * scale;
  float normal_y = (along * along_y_ + across * along_x_) * scale;
  float inside = radius_ - distance, beyond = radius_ + distance, left_out = end_left_out_;
  if (stretch_ != 1) {
    normal_y *= stretch_;
    const float length = std::sqrt(std::max(normal_x * normal_x + normal_y * normal_y, 1e-12F));
    normal_x /= length;
    normal_y /= length;
    inside /= length;
    beyond /= length;
    left_out *= length;
  }
  const Edge edge(normal_x, normal_y);
  const float share = edge.Share(inside - left_out);
  if (!slender_) return share;
  return std::max(0.0F, share + edge.Share(beyond - left_out) - 1);
}

std::uint8_t Capsule::CoverageAt(int x, int y) const {
  const float right = static_cast<float>(x + 0.5 - from_.x);
  const float down = static_cast<float>(y + 0.5 - from_.y) * stretch_;
  const float along = right * along_x_ + down * along_y_;
  const float across = down * along_x_ - right * along_y_;
  const float beyond = along < 0 ? along : along > length_ ? along - length_ : 0;
  const float share = beyond == 0 ? NearBody(std::fabs(across))
                                  : NearEnd(beyond, across, across * across + beyond * beyond);
  return static_cast<std::uint8_t>(share * 255 + 0.5F);
}

}  // namespace varnel
