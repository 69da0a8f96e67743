// Single-line edit boxes on a form that paints itself.
#pragma once

#include <windows.h>

#include <string>

#include "base/geometry.h"

namespace varnel {

// Makes an edit box without a border; `style` adds to it, `most` is the most it takes, in UTF-16
// units. Null when the system refuses.
HWND CreateEditBox(HWND parent, int id, DWORD style, int most);

// `place` in pixels of the parent. The font is borrowed for as long as the box uses it.
void PlaceEditBox(HWND box, const Rect& place, HFONT font);

// Puts the caret at the end; a box that holds the text already is left alone.
void SetEditText(HWND box, const std::wstring& text);

}  // namespace varnel
