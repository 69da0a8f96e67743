// boards times the whiteboard and the calendar of the program that VARNEL_EXE names: how long it
// takes until a move of the mouse is a painted line, and until another month is painted, with the
// one before saved; in windows as large as a full-HD screen, the calendar as it is at first too.
// Prints one line for each figure: its name, a tab, the median, a tab, the unit.
#include <optional>
#include <vector>

#include "bench/timing.h"
#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/input.h"
#include "tests/rig/menus.h"
#include "tests/rig/picture.h"
#include "tests/rig/program.h"

namespace varnel::rig {
namespace {

constexpr int kMoves = 40;
constexpr int kPages = 20;
constexpr int kPatienceMs = 2000;
constexpr Size kWindow{1920, 1080};
constexpr COLORREF kRed = RGB(255, 0, 0);

// Milliseconds that `act` takes until `part` of the screen has red, or has none; nothing when that
// does not come.
template <class Act>
std::optional<double> TimeUntil(bool red, const Rect& part, Act act) {
  const double start = bench::Milliseconds();
  act();
  while (bench::Milliseconds() - start < kPatienceMs) {
    if ((Picture(part).CountNear({0, 0, part.width(), part.height()}, kRed) > 0) == red) {
      return bench::Milliseconds() - start;
    }
  }
  return std::nullopt;
}

Rect Around(Point at, int room) {
  return {at.x - room, at.y - room, at.x + room, at.y + room};
}

void Print(const char* name, const std::vector<double>& times, int tries) {
  if (static_cast<int>(times.size()) > tries / 2) bench::PrintMedian(name, times);
}

void FillScreen(HWND widget) {
  ::SetWindowPos(widget, nullptr, 0, 0, kWindow.width, kWindow.height, SWP_NOZORDER);
  StillPictureOf(widget);
}

void MeasureMoves(HWND whiteboard) {
  FillScreen(whiteboard);
  const Rect board = RectOf(Control(whiteboard, picMAINBOARD));
  std::vector<double> times;
  Point at{board.left + 40, board.top + 60};
  PressMouse(at);
  for (int i = 0; i < kMoves; ++i) {
    at = {at.x + 20, board.top + 60 + i % 2 * 20};
    Sleep(20);
    if (const auto time = TimeUntil(true, Around(at, 1), [at] { MoveMouse(at); })) {
      times.push_back(*time);
    }
  }
  ReleaseMouse(at);
  Print("whiteboard of full HD, mouse move to painted pixel", times, kMoves);
}

void MeasurePages(const char* name, HWND calendar) {
  const Rect board = RectOf(Control(calendar, picMAINBOARD));
  const Point from{board.left + board.width() / 4, board.top + board.height() / 4};
  const Point to{from.x + 12, from.y};
  std::vector<double> times;
  for (int i = 0; i < kPages; ++i) {
    Drag(from, to);
    StillPictureOf(calendar);
    if (const auto time = TimeUntil(false, Around(from, 8), [] { PressKey(VK_NEXT); })) {
      times.push_back(*time);
    }
  }
  Print(name, times, kPages);
}

void MeasurePagesOfSizes(HWND calendar) {
  MeasurePages("calendar, a month saved and the next painted", calendar);
  FillScreen(calendar);
  MeasurePages("calendar of full HD, a month saved and the next painted", calendar);
}

void Measure(const wchar_t* flag, const wchar_t* form, void (*measure)(HWND)) {
  Root root;
  root.settings().SetText(L"frmVRNpr\\Details", flag, L"True");
  root.settings().SetText(L"frmVRNpr\\Details", L"Program Minimize on Start", L"1");
  for (const wchar_t* section : {L"frmWBDwg\\Details", L"frmCALwg\\Details"}) {
    root.settings().SetText(section, L"pen-Color-index", L"1");
    root.settings().SetText(section, L"pen-width-index", L"6");
  }
  Program program(root);
  if (!program.Start()) return;
  HWND widget = WaitForForm(program, form);
  if (!widget) return;
  if (!Activate(widget)) return;
  StillPictureOf(widget);
  measure(widget);
}

}  // namespace
}  // namespace varnel::rig

int main() {
  using namespace varnel::rig;
  ResetInput();
  Measure(L"Start-Load-Whiteboard", L"frmWBDwg", MeasureMoves);
  Measure(L"Start-Load-Calendar", L"frmCALwg", MeasurePagesOfSizes);
  ResetInput();
}
