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

// The system's dialog for opening or saving files: puts in `name` (a path, a name, or several names
// in quotation marks), chooses the filter of that index when there is one, and presses OK. Comes
// back before the dialog acts on it. False when this is no such dialog.
bool AnswerFileDialog(HWND dialog, const std::wstring& name, int filter = -1);

// The system's folder picker: chooses the folder and presses OK, as above.
bool AnswerFolderDialog(HWND dialog, const std::wstring& folder);

}  // namespace varnel::rig
