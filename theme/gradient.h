// The angled blend of two colours that fills title bars and previews.
#pragma once

#include "base/image.h"
#include "theme/colour.h"

namespace varnel {

// Fills `image` with a linear blend from `first` to `second`, opaque. `degrees` is the direction in
// which it runs: 0 to the right, 90 upwards, and so on round; not a finite number counts as 0. The
// blend is made of lines one pixel wide across that direction, the first wholly `first` and the
// last wholly `second`, and covers the image from corner to corner.
void FillGradient(Image& image, Colour first, Colour second, double degrees,
                  const SystemColours& system);

}  // namespace varnel
