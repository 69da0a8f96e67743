#include "tools/shots/preview_subjects.h"

#include <windows.h>

#include <commctrl.h>

#include "base/image.h"
#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/files.h"
#include "tests/rig/input.h"
#include "tests/rig/menus.h"
#include "tools/shots/sample_boards.h"
#include "tools/shots/sample_month.h"
#include "win/graphics/pictures.h"
#include "win/system/com.h"

namespace varnel::shots {
namespace {

using namespace rig;

constexpr wchar_t kDetails[] = L"frmNOTpp\\Details";

std::vector<StoredText> Looked(const wchar_t* zoom, const wchar_t* columns = L"1") {
  return {{kDetails, L"Zoom", zoom}, {kDetails, L"Sheets-Side-By-Side", columns}};
}
const std::vector<StoredText> kWideMargins = {{kDetails, L"Margin-Left", L"3402"},
                                              {kDetails, L"Margin-Right", L"1701"},
                                              {kDetails, L"Margin-Top", L"2268"},
                                              {kDetails, L"Landscape", L"1"},
                                              {kDetails, L"Colour", L"0"}};

// A picture of a hill before the sky.
std::string Hill() {
  const ComApartment apartment;
  Image image(320, 160, 0xFF9CC8F0);
  for (int x = 0; x < 320; ++x) {
    const int top = 40 + (x - 150) * (x - 150) / 260;
    for (int y = top; y < 160; ++y) image.Set(x, y, 0xFF3A8F4A - static_cast<unsigned>(y / 4));
  }
  constexpr char kDigits[] = "0123456789abcdef";
  std::string hex;
  for (const char byte : EncodePng(image)) {
    hex += kDigits[static_cast<unsigned char>(byte) >> 4];
    hex += kDigits[byte & 15];
  }
  return hex;
}

void PlantNote(const std::wstring& program_folder) {
  std::string rtf =
      "{\\rtf1\\ansi{\\fonttbl{\\f0 Times New Roman;}{\\f1 Arial;}}"
      "{\\colortbl;\\red20\\green80\\blue150;\\red180\\green40\\blue40;\\red255\\green240\\blue150;"
      "}"
      "\\f1\\fs40\\b\\cf1 A walk over the hill\\par\\pard\\sb120\\sa120\\f0\\fs24\\b0\\cf0 ";
  rtf += "{\\pict\\pngblip\\picw320\\pich160\\picwgoal4800\\pichgoal2400 " + Hill() + "}\\par ";
  rtf +=
      "\\pard\\sa80 Take {\\b boots}, a {\\i map} and {\\ul water}; {\\strike no tent}. "
      "{\\highlight3 Leave at eight}, {\\cf2 not later}. H{\\sub 2}O, 5 km{\\super 2}.\\par "
      "\\pard\\tx2400\\tx4800\\tqr\\tldot\\tx8400 Start\\tab 8:00\\tab station\\tab 1\\par "
      "Summit\\tab 11:30\\tab 612 m\\tab 2\\par ";
  for (const char* item : {"sun cream", "bread and cheese", "a book for the train"}) {
    rtf += std::string(
               "{\\pntext\\'b7\\tab}\\pard{\\*\\pn\\pnlvlblt\\pnindent360{\\pntxtb\\'b7}}"
               "\\fi-360\\li720 ") +
           item + "\\par ";
  }
  constexpr const char* kAlignments[] = {"\\ql", "\\qj", "\\qc", "\\qr", "\\qj"};
  for (int i = 0; i < 24; ++i) {
    rtf += std::string("\\pard\\sb100\\sa60") + kAlignments[i % 5] +
           (i % 6 == 4 ? "\\sl480\\slmult1 " : " ");
    for (int k = 0; k < 3 + i % 4; ++k) {
      rtf +=
          "Behind the last houses the path climbs between hedges, crosses the brook by a bridge "
          "of old stone and comes out on the open slope. ";
    }
    rtf += "\\par ";
  }
  WriteBytes(program_folder + L"\\tavrin\\A walk.rtf", rtf + "}");
}

// Chooses the document that is there and opens its preview.
Preparation Open(const wchar_t* command, std::function<void(HWND preview)> further = {}) {
  return [command, further](const Program& program, HWND form) {
    if (HWND list = Control(form, lvwFILES)) {
      WaitUntil([list] { return !RowLabels(list).empty(); });
      const Rect rows = RectOf(list);
      Click({rows.left + 40, rows.top + 16});
      WaitUntilStill([form] { return Text(form); });
    }
    Choose(form, command);
    HWND preview = WaitForForm(program, L"frmNOTpp");
    WaitUntil([preview] { return !Text(Control(preview, lblPAGES)).ends_with(L"+"); });
    if (further) further(preview);
  };
}

void ShowTexts(HWND preview) {
  Send(Control(preview, tabSETUP), TCM_SETCURFOCUS, 1);
}

Subject NotePreview(const wchar_t* name, int looks, std::vector<StoredText> settings,
                    std::function<void(HWND preview)> further = {}) {
  return {name,        kNotes,      looks,    std::move(settings), Open(L"mnuNOTESPRINT", further),
          Part::kForm, L"frmNOTpp", PlantNote};
}

}  // namespace

std::vector<Subject> PreviewSubjects() {
  return {
      NotePreview(L"preview-page", kDpis, Looked(L"Whole page")),
      NotePreview(L"preview-width", kPlain, Looked(L"Page width")),
      NotePreview(L"preview-200", kPlain, Looked(L"200 %")),
      NotePreview(L"preview-two", kPlain, Looked(L"Whole page", L"2")),
      NotePreview(L"preview-four", kPlain, Looked(L"Whole page", L"4")),
      NotePreview(L"preview-margins", kPlain, kWideMargins),
      NotePreview(L"preview-texts", kDpis, Looked(L"75 %"), ShowTexts),
      {L"preview-month",
       kCalendar,
       kPlain,
       {},
       Open(L"mnuCALPRINT"),
       Part::kForm,
       L"frmNOTpp",
       PlantMonth},
      {L"preview-board",
       kWhiteboard,
       kPlain,
       {},
       Open(L"mnuWBOARDPRINT"),
       Part::kForm,
       L"frmNOTpp",
       PlantBoards},
  };
}

}  // namespace varnel::shots
