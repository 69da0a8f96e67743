// The colours of the system's edit boxes on a widget.
#pragma once

#include "theme/text_painter_win.h"

namespace varnel {

// Answers a box's request for its colours (WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC). A box has no halo:
// where its text needs help, it is in ink.
LRESULT ColourField(HDC dc, TextStyle style);

}  // namespace varnel
