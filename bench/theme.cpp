// theme times the theme dialog of the program that VARNEL_EXE names: how long it takes to open on a
// folder with every generated preset, and until a change of the theme is painted on the widget.
// Prints one line for each figure: its name, a tab, the median, a tab, the unit.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "bench/timing.h"
#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/files.h"
#include "tests/rig/input.h"
#include "tests/rig/menus.h"
#include "tests/rig/picture.h"

namespace varnel::rig {
namespace {

constexpr int kRounds = 15;

// Prints the median time from the start of `act` until `done`.
void Print(const char* name, const std::function<void(int)>& act,
           const std::function<bool()>& done) {
  std::vector<double> times;
  for (int i = 0; i < kRounds; ++i) {
    const double start = bench::Milliseconds();
    act(i);
    while (!done() && bench::Milliseconds() - start < kPatience) {
    }
    times.push_back(bench::Milliseconds() - start);
  }
  bench::PrintMedian(name, times);
}

// Puts every preset of the styles into the user's own folder too.
void GatherPresets(const std::wstring& themes) {
  for (const std::wstring& file : FilesBelow(themes)) {
    std::wstring name = file;
    std::ranges::replace(name, L'\\', L' ');
    WriteBytes(themes + L"\\Custom\\" + name, FileBytes(themes + L"\\" + file).value_or(""));
  }
}

void Measure(const Program& program, HWND stopwatch) {
  HWND dialog = nullptr;
  Picture last;
  const auto open = [&](int) {
    if (dialog) Send(dialog, WM_CLOSE);
    Choose(stopwatch, L"mnuDCSETTINGS");
  };
  open(0);
  dialog = WaitForForm(program, L"frmTHEME");
  if (!dialog) return;
  last = StillPictureOf(dialog);
  std::fprintf(stderr, "%zu presets, %zu fonts\n", Items(Control(dialog, flbLIST)).size(),
               Items(Control(dialog, cboBAR)).size());
  Print("theme dialog, all presets, choice to painted", open, [&] {
    dialog = FindForm(program, L"frmTHEME");
    return dialog && IsShown(dialog) && PictureOf(dialog) == last;
  });

  HWND elapsed = Control(stopwatch, lblELAPSED);
  const auto slide = [&](int place) {
    last = PictureOf(elapsed);
    Send(Control(dialog, hsbCONTRAST), TBM_SETPOS, TRUE, 100 + 10 * place);
    Send(dialog, WM_HSCROLL, TB_THUMBTRACK, reinterpret_cast<LPARAM>(Control(dialog, hsbCONTRAST)));
  };
  Print("theme change to painted widget", slide, [&] { return PictureOf(elapsed) != last; });
}

}  // namespace
}  // namespace varnel::rig

int main() {
  using namespace varnel::rig;
  ResetInput();
  const Root root;
  root.settings().SetText(L"Settings\\Details", L"Web Address", L"http://127.0.0.1:9/");
  root.settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Stopwatch", L"True");
  root.settings().SetText(L"frmTHEME\\Details", L"Theme-folder", L"Custom");
  Program program(root);
  if (!program.Start()) return 1;
  HWND stopwatch = WaitForForm(program, L"frmSTWwg");
  if (!stopwatch) return 1;
  GatherPresets(root.folder() + L"\\themes");
  Measure(program, stopwatch);
}
