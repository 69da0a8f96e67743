#include "widgets/notes/panels/find_panel_win.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "resources/control_ids.h"
#include "win/windows/hourglass.h"
#include "win/windows/window_text.h"

namespace varnel {
namespace {

constexpr int kBoxWidth = 150;
constexpr ULONGLONG kQuietMs = 500;  // before what takes long is told
constexpr int kNarrowBox = 72;
constexpr int kNarrowFace = 27;
constexpr wchar_t kUpGlyph = L'\xE212';
constexpr wchar_t kDownGlyph = L'\xE213';
constexpr wchar_t kReplaceGlyph = L'\xE250';
constexpr wchar_t kReplaceAllGlyph = L'\xE257';
constexpr wchar_t kDrawnByPanel = L' ';

bool Held(int key) {
  return ::GetKeyState(key) < 0;
}

// Whether Esc is or was pressed since the last call, while this program has the keyboard.
bool EscPressed() {
  const bool pressed = ::GetAsyncKeyState(VK_ESCAPE) != 0;
  DWORD process = 0;
  ::GetWindowThreadProcessId(::GetForegroundWindow(), &process);
  return pressed && process == ::GetCurrentProcessId();
}

}  // namespace

FindPanel::FindPanel(NotePanelHost& host, EditedNote& note)
    : NotePanel(host),
      voice_(host),
      note_(note),
      desk_(note, voice_),
      marks_(host.Editor().edit()) {}

void FindPanel::Load() {
  AddCombo(cboFINDWHAT, CBS_DROPDOWN, L"Find what",
           {.width = kBoxWidth, .narrow = kNarrowBox, .grows = true});
  AddButton(btnFINDNEXT, L"Find next", kDownGlyph, {.width = 68, .narrow = 24});
  AddButton(btnFINDPREVIOUS, L"Find previous", kUpGlyph, {24, 1});
  AddButton(chkMATCHCASE, L"Match case", kDrawnByPanel, {kNarrowFace, 1});
  AddButton(chkWHOLEWORDS, L"Whole words", kDrawnByPanel, {kNarrowFace, 1});
  AddCombo(cboREPLACEWITH, CBS_DROPDOWN, L"Replace with", {kBoxWidth, 2, true, kNarrowBox, true});
  AddButton(btnREPLACE, L"Replace", kReplaceGlyph, {62, 2, false, 24});
  AddButton(btnREPLACEALL, L"Replace all", kReplaceAllGlyph, {80, 2, false, 24});
  for (const auto& [id, hint] :
       {std::pair(cboFINDWHAT, L"Find"), std::pair(cboREPLACEWITH, L"Replace with")}) {
    ::SendMessageW(Control(id), CB_LIMITTEXT, kLongestSetting, 0);
    ::SendMessageW(Control(id), CB_SETCUEBANNER, 0, reinterpret_cast<LPARAM>(hint));
  }
  const Settings& settings = host().PanelServices().settings;
  match_case_ = ReadCheck(settings, kFindMatchCaseBox);
  whole_words_ = ReadCheck(settings, kFindWholeWordBox);
  desk_.searched() = HistoryLoad(kFindHistory, settings);
  desk_.replaced() = HistoryLoad(kReplaceHistory, settings);
  ShowHistories();
  ::SetWindowTextW(Control(cboFINDWHAT), desk_.searched().edit_text.c_str());
  ::SetWindowTextW(Control(cboREPLACEWITH), desk_.replaced().edit_text.c_str());
  EnableButtons();
}

void FindPanel::SaveState() {
  Settings& settings = host().PanelServices().settings;
  const FindWishes wishes = Wishes();
  WriteCheck(settings, kFindMatchCaseBox, match_case_);
  WriteCheck(settings, kFindWholeWordBox, whole_words_);
  desk_.searched().edit_text = wishes.wanted;
  desk_.replaced().edit_text = wishes.replacement;
  HistorySave(desk_.searched(), kFindHistory, settings);
  HistorySave(desk_.replaced(), kReplaceHistory, settings);
}

void FindPanel::OnNoteShown(const std::wstring&) {
  desk_.NoteShown();
  EnableButtons();
}

FindWishes FindPanel::Wishes() const {
  return {WindowText(Control(cboFINDWHAT)), WindowText(Control(cboREPLACEWITH)), match_case_,
          whole_words_};
}

ButtonCheck FindPanel::CheckOf(int id) const {
  return Checked((id == chkMATCHCASE && match_case_) || (id == chkWHOLEWORDS && whole_words_));
}

void FindPanel::DrawOnButton(const ButtonPainting& painting) {
  if (painting.button.id == chkMATCHCASE) DrawFace(painting, L"Aa");
  if (painting.button.id == chkWHOLEWORDS) DrawFace(painting, L"|ab|");
}

void FindPanel::EnableButtons() {
  const bool wanted = !WindowText(Control(cboFINDWHAT)).empty();
  for (const int id : {btnFINDNEXT, btnFINDPREVIOUS, btnREPLACEALL}) {
    host().PanelButtons().Enable(id, wanted);
  }
  host().PanelButtons().Enable(btnREPLACE, wanted && desk_.may_replace());
  ::EnableWindow(Control(cboREPLACEWITH), wanted);
  ShowMarks();
}

// The hits are marked while the panel is open.
void FindPanel::ShowMarks() {
  const FindWishes wishes = Wishes();
  marks_.Show(open_ ? wishes.wanted : std::wstring(),
              FindOptionsWord(wishes.whole_words, wishes.match_case));
}

void FindPanel::ShowHistories() {
  ShowHistory(cboFINDWHAT, desk_.searched());
  ShowHistory(cboREPLACEWITH, desk_.replaced());
}

void FindPanel::ShowHistory(int id, const FindHistory& history) {
  HWND box = Control(id);
  const std::wstring text = WindowText(box);
  const LRESULT selected = ::SendMessageW(box, CB_GETEDITSEL, 0, 0);
  ::SendMessageW(box, CB_RESETCONTENT, 0, 0);
  for (const std::wstring& entry : history.entries) {
    ::SendMessageW(box, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
  }
  ::SetWindowTextW(box, text.c_str());
  ::SendMessageW(box, CB_SETEDITSEL, 0, selected);
}

// What a box scrolled out of sight, for want of room, stays there unless the caret goes to it.
void FindPanel::Place(const Rect& box) {
  NotePanel::Place(box);
  open_ = !box.empty();
  ShowMarks();
  for (const int id : {cboFINDWHAT, cboREPLACEWITH}) {
    const LRESULT selected = ::SendMessageW(Control(id), CB_GETEDITSEL, 0, 0);
    ::SendMessageW(Control(id), CB_SETEDITSEL, 0, MAKELPARAM(0, 0));
    ::SendMessageW(Control(id), CB_SETEDITSEL, 0, selected);
  }
}

bool FindPanel::OnControl(int id, int code) {
  switch (id) {
    case cboFINDWHAT:
      if (code == CBN_SELCHANGE) ::SetWindowTextW(Control(id), BoxText(id, code).c_str());
      if (code == CBN_SELCHANGE || code == CBN_EDITCHANGE) EnableButtons();
      return true;
    case cboREPLACEWITH:
      return true;
    case chkMATCHCASE:
    case chkWHOLEWORDS: {
      bool& on = id == chkMATCHCASE ? match_case_ : whole_words_;
      on = !on;
      ShowMarks();
      host().PanelButtons().Repaint(id);
      return true;
    }
    case btnFINDNEXT:
      FindNext();
      return true;
    case btnFINDPREVIOUS:
      FindAgain(true);
      return true;
    case btnREPLACE:
      desk_.Replace(Wishes());
      ShowHistories();
      EnableButtons();
      return true;
    case btnREPLACEALL:
      ReplaceAll();
      return true;
    default:
      return false;
  }
}

void FindPanel::FindNext() {
  if (desk_.FindNext(Wishes())) ::SetFocus(host().Editor().handle());
  ShowHistories();
  EnableButtons();
}

bool FindPanel::FindAgain(bool backwards) {
  const FindWishes wishes = Wishes();
  if (wishes.wanted.empty()) return false;
  if (backwards) {
    desk_.FindPrevious(wishes);
  } else {
    desk_.FindNext(wishes);
  }
  ShowHistories();
  EnableButtons();
  return true;
}

void FindPanel::ReplaceAll() {
  const ULONGLONG started = ::GetTickCount64();
  int told = -1;
  EscPressed();  // what was pressed before does not count
  {
    const HourglassPointer pointer;
    desk_.ReplaceAll(Wishes(), [&](int percent) {
      if (::GetTickCount64() - started >= kQuietMs && std::exchange(told, percent) != percent) {
        voice_.Notice(L"Replacing: " + NumberText(percent) + L" %. Esc stops");
        ::UpdateWindow(host().PanelParent());
      }
      return !EscPressed();
    });
  }
  ShowHistories();
  EnableButtons();
}

void FindPanel::Start(const std::wstring& selected) {
  const std::wstring line = selected.substr(0, selected.find_first_of(L"\r\n\v"));
  HWND box = Control(cboFINDWHAT);
  if (!line.empty()) ::SetWindowTextW(box, line.substr(0, kLongestSetting).c_str());
  EnableButtons();
  ::SetFocus(box);
  ::SendMessageW(box, CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
}

// Enter searches on and stays in the box, so that it can be pressed again.
bool FindPanel::OnKey(const MSG& message) {
  const bool enter = message.wParam == VK_RETURN;
  if (message.message != WM_KEYDOWN || (!enter && message.wParam != VK_ESCAPE)) return false;
  for (const int id : {cboFINDWHAT, cboREPLACEWITH}) {
    HWND box = Control(id);
    if (box != message.hwnd && !::IsChild(box, message.hwnd)) continue;
    if (::SendMessageW(box, CB_GETDROPPEDSTATE, 0, 0)) {
      ::DispatchMessageW(&message);  // closes the list
      return true;
    }
    if (enter) FindAgain(Held(VK_SHIFT));
    return enter;
  }
  return false;
}

}  // namespace varnel
