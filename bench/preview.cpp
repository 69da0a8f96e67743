// preview times the print preview of a long note in the program that VARNEL_EXE names:
// until its first page is there, until all are counted, and from a key to another page painted.
// Prints lines as latency does.
#include <string>
#include <vector>

#include "bench/timing.h"
#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/files.h"
#include "tests/rig/input.h"
#include "tests/rig/menus.h"
#include "tests/rig/picture.h"
#include "tests/rig/program.h"

namespace varnel::rig {
namespace {

constexpr int kPages = 20;  // turned in a row
constexpr double kPatienceMs = 5000;
constexpr int kLongest = 60'000;   // milliseconds until the note is in the editor
constexpr Size kWatched{240, 40};  // pixels: as much as reading the screen in no time allows

// The notes' editor takes long for more on the test platform. Paragraphs that begin with their
// number, so that no two pages are alike.
std::string LongNote() {
  constexpr std::size_t kLength = 200'000;
  std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Times New Roman;}}\\f0\\fs24 ";
  for (int i = 0; rtf.size() < kLength; ++i) {
    rtf += "\\pard\\qj Paragraph " + std::to_string(i) + ". ";
    for (int k = 0; k < 9; ++k) rtf += "Some {\\b words} of a note that is {\\i long} enough. ";
    rtf += "\\par ";
  }
  return rtf + "}";
}

// The lines in the middle of the sheets' view.
Picture Watched(HWND sheets) {
  const Point middle = CentreOf(sheets);
  return Picture(RectAt({middle.x - kWatched.width / 2, middle.y - kWatched.height / 2}, kWatched));
}

// Does not wait for anything.
void SendKey(WORD key) {
  INPUT events[2] = {};
  for (INPUT& event : events) {
    event.type = INPUT_KEYBOARD;
    event.ki.wVk = key;
  }
  events[1].ki.dwFlags = KEYEVENTF_KEYUP;
  ::SendInput(2, events, sizeof *events);
}

// The time from a key until another page is painted; `rest` lets the program come to rest before.
double TurnPage(HWND sheets, bool rest) {
  if (rest) StillPictureOf(sheets);
  const Picture before = Watched(sheets);
  const double start = bench::Milliseconds();
  SendKey(VK_NEXT);
  double now = start;
  do {
    now = bench::Milliseconds();
  } while (Watched(sheets) == before && now - start < kPatienceMs);
  return now - start;
}

void TurnPages(HWND sheets, const char* name, bool rest) {
  SendKey(VK_HOME);
  StillPictureOf(sheets);
  std::vector<double> times;
  for (int i = 0; i < kPages; ++i) times.push_back(TurnPage(sheets, rest));
  bench::PrintMedian(name, times);
}

void Measure(const Program& program, HWND notes) {
  const double start = bench::Milliseconds();
  Choose(notes, L"mnuNOTESPRINT");
  HWND preview = WaitForForm(program, L"frmNOTpp");
  if (!preview) return;
  HWND count = Control(preview, lblPAGES);
  WaitUntil([count] { return Text(count).starts_with(L"of "); });
  bench::PrintMedian("preview, note of 200 KB to first page", {bench::Milliseconds() - start});
  WaitUntil([count] { return !Text(count).ends_with(L"+"); });
  bench::PrintMedian("preview, note of 200 KB to all pages counted",
                     {bench::Milliseconds() - start});
  HWND sheets = Control(preview, picSHEETS);
  if (!Activate(preview) || !ClickOn(sheets)) return;
  TurnPages(sheets, "preview, key to painted page", true);
  TurnPages(sheets, "preview, key to painted page without a rest", false);
}

}  // namespace
}  // namespace varnel::rig

int main() {
  using namespace varnel::rig;
  ResetInput();
  const Root root;
  WriteBytes(root.folder() + L"\\tavrin\\Long.rtf", LongNote());
  root.settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Notes", L"True");
  root.settings().SetText(L"frmNOTpp\\Details", L"Zoom", L"Whole page");
  Program program(root);
  if (!program.Start(L"/tray")) return 1;
  HWND notes = WaitForForm(program, L"frmNOTwg");
  HWND list = notes ? Control(notes, varnel::lvwFILES) : nullptr;
  if (!list || !Activate(notes)) return 1;
  WaitUntil([list] { return RowLabels(list).size() == 1; });
  const varnel::Rect rows = RectOf(list);
  Click({rows.left + 40, rows.top + 14});
  const auto taken = [notes] {
    return Text(Control(notes, varnel::rtbPAGEBOX)).starts_with(L"Paragraph 0.");
  };
  if (!WaitUntil(taken, kLongest) || !program.WaitUntilIdle(kLongest)) return 1;
  Measure(program, notes);
  ResetInput();
}
