// Strokes as a mouse makes them, for timings.
#pragma once

#include <algorithm>
#include <random>
#include <span>
#include <vector>

#include "base/canvas.h"

namespace varnel::bench {

inline constexpr Size kStrokeBoard{1920, 1080};

// Points up to 10 px apart each way, wandering over the board.
inline std::vector<PointF> StrokePoints() {
  std::mt19937 random(3);
  std::uniform_int_distribution<int> turn(-3, 3);
  std::vector<PointF> points = {{960.5, 540.5}};
  int across = 7, down = 2;
  for (int i = 0; i < 2000; ++i) {
    across = std::clamp(across + turn(random), -10, 10);
    down = std::clamp(down + turn(random), -10, 10);
    points.push_back({std::clamp(points.back().x + across, 30.5, 1889.5),
                      std::clamp(points.back().y + down, 30.5, 1049.5)});
  }
  return points;
}

inline void DrawStroke(Canvas& canvas, std::span<const PointF> points, double width) {
  canvas.BeginStroke(0xFF0077FF, {width, width});
  for (std::size_t i = 1; i < points.size(); ++i) canvas.DrawSegment(points[i - 1], points[i]);
  canvas.EndStroke();
}

}  // namespace varnel::bench
