// The colours of the system's edit boxes on a widget.
#pragma once

#include "theme/text_painter_win.h"

namespace varnel {

// Answers a box's request for its colours (WM_CTLCOLOREDIT, WM_CTLCOLORSTATIC). A box has no halo:
// where its text needs one, the whole ground takes the halo's colour.
LRESULT ColourField(HDC dc, const TextStyle& style, const SystemColours& system);

}  // namespace varnel
