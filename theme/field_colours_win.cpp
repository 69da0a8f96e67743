#include "theme/field_colours_win.h"

#include "theme/contrast.h"

namespace varnel {

LRESULT ColourField(HDC dc, const TextStyle& style, const SystemColours& system) {
  const Colour ground =
      HaloColour(style.colour, style.ground, style.halo_base, kReadableContrast, system)
          .value_or(style.ground);
  ::SetTextColor(dc, style.colour);
  ::SetBkColor(dc, ground);
  ::SetDCBrushColor(dc, ground);
  return reinterpret_cast<LRESULT>(::GetStockObject(DC_BRUSH));
}

}  // namespace varnel
