// Context menus from plain data.
#pragma once

#include <windows.h>

#include <vector>

#include "base/geometry.h"
#include "base/menu.h"
#include "win/system/handles.h"

namespace varnel {

// The system's menu, not opened yet; submenus go with it. Empty when the system refuses.
UniqueMenu BuildPopupMenu(const std::vector<MenuItem>& items);

// Opens the menu at `point` (pixels of the screen) and waits for a choice. Gives the id of the item
// chosen, 0 when the menu was left without one. `owner` is made the foreground window first, so
// that a click elsewhere closes the menu.
int ShowPopupMenu(HWND owner, Point point, const std::vector<MenuItem>& items);

}  // namespace varnel
