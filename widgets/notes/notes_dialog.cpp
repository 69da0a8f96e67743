#include "widgets/notes/notes_dialog.h"

#include <limits>

#include "base/number_text.h"
#include "resources/control_ids.h"
#include "widgets/notes/editor/note_formats_win.h"
#include "widgets/notes/note_settings.h"
#include "widgets/notes/text/note_spacing.h"
#include "win/graphics/installed_fonts.h"
#include "win/graphics/surface.h"

namespace varnel {
void NotesDialog::OnOpen() {
  FolderDialog::OnOpen();
  const Settings& settings = services().settings;
  const auto add = [this](int box, const std::wstring& text) {
    ::SendMessageW(Control(box), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
  };
  for (const std::wstring& face : InstalledFontFaces()) add(cboFONTNAMETEXT, face);
  for (const int size : kFontSizes) add(cboFONTSIZETEXT, NumberText(size));
  SetControlText(cboFONTNAMETEXT, settings.Read(kNoteFontName));
  SetControlText(cboFONTSIZETEXT, settings.Read(kNoteFontSize));
  colour_ = static_cast<Colour>(
      ReadNumber(settings, kNoteFontColour, std::numeric_limits<Colour>::min(), kWhite));
  const bool plain = ReadNumber(settings, kDocumentType, -1'000'000, 1'000'000) != 0;
  SetChecked(optDOCTYPE + plain, true);
}

void NotesDialog::OnCommand(int id, int code) {
  if (id == cmdEdit && code == BN_CLICKED) {
    PickColour();
  } else {
    FolderDialog::OnCommand(id, code);
  }
}

bool NotesDialog::OnMessage(UINT message, WPARAM, LPARAM lparam) {
  if (message != WM_DRAWITEM) return false;
  const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam);
  const TextColour colour = TextColourOf(colour_);
  const COLORREF face = colour.automatic ? ::GetSysColor(COLOR_WINDOWTEXT) : colour.colour;
  RECT box = item.rcItem;
  ::FrameRect(item.hDC, &box, ::GetSysColorBrush(COLOR_3DSHADOW));
  ::InflateRect(&box, -1, -1);
  ::SetDCBrushColor(item.hDC, face);
  ::FillRect(item.hDC, &box, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
  return true;
}

void NotesDialog::PickColour() {
  const TextColour now = TextColourOf(colour_);
  const auto picked = picker_.Pick(handle(), now.automatic ? 0 : now.colour);
  if (!picked || !open()) return;
  colour_ = static_cast<Colour>(*picked);
  ::InvalidateRect(Control(picCOLORBAR), nullptr, TRUE);
}

void NotesDialog::Store() {
  Settings& settings = services().settings;
  settings.Write(kNoteFontName, ControlText(cboFONTNAMETEXT));
  if (const auto size = WholeNumber(ControlText(cboFONTSIZETEXT)); size && *size > 0) {
    settings.Write(kNoteFontSize, NumberText(*size));
  }
  settings.Write(kNoteFontColour, NumberText(colour_));
  settings.Write(kDocumentType, Checked(optDOCTYPE + 1) ? L"1" : L"0");
}

void NotesDialog::OnChosen(bool changed) {
  if (!link_.widget) return;
  link_.widget->NotePropsRefresh();
  if (changed) link_.widget->FolderChanged();
}

}  // namespace varnel
