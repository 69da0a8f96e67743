// Buttons of a dialog that show a symbol and keep words as their text.
#pragma once

#include <windows.h>

#include "win/windows/ui.h"

namespace varnel {

// Draws an owner-drawn push button as the system draws its own, with a glyph of the symbol font.
void DrawIconButton(Ui& ui, const DRAWITEMSTRUCT& item, wchar_t glyph, int dpi);

}  // namespace varnel
