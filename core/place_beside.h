// Where a dialog opens so that the window it is about stays in sight.
#pragma once

#include "base/geometry.h"

namespace varnel {

// The rectangle for a dialog of that size beside `window`, with `gap` between them: to the right,
// else to the left, below, above, wherever it fits into `work_area` whole; else in the middle of
// it. Along the shared side the two begin alike, as far as the work area allows. All in pixels of
// the screen.
Rect PlaceBeside(Size dialog, const Rect& window, const Rect& work_area, int gap);

}  // namespace varnel
