// Message boxes and the system's own dialogs, which share one window class.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/rig/controls.h"

namespace varnel::rig {

// The topmost dialog of that class that the program shows, or null. The program's own dialogs are
// forms with a class of their own and are found by name.
HWND FindDialog(const Program& program);
HWND WaitForDialog(const Program& program, int deadline = kPatience);

// The texts of its labels, one a line.
std::wstring DialogText(HWND dialog);

// Presses one of its buttons by number: IDOK, IDCANCEL, IDYES, IDNO or the dialog's own. Comes back
// before the dialog acts on it; wait for what it does, or for the dialog to be gone.
void PressButton(HWND dialog, int id);

// Presses the button and waits until the dialog is gone. False when it stays.
bool CloseDialog(HWND dialog, int id);

}  // namespace varnel::rig
