// The theme dialog's picture of a widget.
#pragma once

#include "frame/form_entry.h"
#include "theme/theme_record.h"
#include "win/graphics/surface.h"
#include "win/windows/ui.h"

namespace varnel {

// Fills the surface with a blend of the theme's colours at 45 degrees and paints a small widget of
// `entry` in `theme` over it, as translucent as the real one, with its
// texts made readable or not.
void PaintThemePreview(Ui& ui, Surface& surface, ThemeRecord theme, const FormEntry& entry, int dpi,
                       bool readable, const SystemColours& system);

// A patch of `colour` with rounded corners over what `box` of the device context shows already.
void PaintSwatch(HDC dc, const Rect& box, Colour colour, int dpi, const SystemColours& system);

}  // namespace varnel
