// Where a dialog opens so that the window it is about stays in sight.
#pragma once

#include "base/geometry.h"

namespace varnel {

// The rectangle for a dialog of that size beside `window`, with `gap` between them: to the right,
// to the left, below or above, whichever hides least of the window once the dialog lies within
// `work_area`; the first of them where several do. Along the shared side the two begin alike, as
// far as the work area allows. A dialog larger than the work area begins at its left or upper edge.
// All in pixels of the screen.
Rect PlaceBeside(Size dialog, const Rect& window, const Rect& work_area, int gap);

}  // namespace varnel
