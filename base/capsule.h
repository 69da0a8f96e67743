// The shape that a round pen leaves between two points, and how much of each pixel it covers.
#pragma once

#include <cstdint>

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
  // A row's columns that may be covered, and those among them that are covered wholly for sure.
  struct RowReach {
    Columns any;
    Columns whole;
  };
  RowReach Reach(int y) const;

  // How much of a pixel is covered: 0 nothing to 255 all.
  std::uint8_t CoverageAt(int x, int y) const;

 private:
  // A straight edge, by the larger and the smaller part of its normal. Seen along it a pixel is a
  // trapezium: level on both sides of its centre, then falling to nothing.
  struct Edge {
    Edge(float one, float other);
    // The share of a pixel that lies on the inner side, when its centre lies so far inside.
    float Share(float inside) const;
    float least, reach;
    float slope, bend;  // one over the larger part; one over twice the product
  };

  struct Extent {
    float left, right;
  };
  Extent Within(float row, float radius) const;
  float NearBody(float across) const;
  float NearEnd(float along, float across, float squared) const;

  // In a plane stretched upright so that the pen is a circle, measured from the first point.
  PointF from_;
  float stretch_ = 1;
  float radius_ = 0;
  float along_x_ = 1, along_y_ = 0;  // the direction, of length 1
  float length_ = 0;
  float body_scale_ = 1;  // pixels to a stretched length across the body
  Edge body_edge_{0, 1};
  float end_left_out_ = 0;       // by an edge that is taken as straight
  float outer_ = 0, inner_ = 0;  // distances beyond which all pixels are free, or covered
  float per_row_ = 0;            // one over `along_y_`, 0 when that is hardly anything
  bool slender_ = false;         // both edges may lie in one pixel
  Rect bounds_;
};

}  // namespace varnel
