// theme times the theme dialog of the program that VARNEL_EXE names: how long it takes to open on a
// folder with every generated preset and a machine with 300 fonts more, and until a change of the
// theme is painted on the widget. Prints one line for each figure: its name, a tab, the median, a
// tab, the unit.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "base/number_text.h"
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
constexpr int kMoreFonts = 300;
constexpr std::wstring_view kModelFont = L"Tahoma";

// `text` as a font file has it: two bytes a letter, the higher one first.
std::string FontName(std::wstring_view text) {
  std::string bytes;
  for (const wchar_t unit : text) bytes += {static_cast<char>(unit >> 8), static_cast<char>(unit)};
  return bytes;
}

// Fonts for the programs that are started while it lives: the model under other names.
class MoreFonts {
 public:
  explicit MoreFonts(const std::wstring& folder) {
    const std::string model =
        FileBytes(L"C:\\windows\\Fonts\\" + std::wstring(kModelFont) + L".ttf").value_or("");
    for (int i = 0; i < kMoreFonts; ++i) {
      // As long as the model's own name, so that it fits in its place.
      const std::wstring name = L"Ta" + PaddedNumber(i, 4);
      files_.push_back(folder + L"\\" + name + L".ttf");
      WriteBytes(files_.back(), Renamed(model, FontName(name)));
      ::AddFontResourceW(files_.back().c_str());
    }
  }
  MoreFonts(const MoreFonts&) = delete;
  MoreFonts& operator=(const MoreFonts&) = delete;
  ~MoreFonts() {
    for (const std::wstring& file : files_) ::RemoveFontResourceW(file.c_str());
  }

 private:
  static std::string Renamed(std::string font, const std::string& name) {
    const std::string model = FontName(kModelFont);
    for (std::size_t at = 0; (at = font.find(model, at)) != font.npos; at += name.size()) {
      font.replace(at, model.size(), name);
    }
    return font;
  }

  std::vector<std::wstring> files_;
};

// Prints the median time from the start of `act` until `done`. `prepare` comes before each round.
void Print(const char* name, const std::function<void()>& prepare,
           const std::function<void(int)>& act, const std::function<bool()>& done) {
  std::vector<double> times;
  for (int i = 0; i < kRounds; ++i) {
    prepare();
    const double start = bench::Milliseconds();
    act(i);
    // Asking without a pause would take the time that the program needs.
    while (!done() && bench::Milliseconds() - start < kPatience) ::Sleep(1);
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
  const auto open = [&](int) { Choose(stopwatch, L"mnuDCSETTINGS"); };
  open(0);
  HWND dialog = WaitForForm(program, L"frmTHEME");
  if (!dialog) return;
  Picture last = StillPictureOf(dialog);
  const Picture part = PictureOf(Control(dialog, cmdOKfrmTHEME));
  std::fprintf(stderr, "%zu presets, %zu fonts\n", Items(Control(dialog, flbLIST)).size(),
               Items(Control(dialog, cboBAR)).size());
  const auto close = [&] {
    const Rect place = RectOf(dialog);
    Send(dialog, WM_CLOSE);
    WaitForNoForm(program, L"frmTHEME");
    // What lay below may still be to be painted.
    WaitUntil([&] { return Picture(place) != last; });
  };
  Print("theme dialog, 140 presets, 300 fonts, to painted", close, open, [&] {
    dialog = FindForm(program, L"frmTHEME");
    // A look at a small part first: taking large pictures holds up who paints them.
    return dialog && IsShown(dialog) && PictureOf(Control(dialog, cmdOKfrmTHEME)) == part &&
           PictureOf(dialog) == last;
  });

  HWND elapsed = Control(stopwatch, lblELAPSED);
  const auto rest = [&] {
    StillPictureOf(dialog);
    last = StillPictureOf(elapsed);
  };
  const auto slide = [&](int place) {
    HWND slider = Control(dialog, hsbCONTRAST);
    Send(slider, TBM_SETPOS, TRUE, 100 + 10 * place);
    ::PostMessageW(dialog, WM_HSCROLL, TB_THUMBTRACK, reinterpret_cast<LPARAM>(slider));
  };
  Print("theme change to painted widget", rest, slide, [&] { return PictureOf(elapsed) != last; });
}

}  // namespace
}  // namespace varnel::rig

int main() {
  using namespace varnel::rig;
  ResetInput();
  const Root root;
  root.settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Stopwatch", L"True");
  root.settings().SetText(L"frmTHEME\\Details", L"Theme-folder", L"Custom");
  const MoreFonts fonts(root.folder() + L"\\fonts");
  Program program(root);
  if (!program.Start()) return 1;
  HWND stopwatch = WaitForForm(program, L"frmSTWwg");
  if (!stopwatch) return 1;
  GatherPresets(root.folder() + L"\\themes");
  Measure(program, stopwatch);
}
