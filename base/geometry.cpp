#include "base/geometry.h"

#include <algorithm>
#include <limits>

namespace varnel {
namespace {

int ScaledRatio(int value, int numerator, int denominator) {
  const long long product = static_cast<long long>(value) * numerator;
  const long long half = denominator / 2;
  const long long result = (product >= 0 ? product + half : product - half) / denominator;
  return static_cast<int>(std::clamp<long long>(result, std::numeric_limits<int>::min(),
                                                std::numeric_limits<int>::max()));
}

int SaneDpi(int dpi) {
  return dpi < 24 || dpi > 9600 ? kDefaultDpi : dpi;
}

}  // namespace

Rect RectAt(Point corner, Size size) {
  return {corner.x, corner.y, corner.x + size.width, corner.y + size.height};
}

Rect Intersection(const Rect& one, const Rect& other) {
  const Rect both{std::max(one.left, other.left), std::max(one.top, other.top),
                  std::min(one.right, other.right), std::min(one.bottom, other.bottom)};
  return both.empty() ? Rect{} : both;
}

Rect Union(const Rect& one, const Rect& other) {
  if (one.empty()) return other;
  if (other.empty()) return one;
  return {std::min(one.left, other.left), std::min(one.top, other.top),
          std::max(one.right, other.right), std::max(one.bottom, other.bottom)};
}

Rect Inset(const Rect& rect, int amount) {
  const int across = std::min(amount, rect.width() / 2);
  const int down = std::min(amount, rect.height() / 2);
  return {rect.left + across, rect.top + down, rect.right - across, rect.bottom - down};
}

Rect Grown(const Rect& rect, int amount, std::span<const Rect> others) {
  const Rect reach = Inset(rect, -2 * amount);  // farther neighbours cannot be met half-way
  Rect grown = Inset(rect, -amount);
  for (const Rect& other : others) {
    const bool beside = other.top < reach.bottom && other.bottom > reach.top;
    const bool in_line = other.left < reach.right && other.right > reach.left;
    if (!beside || !in_line) continue;
    if (other.top >= rect.bottom) {
      grown.bottom = std::min(grown.bottom, (rect.bottom + other.top) / 2);
    } else if (other.bottom <= rect.top) {
      grown.top = std::max(grown.top, (rect.top + other.bottom + 1) / 2);
    } else if (other.left >= rect.right) {
      grown.right = std::min(grown.right, (rect.right + other.left) / 2);
    } else if (other.right <= rect.left) {
      grown.left = std::max(grown.left, (rect.left + other.right + 1) / 2);
    }
  }
  return grown;
}

Rect Within(const Rect& frame, const Rect& rect) {
  return {frame.left + rect.left, frame.top + rect.top, frame.left + rect.right,
          frame.top + rect.bottom};
}

int PixelsFromTwips(int twips, int dpi) {
  return ScaledRatio(twips, SaneDpi(dpi), kTwipsPerInch);
}

int TwipsFromPixels(int pixels, int dpi) {
  return ScaledRatio(pixels, kTwipsPerInch, SaneDpi(dpi));
}

int Scaled(int pixels_at_96, int dpi) {
  return ScaledRatio(pixels_at_96, SaneDpi(dpi), kDefaultDpi);
}

}  // namespace varnel
