// The shape that a round pen leaves between two points, and how much of each pixel it covers.
#pragma once

#include <cstdint>
#include <span>

#include "base/geometry.h"

namespace varnel {

// A pen is an ellipse. On a sheet that is shown narrower than it is, a round pen is an upright one.
struct PenTip {
  static constexpr double kThinnest = 0.05;
  static constexpr double kThickest = 512;
  double width = 1;  // pixels; both are kept within kThinnest..kThickest, and what is no width is 1
  double height = 1;
};

// Coverage is that of the half plane beyond the nearest edge, exact for straight edges; at the ends
// the edge is taken as straight within a pixel and shifted by the mean of what its curve leaves
// out.
class Capsule {
 public:
  // In pixels; a pixel's centre lies at one half. Points beyond a million pixels count as lying
  // there; one that is no number makes a shape that covers nothing.
  Capsule(PointF from, PointF to, PenTip tip);

  // The pixels that may be covered. `coverage` of a pixel outside is 0.
  const Rect& bounds() const { return bounds_; }

  // Columns of a row, the second one just outside; none when they are not in order.
  struct Columns {
    int left = 0;
    int right = 0;
  };
  // A row's columns that may be covered, and, of wide pens, those among them that are covered
  // wholly for sure.
  struct RowReach {
    Columns any;
    Columns whole;
  };
  RowReach Reach(int y) const;

  static constexpr int kLanes = 8;  // pixels that are computed together
  // How much of each pixel of a row is covered, from {x, y} on: 0 nothing to 255 all. Only whole
  // groups of kLanes are given.
  void Cover(int x, int y, std::span<std::uint8_t> shares) const;
  std::uint8_t CoverageAt(int x, int y) const;

 private:
  struct Extent {
    float left, right;
  };
  Extent Within(float row, float radius) const;
  Extent BodyWithin(float row, float radius) const;
  Columns ColumnsOf(const Extent& extent) const;
  float RowOf(int y) const;
  template <bool kStretched, bool kSlender>
  void CoverLanes(float first, float row, float* shares) const;
  template <bool kStretched, bool kSlender>
  void CoverRow(int x, int y, std::span<std::uint8_t> shares) const;

  // In a plane stretched upright so that the pen is a circle, measured from the first point, which
  // lies in the pixel `base_`, its centre at `to_centre_` from the point.
  Point base_;
  float to_centre_x_ = 0.5F, to_centre_y_ = 0.5F;
  float stretch_ = 1;
  float radius_ = 0;
  float along_x_ = 1, along_y_ = 0;  // the direction, of length 1
  float length_ = 0;
  float end_left_out_ = 0;       // by an edge that is taken as straight
  float outer_ = 0, inner_ = 0;  // distances beyond which all pixels are free, or covered
  float per_row_ = 0;            // one over `along_y_`, 0 when that is hardly anything
  Rect bounds_;
};

}  // namespace varnel
