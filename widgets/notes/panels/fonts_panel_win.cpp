#include "widgets/notes/panels/fonts_panel_win.h"

#include "base/number_text.h"
#include "resources/control_ids.h"
#include "win/graphics/installed_fonts.h"

namespace varnel {
namespace {

// The quick styles by their numbers; the outer ones stay longest.
constexpr struct {
  const wchar_t* word;
  PanelCell cell;
} kStyles[] = {{L"Title", {48, 2, true}}, {L"Subtitle", {58, 6}}, {L"Heading", {58, 3}},
               {L"Lead", {42, 6}},        {L"Section", {54, 5}},  {L"Strong", {50, 5}},
               {L"Text", {42, 2}}};

}  // namespace

void FontsPanel::Load() {
  AddCombo(lstFONTNAMEFONTS, CBS_DROPDOWNLIST, L"Font", {118, 0, false});
  AddCombo(lstFONTSIZE, CBS_DROPDOWN, L"Size", {54, 0, false});
  for (const int size : kFontSizes) {
    ::SendMessageW(Control(lstFONTSIZE), CB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>(NumberText(size).c_str()));
  }
  AddButton(chkBOLD, L"Bold", L'\xE240', {24, 0, true});
  AddButton(chkITALIC, L"Italic", L'\xE241', {24, 0});
  AddButton(chkUNDERLINE, L"Underline", L'\xE242', {24, 0});
  AddButton(picCOLOR, L"Colour", L'\xE24F', {24, 1});
  AddButton(optSCRIPT, L"Raised", L'\xE251', {24, 4, true});
  AddButton(optSCRIPT + 1, L"On the line", L'\xE233', {24, 4});
  AddButton(optSCRIPT + 2, L"Lowered", L'\xE252', {24, 4});
  for (int i = 0; i < static_cast<int>(std::size(kStyles)); ++i) {
    AddButton(btnSTYLE + i, kStyles[i].word, 0, kStyles[i].cell);
  }
  AddButton(btnREMSTYLES, L"Clear the formats of the selection", L'\xE253', {24, 3, true});
  AddButton(btnSTYLEREMV, L"Clear the formats of the whole note", L'\xE263', {24, 7});
}

// The faces are listed once somebody wants to see them.
void FontsPanel::OnOpened() {
  HWND faces = Control(lstFONTNAMEFONTS);
  if (::SendMessageW(faces, CB_GETCOUNT, 0, 0) > 0) return;
  ::SendMessageW(faces, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(Scaled(200, host().PanelDpi())), 0);
  for (const std::wstring& face : InstalledFontFaces()) {
    ::SendMessageW(faces, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(face.c_str()));
  }
}

void FontsPanel::Refresh() {
  const CharacterFormat now = host().Formats().characters();
  if (now.face) ShowInBox(lstFONTNAMEFONTS, *now.face);
  if (!now.face) ShowInBox(lstFONTNAMEFONTS, L"");
  std::wstring size;
  if (now.half_points) {
    size = NumberText(*now.half_points / 2);
    if (*now.half_points % 2) size += L".5";
  }
  ShowInBox(lstFONTSIZE, size);
  const bool same = now == shown_;
  shown_ = now;
  if (same) return;
  for (const int id : std::initializer_list<int>{chkBOLD, chkITALIC, chkUNDERLINE, picCOLOR,
                                                 optSCRIPT, optSCRIPT + 1, optSCRIPT + 2}) {
    host().PanelButtons().Repaint(id);
  }
  for (int i = 0; i < static_cast<int>(kQuickStyles.size()); ++i) {
    host().PanelButtons().Repaint(btnSTYLE + i);
  }
}

ButtonCheck FontsPanel::CheckOf(int id) const {
  switch (id) {
    case chkBOLD:
      return Checked(shown_.bold);
    case chkITALIC:
      return Checked(shown_.italic);
    case chkUNDERLINE:
      return Checked(shown_.underline);
    default:
      break;
  }
  if (id >= optSCRIPT && id <= optSCRIPT + 2) {
    return Checked(shown_.offset && ScriptOption(*shown_.offset) == id - optSCRIPT);
  }
  const int style = id - btnSTYLE;
  if (style < 0 || style >= static_cast<int>(kQuickStyles.size())) return ButtonCheck::kOff;
  const QuickStyle& wanted = kQuickStyles[static_cast<std::size_t>(style)];
  return Checked(shown_.half_points == wanted.points * 2 && shown_.bold == wanted.bold &&
                 shown_.italic == wanted.italic);
}

bool FontsPanel::OnControl(int id, int code) {
  if (id == lstFONTNAMEFONTS || id == lstFONTSIZE) return OnBox(id, code);
  if (code != BN_CLICKED) return false;
  NoteFormats& formats = host().Formats();
  if (id == chkBOLD) {
    formats.TextBoldSet();
  } else if (id == chkITALIC) {
    formats.TextItalicSet();
  } else if (id == chkUNDERLINE) {
    formats.TextUnderlineSet();
  } else if (id == picCOLOR) {
    PickColour();
  } else if (id >= optSCRIPT && id <= optSCRIPT + 2) {
    formats.TextFontScriptSet(id - optSCRIPT);
  } else if (id >= btnSTYLE && id < btnSTYLE + static_cast<int>(kQuickStyles.size())) {
    formats.QuickStyleSet(id - btnSTYLE);
  } else if (id == btnREMSTYLES) {
    formats.TextFormatClear();
  } else if (id == btnSTYLEREMV) {
    formats.ClearWholeNote();
  } else {
    return false;
  }
  host().AfterCommand();
  return true;
}

bool FontsPanel::OnBox(int id, int code) {
  if (code != CBN_SELCHANGE && code != CBN_EDITCHANGE) return true;
  const std::wstring text = BoxText(id, code);
  NoteFormats& formats = host().Formats();
  if (id == lstFONTNAMEFONTS && code == CBN_SELCHANGE && !text.empty()) {
    formats.SetFont(text);
  } else if (id == lstFONTSIZE) {
    if (const auto points = WholeNumber(text); points && *points > 0 && *points < 1000) {
      formats.SetPoints(static_cast<int>(*points));
    }
  }
  host().Formatted();
  return true;
}

void FontsPanel::PickColour() {
  const auto now = host().Formats().characters().colour.value_or(TextColour{});
  const auto picked = picker_.Pick(host().PanelParent(), now.automatic ? 0 : now.colour);
  if (picked) host().Formats().SetColour(*picked);
}

// A bar in the colour of the letters, below the sign for it.
void FontsPanel::DrawOnButton(const ButtonPainting& painting) {
  if (painting.button.id != picCOLOR || !shown_.colour) return;
  const COLORREF colour =
      shown_.colour->automatic ? ::GetSysColor(COLOR_WINDOWTEXT) : shown_.colour->colour;
  const int dpi = host().PanelDpi();
  const Rect& box = painting.bounds;
  FillRectangle(painting.surface.dc(),
                {box.left + Scaled(5, dpi), box.bottom - Scaled(6, dpi), box.right - Scaled(5, dpi),
                 box.bottom - Scaled(3, dpi)},
                static_cast<Colour>(colour));
}

}  // namespace varnel
