// The screens of the moment, as the arithmetic of window places wants them.
#pragma once

#include "frame/placement.h"

namespace varnel {

Screens CurrentScreens();

// The whole screen (task bars included) that `pixels` is on or nearest to, in twips.
Size ScreenSizeAt(const Rect& pixels);

}  // namespace varnel
