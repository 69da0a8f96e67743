// The program's commands, and its menus as the user sees them.
#pragma once

#include <windows.h>

#include <optional>
#include <string_view>

#include "tests/rig/forms.h"

namespace varnel::rig {

// Chooses a menu command by its name, as "mnuDCEXIT", without opening the menu: a command of one
// widget on that widget's form, a shared one on frmSTRmn. Comes back before the command is done.
void Choose(HWND form, std::wstring_view command);
// The same for element `index` of an array of commands, as "mnuDCWIDGETS".
void Choose(HWND form, std::wstring_view array, int index);
// A shared command, on the program's frmSTRmn. False when there is no such form.
bool ChooseShared(const Program& program, std::wstring_view command);
bool ChooseShared(const Program& program, std::wstring_view array, int index);

// Chooses "mnuDCEXIT" and gives the exit code; nothing when the program is still there at the
// deadline.
std::optional<DWORD> LeaveByMenu(const Program& program, int deadline = kPatience);

// Waits until so many menus are open, submenus counted, and take mouse and keys. False when they do
// not come or do not go. A menu that was opened by mouse has the pointer on it, which may choose an
// item just like that: choose by mnemonic or click, or move the mouse away before the arrow keys.
bool WaitForMenus(const Program& program, int count, int deadline = kPatience);

}  // namespace varnel::rig
