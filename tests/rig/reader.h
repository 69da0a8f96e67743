// What a program that reads the screen aloud hears of a window of another program.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "base/geometry.h"

namespace varnel::rig {

struct Heard {
  std::wstring name;
  std::wstring description;
  std::wstring action;
  long role = 0;   // ROLE_SYSTEM_...
  long state = 0;  // STATE_SYSTEM_...
  Rect place;      // in pixels of the screen
};

// The window itself, or its part of that number, from 1 on. Nothing when it does not answer. The
// thread has to be in a ComApartment.
std::optional<Heard> Hear(HWND window, int part = 0);
// How many parts it says it has.
int HeardParts(HWND window);
// Does the window's default action. False when it has none.
bool ActOn(HWND window);

}  // namespace varnel::rig
