#include "base/rounded_box.h"

#include <algorithm>
#include <cmath>

namespace varnel {
namespace {

// `over` laid on `under` with `coverage` from 0 to 1.
std::uint32_t Mixed(std::uint32_t under, std::uint32_t over, double coverage) {
  constexpr std::uint32_t kColour = 0xFFFFFF;
  if (coverage <= 0) return under & kColour;
  if (coverage >= 1) return over & kColour;  // nearly every pixel
  std::uint32_t result = 0;
  for (int shift = 0; shift <= 16; shift += 8) {
    const double low = under >> shift & 0xFF;
    const double high = over >> shift & 0xFF;
    result |= static_cast<std::uint32_t>(std::lround(low + (high - low) * coverage)) << shift;
  }
  return result;
}

// Distance of a point from the edge of a rounded box centred at 0, 0; negative inside.
double EdgeDistance(double x, double y, double half_width, double half_height, double radius) {
  const double across = std::abs(x) - half_width + radius;
  const double down = std::abs(y) - half_height + radius;
  const double beyond_side = std::max(across, 0.0);
  const double beyond_end = std::max(down, 0.0);
  return std::sqrt(beyond_side * beyond_side + beyond_end * beyond_end) +
         std::min(std::max(across, down), 0.0) - radius;
}

}  // namespace

void DrawRoundedBox(std::span<std::uint32_t> pixels, Size size, const Rect& box, double radius,
                    std::uint32_t face, std::uint32_t outline) {
  if (box.empty() || pixels.size() < static_cast<std::size_t>(size.width) * size.height) return;
  const double half_width = box.width() / 2.0;
  const double half_height = box.height() / 2.0;
  const double round = std::clamp(radius, 0.0, std::min(half_width, half_height));
  for (int y = std::max(box.top, 0); y < std::min(box.bottom, size.height); ++y) {
    std::uint32_t* row = pixels.data() + static_cast<std::size_t>(y) * size.width;
    for (int x = std::max(box.left, 0); x < std::min(box.right, size.width); ++x) {
      const double distance =
          EdgeDistance(x + 0.5 - box.left - half_width, y + 0.5 - box.top - half_height, half_width,
                       half_height, round);
      const double inside = std::clamp(0.5 - distance, 0.0, 1.0);
      const double within_line = std::clamp(-0.5 - distance, 0.0, 1.0);
      row[x] = Mixed(row[x], Mixed(outline, face, within_line), inside);
    }
  }
}

}  // namespace varnel
