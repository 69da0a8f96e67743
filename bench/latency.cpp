// latency times how long a press takes until its effect is painted on the screen, in the program
// that VARNEL_EXE names. Prints one line for each figure: its name, a tab, the median, a tab, the
// unit.
#include <optional>
#include <vector>

#include "bench/timing.h"
#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/input.h"
#include "tests/rig/picture.h"
#include "tests/rig/program.h"

namespace varnel::rig {
namespace {

constexpr int kPresses = 30;
constexpr int kPatienceMs = 1000;

// What is pressed, and the control whose picture it changes.
struct Press {
  const char* name;
  const wchar_t* flag;  // of the widget, in the program's start-up settings
  const wchar_t* form;
  int watched;
  int clicked;  // this button; 0 for the key
  WORD key;
};

constexpr Press kFigures[] = {
    {"stopwatch, click to painted button", L"Start-Load-Stopwatch", L"frmSTWwg", lblStartfrmSTWwg,
     lblStartfrmSTWwg, 0},
    {"calculator, key to painted digit", L"Start-Load-Calc", L"frmCLCwg", lbl01234567890, 0, '7'},
};

// Presses the button under the pointer or the key, or releases it, and does not wait for anything.
void SendPress(const Press& press, bool down) {
  INPUT event = {};
  if (press.clicked) {
    event.type = INPUT_MOUSE;
    event.mi.dwFlags = down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP;
  } else {
    event.type = INPUT_KEYBOARD;
    event.ki.wVk = press.key;
    event.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
  }
  ::SendInput(1, &event, sizeof event);
}

// The time of one press, or nothing when the picture did not change.
std::optional<double> TimeOf(const Press& press, HWND watched) {
  const Picture before = StillPictureOf(watched);
  const double start = bench::Milliseconds();
  SendPress(press, true);
  double now = start;
  bool changed = false;
  while (!changed && now - start < kPatienceMs) {
    changed = PictureOf(watched) != before;
    now = bench::Milliseconds();
  }
  SendPress(press, false);
  if (!changed) return std::nullopt;
  return now - start;
}

void Measure(const Press& press) {
  Root root;
  root.settings().SetText(L"frmVRNpr\\Details", press.flag, L"True");
  root.settings().SetText(L"frmVRNpr\\Details", L"Program Minimize on Start", L"1");
  Program program(root);
  if (!program.Start()) return;
  HWND form = WaitForForm(program, press.form);
  HWND watched = form ? Control(form, press.watched) : nullptr;
  if (!watched || !Activate(form)) return;
  if (press.clicked) MoveMouse(CentreOf(watched));
  std::vector<double> times;
  for (int i = 0; i < kPresses; ++i) {
    if (const auto time = TimeOf(press, watched)) times.push_back(*time);
  }
  if (times.size() < kPresses / 2) return;
  bench::PrintMedian(press.name, times);
}

}  // namespace
}  // namespace varnel::rig

int main() {
  varnel::rig::ResetInput();
  for (const auto& press : varnel::rig::kFigures) varnel::rig::Measure(press);
  varnel::rig::ResetInput();
}
