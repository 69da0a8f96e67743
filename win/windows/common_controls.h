// The system's newer controls: their library is loaded when the first of them is wanted, not at
// start-up.
#pragma once

#include <windows.h>

#include "base/geometry.h"

namespace varnel {

// From here on this thread, and those that it starts, make their controls and dialogs in the newer,
// themed version. The process as a whole does not, so that what draws its buttons itself loads
// nothing for them. Where the system refuses, the older version does.
void UseThemedControls();

// Makes the window classes named by `classes` (ICC_ bits) known. False when this system has none.
bool LoadCommonControls(DWORD classes);

// Gives a list view an empty set of pictures (`set`: LVSIL_NORMAL or LVSIL_SMALL) of that size in
// place of the one it had; an empty size leaves it without. Rows are one pixel higher than the
// small pictures, be there any or not.
void ResetPictures(HWND list_view, int set, Size size);

// Adds a copy of a bitmap to a set of pictures; returns its number there, or -1.
int AddPicture(HWND list_view, int set, HBITMAP bitmap);

}  // namespace varnel
