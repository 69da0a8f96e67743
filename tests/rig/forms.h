// The program's top-level windows and what can be seen of any window from outside. Points and
// rectangles are in pixels of the screen.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/geometry.h"
#include "tests/rig/program.h"

namespace varnel::rig {

// The top-level windows of the program with that window class (every form's class is its name),
// shown or not, topmost first.
std::vector<HWND> FindForms(const Program& program, std::wstring_view name);

// The first of them, or null.
HWND FindForm(const Program& program, std::wstring_view name);

// The program's top-level windows of every class, shown or not, topmost first.
std::vector<HWND> TopLevelWindows(const Program& program);

// Waits until a form of that name is shown by a program that has started up, and gives it; null
// when none comes.
HWND WaitForForm(const Program& program, std::wstring_view name, int deadline = kPatience);

// Waits until no form of that name is shown: all are hidden or gone. False when one stays.
bool WaitForNoForm(const Program& program, std::wstring_view name, int deadline = kPatience);

std::wstring ClassOf(HWND window);
Rect RectOf(HWND window);
Point CentreOf(HWND window);

// Shown itself, and so is every window around it.
bool IsShown(HWND window);
bool IsEnabled(HWND window);
bool IsTopmost(HWND window);
// 0 to 255, or nothing for a window that is not layered with one opacity.
std::optional<int> AlphaOf(HWND window);

// Makes it the foreground window and waits until it gets what is typed. False when it does not.
bool Activate(HWND window);
// The window that gets what is typed, when it belongs to the foreground window's thread; else null.
HWND FocusedWindow();

// The window that a click at the point would reach; null for a bare part of a dialog.
HWND WindowAt(Point point);

// Sends a message that carries no pointer of ours and gives its result; 0 when the program has not
// answered after kPatience.
LRESULT Send(HWND window, UINT message, WPARAM wparam = 0, LPARAM lparam = 0);

// What the system does when the user logs off: asks every top-level window of the program, then
// tells each what came of it. True when the session may end.
bool EndSession(const Program& program);

}  // namespace varnel::rig
