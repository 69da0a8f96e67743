#include "widgets/notes/notes_dialog.h"

#include <limits>

#include "base/number_text.h"
#include "base/path.h"
#include "base/text.h"
#include "resources/control_ids.h"
#include "widgets/notes/editor/note_formats_win.h"
#include "widgets/notes/note_settings.h"
#include "widgets/notes/notes_folder.h"
#include "widgets/notes/text/note_spacing.h"
#include "win/graphics/installed_fonts.h"
#include "win/graphics/surface.h"
#include "win/windows/file_dialogs.h"
#include "win/windows/message_box.h"
#include "win/windows/ui.h"

namespace varnel {
namespace {

constexpr int kLongestPath = 240;  // with room for the names of the notes in it
constexpr wchar_t kSubfolder[] = L"tavrin";
constexpr Message kNoPath{L"Folder",
                          L"\"%1\" is no whole path of a folder, such as C:\\Documents\\."};
constexpr Message kNotMade{L"Folder", L"The folder \"%1\" cannot be made."};

}  // namespace

void NotesDialog::OnOpen() {
  const Settings& settings = services_.settings;
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
  ::SendMessageW(Control(txtLOCATION), EM_LIMITTEXT, kLongestPath, 0);
  SetControlText(txtLOCATION, ReadFolder(settings, kNotesFolder, services_.program_folder));
}

void NotesDialog::OnCommand(int id, int code) {
  if (code != BN_CLICKED) return;
  switch (id) {
    case cmdOKfrmNOTpr:
      if (Store()) Close();
      break;
    case cmdCancelfrmNOTpr:
      Close();
      break;
    case cmdBrowsefrmNOTpr:
      Browse();
      break;
    case cmdEdit:
      PickColour();
      break;
    default:
      break;
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

void NotesDialog::Browse() {
  const std::wstring picked =
      BrowseForFolder(handle(), L"Choose a new Notes location", ControlText(txtLOCATION));
  if (!picked.empty() && open()) SetControlText(txtLOCATION, DocumentFolderIn(picked, kSubfolder));
}

bool NotesDialog::Store() {
  if (!StoreFolder()) return false;
  Settings& settings = services_.settings;
  settings.Write(kNoteFontName, ControlText(cboFONTNAMETEXT));
  if (const auto size = WholeNumber(ControlText(cboFONTSIZETEXT)); size && *size > 0) {
    settings.Write(kNoteFontSize, NumberText(*size));
  }
  settings.Write(kNoteFontColour, NumberText(colour_));
  settings.Write(kDocumentType, Checked(optDOCTYPE + 1) ? L"1" : L"0");
  if (link_.widget) link_.widget->NotePropsRefresh();
  return true;
}

bool NotesDialog::StoreFolder() {
  const std::wstring former =
      ReadFolder(services_.settings, kNotesFolder, services_.program_folder);
  std::wstring folder = Trim(ControlText(txtLOCATION));
  if (folder == former) return true;
  if (!IsAbsolutePath(folder)) {
    Ask(handle(), kNoPath, {folder});
    return false;
  }
  folder = AddTrailingSeparator(folder);
  if (!EnsureFolder(services_.files, folder, folder)) {
    Ask(handle(), kNotMade, {folder});
    return false;
  }
  services_.settings.Write(kNotesFolder.section, kNotesFolder.name, folder);
  if (link_.widget) link_.widget->FolderChanged();
  return true;
}

}  // namespace varnel
