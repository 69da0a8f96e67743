// Plane geometry in whole units. Lengths are twips (1440 to the inch) in the model and pixels at
// the edge; a function says which it takes, or works for both.
#pragma once

#include <span>

namespace varnel {

struct Point {
  int x = 0;
  int y = 0;
  bool operator==(const Point&) const = default;
};

// A place between whole units.
struct PointF {
  double x = 0;
  double y = 0;
  bool operator==(const PointF&) const = default;
};

struct Size {
  int width = 0;
  int height = 0;
  bool operator==(const Size&) const = default;
};

// Right and bottom lie just outside, as the platform has it.
struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  int width() const { return right - left; }
  int height() const { return bottom - top; }
  bool empty() const { return right <= left || bottom <= top; }
  bool Contains(Point point) const {
    return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
  }
  bool operator==(const Rect&) const = default;
};

Rect RectAt(Point corner, Size size);

// What lies in both; an empty rectangle, all zero, when nothing does.
Rect Intersection(const Rect& one, const Rect& other);

// The smallest rectangle around both; an empty one counts for nothing.
Rect Union(const Rect& one, const Rect& other);

// `rect` made smaller by `amount` on every side, but never turned inside out; larger when it is
// negative.
Rect Inset(const Rect& rect, int amount);

// `rect` made larger by `amount` on every side, but at most by half of what lies between it and one
// of `others`, which may grow as much. Those that overlap `rect` itself, as it does, count for
// nothing.
Rect Grown(const Rect& rect, int amount, std::span<const Rect> others);

// `rect`, measured from the corner of `frame`, measured from where `frame` itself is.
Rect Within(const Rect& frame, const Rect& rect);

inline constexpr int kTwipsPerInch = 1440;
inline constexpr int kDefaultDpi = 96;

// Twips to pixels and back at `dpi` dots to the inch, rounded to nearest, halves away from zero.
// A `dpi` outside 24 to 9600 counts as 96; results are clamped to the range of int.
int PixelsFromTwips(int twips, int dpi);
int TwipsFromPixels(int pixels, int dpi);

// A length written for 96 dpi in pixels of a screen with `dpi`, rounded the same way.
int Scaled(int pixels_at_96, int dpi);

}  // namespace varnel
