// The part of the notes' form that says what its commands do, and what its focus is to them.
#include "resources/control_ids.h"
#include "widgets/notes/notes_commands.h"
#include "widgets/notes/notes_form.h"
#include "win/windows/popup_menu.h"

namespace varnel {
namespace {

constexpr std::size_t kTextMenu = 1;

}  // namespace

std::vector<CommandTable::Rows> NotesForm::Menus() {
  return {kNotesCommands, kNoteTextCommands};
}

void NotesForm::BindCommands() {
  const auto has_row = [this] { return SelectedNote().has_value(); };
  commands().Bind(
      {{L"mnuNOTESNEW", [this] { DocumentNew(); }},
       {L"mnuNOTESNEWRICH", [this] { DocumentNewRTF(); }},
       {L"mnuNOTESNEWTEXT", [this] { DocumentNewTXT(); }},
       {L"mnuNOTESOPEN", [this] { DocumentOpen(); }},
       {L"mnuNOTESSAVE", [this] { Save(); }},
       {L"mnuNOTESSAVEAS", [this] { DocumentSaveAsNew(); }},
       {L"mnuNOTESVERSIONS", {}, [this] { return !desk_.Versions().empty(); }},
       {L"mnuNOTESRENAME", [this] { NOTERenameShow(); }, has_row},
       {L"mnuNOTESDELETE", [this] { NoteDelete(); }, has_row},
       {L"mnuNOTESCLOSE", [this] { DocumentClose(); }},
       {L"mnuNOTESPRINT", [this] { DocumentPrint(); }},
       {L"mnuNOTESPANELS", [this] { ToggleList(); }, {}, [this] { return list_wanted_; }},
       {L"OpenFind", [this] { OpenFind(); }},
       {L"FindNext", [this] { FindNext(); }},
       {L"FindPrevious", [this] { FindPrevious(); }},
       {L"RefreshAll", [this] { RefreshAll(); }},
       {L"ClosePanel", [this] { ClosePanel(); }}});
  for (int tool = kToolFind; tool <= kToolSpelling; ++tool) {
    commands().Bind({{ElementName(L"OnTool", static_cast<std::size_t>(tool - kToolFind)),
                      [this, tool] { OnTool(tool); }, [this, tool] { return MayOpen(tool); }}});
  }
}

void NotesForm::BindTextCommands() {
  const auto selected = [this] { return !editor_.edit().Selection().empty(); };
  const auto rich = [this] { return editor_.rich(); };
  const auto count = [this] { ShowCountsInStrip(); };
  commands().Bind(
      {{L"mnuNOTERCUNDO", [this] { TextUndo(); }, [this] { return CanUndo(); }},
       {L"mnuNOTERCREDO", [this] { TextRedo(); }, [this] { return CanRedo(); }},
       {L"mnuNOTERCCUT", [this] { TextCut(); }, selected},
       {L"mnuNOTERCCOPY", [this] { TextCopy(); }, selected},
       {L"mnuNOTERCPASTE", [this] { TextPaste(); }},
       {L"mnuNOTERCPASTETEXT", [this] { TextPastePlain(); }},
       {L"mnuNOTERCDELETE", [this] { TextDelete(); }, selected},
       {L"mnuNOTERCSELECTALL", [this] { TextSelectAll(); }},
       {L"mnuNOTERCBOLD", [this] { TextBoldSet(); }, rich,
        [this] { return formats_.characters().bold.value_or(false); }},
       {L"mnuNOTERCITALIC", [this] { TextItalicSet(); }, rich,
        [this] { return formats_.characters().italic.value_or(false); }},
       {L"mnuNOTERCUNDERL", [this] { TextUnderlineSet(); }, rich,
        [this] { return formats_.characters().underline.value_or(false); }},
       {L"mnuNOTERCBULETS", [this] { TextBullets(); }, rich,
        [this] { return formats_.paragraph().numbering == RichNumbering::kBullets; }},
       {L"mnuNOTERCWORDCNT", count},
       {L"mnuNOTERCWORDLINE", count},
       {L"mnuNOTERCTOP", [this] { SetOnTop(!on_top()); }, {}, [this] { return on_top(); }},
       {L"TextIndentIncr", [this] { TextIndentIncr(); }},
       {L"TextIndentDecr", [this] { TextIndentDecr(); }},
       {L"TextFormatClear", [this] { TextFormatClear(); }}});
  commands().BindArray(L"TextAlignmentSet", 4, [this](int option) { TextAlignmentSet(option); });
  commands().BindArray(L"SpacingSet", 5, [this](int named) { NamedSpacingSet(named); });
  commands().BindArray(L"TextFontScriptSet", 3, [this](int index) { TextFontScriptSet(index); });
  commands().BindArray(L"QuickStyleSet", 7, [this](int index) { QuickStyleSet(index); });
}

// --- keys

Focus NotesForm::FocusNow() const {
  HWND focus = ::GetFocus();
  return focus == editor_.handle() || focus == handle() ? Focus::kText : WidgetForm::FocusNow();
}

bool NotesForm::OnFirstKey(const MSG& message) {
  NotePanel* open = OpenPanel();
  const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
  if (down && open && open->Has(message.hwnd) && open->OnKey(message)) return true;
  lvwFILES_.OnKey(message);
  return false;
}

// --- the menu of the text

void NotesForm::ShowEditorMenu(LPARAM position) {
  Point at{static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
  if (position == -1) {  // asked for by key
    POINT caret = {};
    ::GetCaretPos(&caret);
    ::ClientToScreen(editor_.handle(), &caret);
    at = {static_cast<int>(caret.x), static_cast<int>(caret.y)};
  }
  services().program.SetCurrentWidget(entry().form_name);
  const int chosen = ShowPopupMenu(handle(), at, commands().Menu(kTextMenu));
  if (handle()) commands().Run(chosen);
}

}  // namespace varnel
