// The notification area of the desktop that scenes run on.
#pragma once

#include <optional>

#include "base/geometry.h"
#include "tests/rig/wait.h"

namespace varnel::rig {

// The middle of the icon that has been there longest, at the right end of the taskbar (pixels of
// the screen); nothing while no program has an icon there.
std::optional<Point> TrayIcon();

// Waits until there is an icon, and gives its middle; nothing when none comes.
std::optional<Point> WaitForTrayIcon(int deadline = kPatience);

// Waits until every icon is gone; the shell takes up to 2 s to miss a program that was killed.
// False when one stays.
bool WaitForEmptyTray(int deadline = kPatience);

// Tells every program what a shell tells that has been started anew: that its icons are gone.
void AnnounceTaskbar();

}  // namespace varnel::rig
