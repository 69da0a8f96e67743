#include "theme/field_colours_win.h"

namespace varnel {

LRESULT ColourField(HDC dc, TextStyle style) {
  style.prefer_ink = true;
  ::SetTextColor(dc, WritingOf(style).colour);
  ::SetBkColor(dc, style.ground);
  ::SetDCBrushColor(dc, style.ground);
  return reinterpret_cast<LRESULT>(::GetStockObject(DC_BRUSH));
}

}  // namespace varnel
