// latency times how long a press takes until its effect is painted on the screen, in the program
// that VARNEL_EXE names. Prints one line for each figure: its name, a tab, the median, a tab, the
// unit.
#include <optional>
#include <vector>

#include "bench/timing.h"
#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/files.h"
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
  bool in_text = false;  // of a note of 100 KB, at its beginning
};

constexpr Press kFigures[] = {
    {"stopwatch, click to painted button", L"Start-Load-Stopwatch", L"frmSTWwg", lblStartfrmSTWwg,
     lblStartfrmSTWwg, 0},
    {"calculator, key to painted digit", L"Start-Load-Calc", L"frmCLCwg", lbl01234567890, 0, '7'},
    {"note of 100 KB, key to painted letter", L"Start-Load-Notes", L"frmNOTwg", rtbPAGEBOX, 0, 'W',
     true},
};

// Unsaved changes of a run before, which the program shows when it starts.
void PlantLongNote(const std::wstring& folder) {
  constexpr std::size_t kUnits = 100'000;
  std::string rtf = "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0 Tahoma;}}\\f0\\fs24 ";
  for (std::size_t units = 0; units < kUnits; ++units) {
    rtf += units % 200 == 199 ? "\\par\r\n" : std::string(1, "some plain words "[units % 17]);
  }
  WriteBytes(folder + L"\\tavrin\\.varnel\\long.rtf.draft", rtf + "}");
}

// What a letter moves, and the blinking caret before it does not touch.
Rect MovedByLetter(HWND editor) {
  const Rect whole = RectOf(editor);
  constexpr int kLetters = 120;
  return {whole.left + kLetters, whole.top, whole.right - 30, whole.top + 24};
}

Rect WatchedPart(const Press& press, HWND watched) {
  return press.in_text ? MovedByLetter(watched) : RectOf(watched);
}

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
  const Rect part = WatchedPart(press, watched);
  const Picture before = WaitUntilStill([&] { return Picture(part); }, 200);
  const double start = bench::Milliseconds();
  SendPress(press, true);
  double now = start;
  bool changed = false;
  while (!changed && now - start < kPatienceMs) {
    changed = Picture(part) != before;
    now = bench::Milliseconds();
  }
  SendPress(press, false);
  if (!changed) return std::nullopt;
  return now - start;
}

void Measure(const Press& press) {
  Root root;
  if (press.in_text) PlantLongNote(root.folder());
  root.settings().SetText(L"frmVRNpr\\Details", press.flag, L"True");
  root.settings().SetText(L"frmVRNpr\\Details", L"Program Minimize on Start", L"1");
  Program program(root);
  if (!program.Start()) return;
  HWND form = WaitForForm(program, press.form);
  HWND watched = form ? Control(form, press.watched) : nullptr;
  if (!watched || !Activate(form)) return;
  if (press.clicked) MoveMouse(CentreOf(watched));
  if (press.in_text) {
    ClickOn(watched);
    Chord({VK_CONTROL, VK_HOME});
  }
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
