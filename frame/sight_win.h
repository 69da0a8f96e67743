// Whether a widget's window can be seen, and the ways in and out of sight.
#pragma once

#include <windows.h>

namespace varnel {

enum class Sight { kShown, kMinimised, kHidden };

// Of a window that other windows may cover.
Sight SightOf(HWND window);

// Minimises the window. A tool window becomes an entry of the task bar for that time: the system
// would leave a stub of a title bar on the desktop instead.
void MinimiseToTaskBar(HWND window);

// Shows the window at its former place and size, minimised or hidden as it may be. `command` is
// SW_SHOWNORMAL or SW_SHOWNOACTIVATE. One that is a `tool` has no entry of the task bar then.
void BringIntoSight(HWND window, int command, bool tool);

}  // namespace varnel
