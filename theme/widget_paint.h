// What a widget is painted with: its theme, or the system's colours for users who need high
// contrast.
#pragma once

#include <string_view>

#include "theme/chrome_colours.h"

namespace varnel {

struct WidgetPaint {
  ThemeRecord theme;  // holds plain colours, no names of system colours
  ChromeColours chrome;
  bool high_contrast = false;
  bool readable = true;  // texts may be written in ink or with a halo
};

// Derives the colours of `theme` anew (DeriveChrome). With `high_contrast` everything has the
// system's window colours instead of the theme's and is opaque; the fonts stay.
WidgetPaint WidgetPaintOf(ThemeRecord& theme, bool high_contrast, const SystemColours& system);

// Where a font of the theme is the default one the widget is painted with `face` in its place.
void PutInterfaceFont(WidgetPaint& paint, std::wstring_view face);

ColourPair ButtonColours(const WidgetPaint& paint, ButtonLook look, const SystemColours& system);

// The same for a button on the title bar: at rest it is a bare glyph, without a face that differs
// from the bar; one that closes is red under the mouse.
ColourPair BarButtonColours(const WidgetPaint& paint, ButtonLook look, bool closes,
                            const SystemColours& system);

// A button's face and outline on the panel: a face that is lost there gets an outline that is not.
ColourPair SeenOnPanel(const WidgetPaint& paint, const ColourPair& button);

// The face of a card on the panel, between the ground and a button's face, and its outline.
ColourPair CardColours(const WidgetPaint& paint, const SystemColours& system);

}  // namespace varnel
