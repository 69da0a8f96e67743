// Where windows stand once all are arranged.
#pragma once

#include <span>
#include <vector>

#include "frame/placement.h"

namespace varnel {

// Places for windows of `sizes` (twips), in their order, side by side on the grid in the primary
// monitor's work area: from the top left, with one step of the grid between them, or none where
// more find room so. What finds none lies across the others, each a little lower and further right
// than the one before. Empty without any monitor.
std::vector<Place> Arranged(std::span<const Size> sizes, const Screens& screens);

}  // namespace varnel
