// The shape that a round pen leaves between two points, and how much of each pixel it covers.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "base/geometry.h"
#include "base/lanes.h"

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

  static constexpr int kSquare = 32;  // a side of the squares that are drawn at once, in pixels
  static constexpr int kLanes = 4;    // pixels that are computed together

  // Of each of up to kSquare rows: the columns that may be covered and, among them, those that are
  // for sure covered wholly, each with the column just outside; none of them where the first is not
  // less than the second. Whole numbers, which only Reach knows how to read.
  struct RowReach {
    using Columns = std::array<float, kSquare>;
    alignas(16) Columns left, right, whole_left, whole_right;
  };
  // What is reached in `rows` rows, 1 to kSquare, from the row `top` on.
  void ReachInRows(int top, int rows, RowReach& reach) const;

  // The same in a part of a square, from the part's top. Columns count from the square's left, and
  // the first never exceeds the second.
  struct SquareReach {
    using Columns = std::array<int, kSquare>;
    alignas(16) Columns left, right, whole_left, whole_right;
  };
  // What is reached of `part`, which lies in the square at `corner` and begins with the first row
  // that `rows` tells of; rows below its bottom count for nothing. False when that is nothing.
  bool Reach(Point corner, const Rect& part, const RowReach& rows, SquareReach& reach) const;

  // Raises how much each pixel of the square is covered, from 0 nothing to 255 all, to what this
  // covers of it.
  void Raise(Point corner, const Rect& part, const SquareReach& reach,
             std::span<std::uint8_t, kSquare * kSquare> covered) const;
  std::uint8_t CoverageAt(int x, int y) const;

 private:
  struct Extent {
    Lanes left, right;
  };
  Extent Within(Lanes row, float radius) const;
  Extent ColumnsWithin(Lanes row, float radius) const;
  float RowOf(int y) const;
  template <bool kStretched, bool kSlender>
  __m128i CoverLanes(int x, float row) const;
  template <bool kStretched, bool kSlender>
  void RaiseRows(Point corner, const Rect& part, const SquareReach& reach,
                 std::uint8_t* covered) const;

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
