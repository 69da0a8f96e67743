// Mouse and keys as the user works them: true input events, which go to whatever window is under
// the pointer or in the foreground. Points are in pixels of the screen. Each call comes back once
// the events are on their way; what they do is to be waited for.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

#include "base/geometry.h"

namespace varnel::rig {

enum class MouseButton { kLeft, kRight };

void MoveMouse(Point to);
void PressMouse(Point at, MouseButton button = MouseButton::kLeft);
void ReleaseMouse(Point at, MouseButton button = MouseButton::kLeft);
void TurnWheel(Point at, int notches);  // away from the user when positive

// Two clicks at one place are two clicks: the second waits until it cannot be taken for a double
// one.
void Click(Point at, MouseButton button = MouseButton::kLeft);
void DoubleClick(Point at, MouseButton button = MouseButton::kLeft);
// Presses the left button, moves in `steps` equal steps, releases it.
void Drag(Point from, Point to, int steps = 8);

// Presses the button at the first point, moves along the others with it held, releases it at the
// last.
void Stroke(std::span<const Point> points, MouseButton button = MouseButton::kLeft);

// Holds keys down, in this order, for the length of a scope: modifiers during a stroke or a click.
class HeldKeys {
 public:
  explicit HeldKeys(std::initializer_list<WORD> keys);
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;
  ~HeldKeys();

 private:
  std::vector<WORD> keys_;
};

// Clicks the middle of a window or control. False, without a click, when something else lies there
// and stays.
bool ClickOn(HWND window, MouseButton button = MouseButton::kLeft);

// Presses and releases a key by its virtual-key number, or several, one after the other.
void PressKey(WORD key);
void PressKeys(std::initializer_list<WORD> keys);
// Holds all but the last key while it presses that: {VK_CONTROL, 'C'}. The number of a letter or
// digit key is its capital or digit.
void Chord(std::initializer_list<WORD> keys);
// Types text of any script; a line end is the Enter key.
void Type(std::wstring_view text);

// Brings mouse and keyboard to a known state: no button or modifier held, the pointer in the middle
// of the screen's lowest row.
void ResetInput();

}  // namespace varnel::rig
