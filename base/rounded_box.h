// Boxes with smooth round corners, drawn straight into pixels.
#pragma once

#include <cstdint>
#include <span>

#include "base/geometry.h"

namespace varnel {

// Fills `box` with `face` and gives it a one-pixel `outline`, both 0xRRGGBB, over what `pixels`
// (rows of `size`.width from the top) already show. The corners are smoothed by the distance of a
// pixel's centre from the edge. `radius` in pixels, at most half the shorter side. What lies
// outside the pixels is left out; a `pixels` shorter than `size` needs is not touched.
void DrawRoundedBox(std::span<std::uint32_t> pixels, Size size, const Rect& box, double radius,
                    std::uint32_t face, std::uint32_t outline);

}  // namespace varnel
