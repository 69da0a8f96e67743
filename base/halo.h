// A soft rim around text, which keeps it readable on a ground of nearly its own colour.
#pragma once

#include <cstdint>

#include "base/geometry.h"
#include "base/image.h"

namespace varnel {

// How far a halo reaches: `radius` pixels at full strength, then `softness` pixels fading out.
// Fractions count; each is clamped to 0..kLongest, and not-a-number is 0.
struct HaloShape {
  static constexpr double kLongest = 32;
  double radius = 0;
  double softness = 0;
};

// The whole pixels that a halo needs around its text so that nothing of it is cut off.
int HaloMargin(const HaloShape& shape);

// The coverage of the halo of `text`, of the same size. Distances are Euclidean, from pixel centre
// to pixel centre; a partly covered pixel counts as lying farther off by its uncovered share, which
// keeps the rim of smooth letters smooth (and may cost it up to a pixel beside their corners); one
// less than a sixteenth covered casts no halo.
Mask HaloMask(const Mask& text, const HaloShape& shape);

// Lays the halo and then the text over `pixels`, each in its own colour (as pixels hold them), the
// upper left of the masks at `corner`; what lies outside is left out. The opacity bytes of `pixels`
// stay. An empty `halo` mask means none.
void CompositeText(Image& pixels, Point corner, const Mask& text, const Mask& halo,
                   std::uint32_t text_pixel, std::uint32_t halo_pixel);

}  // namespace varnel
