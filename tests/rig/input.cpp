#include "tests/rig/input.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

#include "tests/rig/forms.h"

namespace varnel::rig {
namespace {

// Between two events, as a quick hand needs.
constexpr DWORD kPace = 10;  // milliseconds

// Waits until the window's thread is back at its messages: one that is in the middle of something,
// or gets no time on a busy machine, holds the hand back. It answers before it takes an event from
// its queue, so it takes a few answers to know that it went on from the first.
void LetAnswer(HWND window) {
  for (int i = 0; i < 3 && window; ++i) Send(window, WM_NULL);
}

// The next event must not come before this one is worked off: a key is pressed while a modifier is
// still down, a drag has begun before the mouse moves on.
void SendEvent(INPUT& event, HWND under_pointer = nullptr) {
  ::SendInput(1, &event, sizeof event);
  ::Sleep(kPace);
  LetAnswer(under_pointer);
  LetAnswer(::GetForegroundWindow());
}

// Every event says where the pointer is: what moved it in the meantime (a window that came up under
// it, say) must not lead a click astray.
void SendMouse(Point at, DWORD flags, DWORD data = 0) {
  // The screen is 65536 units wide and high; rounded up, as the system rounds down.
  const int width = ::GetSystemMetrics(SM_CXSCREEN);
  const int height = ::GetSystemMetrics(SM_CYSCREEN);
  INPUT event = {};
  event.type = INPUT_MOUSE;
  event.mi.dx = (at.x * 65536 + width - 1) / width;
  event.mi.dy = (at.y * 65536 + height - 1) / height;
  event.mi.dwFlags = MOUSEEVENTF_ABSOLUTE | MOUSEEVENTF_MOVE | flags;
  event.mi.mouseData = data;
  SendEvent(event, WindowAt(at));
}

void PressAndRelease(Point at, MouseButton button) {
  PressMouse(at, button);
  ReleaseMouse(at, button);
}

// A click soon after another one at the same place would make the two a double click.
void LetDoubleClickPass(Point at) {
  POINT pointer = {};
  ::GetCursorPos(&pointer);
  if (std::abs(pointer.x - at.x) > ::GetSystemMetrics(SM_CXDOUBLECLK) ||
      std::abs(pointer.y - at.y) > ::GetSystemMetrics(SM_CYDOUBLECLK)) {
    return;
  }
  LASTINPUTINFO last = {};
  last.cbSize = sizeof last;
  ::GetLastInputInfo(&last);
  const DWORD since = ::GetTickCount() - last.dwTime;
  if (since <= ::GetDoubleClickTime()) ::Sleep(::GetDoubleClickTime() - since + kPace);
}

// In the order of MouseButton.
constexpr struct {
  int key;
  DWORD down, up;
} kButtons[] = {{VK_LBUTTON, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP},
                {VK_RBUTTON, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP}};

// Keys that a number pad has too; the flag says that these are not those.
bool IsExtended(WORD key) {
  constexpr WORD kKeys[] = {VK_LEFT,   VK_RIGHT, VK_UP,       VK_DOWN,   VK_HOME,
                            VK_END,    VK_PRIOR, VK_NEXT,     VK_INSERT, VK_DELETE,
                            VK_DIVIDE, VK_APPS,  VK_RCONTROL, VK_RMENU};
  return std::ranges::find(kKeys, key) != std::end(kKeys);
}

void SendKey(WORD key, DWORD flags) {
  INPUT event = {};
  event.type = INPUT_KEYBOARD;
  event.ki.wVk = key;
  event.ki.wScan = static_cast<WORD>(::MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
  event.ki.dwFlags = flags | (IsExtended(key) ? KEYEVENTF_EXTENDEDKEY : 0);
  SendEvent(event);
}

void SendUnit(wchar_t unit, DWORD flags) {
  INPUT event = {};
  event.type = INPUT_KEYBOARD;
  event.ki.wScan = unit;
  event.ki.dwFlags = flags | KEYEVENTF_UNICODE;
  SendEvent(event);
}

}  // namespace

void MoveMouse(Point to) {
  SendMouse(to, 0);
}

void PressMouse(Point at, MouseButton button) {
  SendMouse(at, kButtons[static_cast<int>(button)].down);
}

void ReleaseMouse(Point at, MouseButton button) {
  SendMouse(at, kButtons[static_cast<int>(button)].up);
}

void TurnWheel(Point at, int notches) {
  SendMouse(at, MOUSEEVENTF_WHEEL, static_cast<DWORD>(notches * WHEEL_DELTA));
}

void Click(Point at, MouseButton button) {
  LetDoubleClickPass(at);
  MoveMouse(at);
  PressAndRelease(at, button);
}

void DoubleClick(Point at, MouseButton button) {
  Click(at, button);
  PressAndRelease(at, button);
}

void Drag(Point from, Point to, int steps) {
  std::vector<Point> points = {from};
  for (int i = 1; i <= steps; ++i) {
    points.push_back({from.x + (to.x - from.x) * i / steps, from.y + (to.y - from.y) * i / steps});
  }
  Stroke(points);
}

void Stroke(std::span<const Point> points, MouseButton button) {
  if (points.empty()) return;
  MoveMouse(points.front());
  PressMouse(points.front(), button);
  for (const Point& point : points.subspan(1)) MoveMouse(point);
  ReleaseMouse(points.back(), button);
}

// When a window comes or goes beneath the pointer, Wine puts the keys into the state that the
// display has them in, which knows nothing of ours: a held key was let go of once the program,
// later on a busy machine, came to that. So the keys held so far are looked at before each further
// one.
HeldKeys::HeldKeys(std::initializer_list<WORD> keys) : keys_(keys) {
  constexpr int kTries = 20;
  for (auto key = keys_.begin(); key != keys_.end(); ++key) {
    for (int i = 0; i < kTries; ++i) {
      const auto lost =
          std::find_if(keys_.begin(), key, [](WORD held) { return ::GetAsyncKeyState(held) >= 0; });
      if (lost == key) break;
      SendKey(*lost, 0);
    }
    SendKey(*key, 0);
  }
}

HeldKeys::~HeldKeys() {
  for (auto key = keys_.rbegin(); key != keys_.rend(); ++key) SendKey(*key, KEYEVENTF_KEYUP);
}

bool ClickOn(HWND window, MouseButton button) {
  // A window that has only just come up may still be on its way to its place.
  const bool free = WaitUntil([window] {
    const HWND there = WindowAt(CentreOf(window));
    return there == window || ::IsChild(window, there);
  });
  if (free) Click(CentreOf(window), button);
  return free;
}

void PressKey(WORD key) {
  Chord({key});
}

void PressKeys(std::initializer_list<WORD> keys) {
  for (const WORD key : keys) PressKey(key);
}

void Chord(std::initializer_list<WORD> keys) {
  const HeldKeys held(keys);
}

void Type(std::wstring_view text) {
  for (const wchar_t unit : text) {
    if (unit == L'\n') {
      PressKey(VK_RETURN);
      continue;
    }
    SendUnit(unit, 0);
    SendUnit(unit, KEYEVENTF_KEYUP);
  }
}

void ResetInput() {
  for (const WORD key : {VK_SHIFT, VK_CONTROL, VK_MENU, VK_LWIN}) {
    if (::GetAsyncKeyState(key) < 0) SendKey(key, KEYEVENTF_KEYUP);
  }
  const Point rest = {::GetSystemMetrics(SM_CXSCREEN) / 2, ::GetSystemMetrics(SM_CYSCREEN) - 1};
  for (const auto& [key, down, up] : kButtons) {
    if (::GetAsyncKeyState(key) < 0) SendMouse(rest, up);
  }
  MoveMouse(rest);
}

}  // namespace varnel::rig
