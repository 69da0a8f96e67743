// The part of the notes' form that offers commands in menus.
#include <algorithm>

#include "frame/command.h"
#include "widgets/notes/notes_form.h"
#include "win/windows/popup_menu.h"

namespace varnel {

// One command: how it is told, what it does, and when it can be used or is on.
struct NotesForm::Action {
  Command command;
  bool new_group;
  void (NotesForm::*run)();
  bool (NotesForm::*enabled)() const = nullptr;
  bool (NotesForm::*checked)() const = nullptr;
};

std::span<const NotesForm::Action> NotesForm::NoteActions() {
  using Form = NotesForm;
  static constexpr Action kActions[] = {
      {{L"mnuNOTESNEW", L"&New note", L"Ctrl+N"}, false, &Form::DocumentNew},
      {{L"mnuNOTESNEWRICH", L"New &rich text note"}, false, &Form::DocumentNewRTF},
      {{L"mnuNOTESNEWTEXT", L"New plain te&xt note"}, false, &Form::DocumentNewTXT},
      {{L"mnuNOTESOPEN", L"Imp&ort...", L"Ctrl+O"}, false, &Form::DocumentOpen},
      {{L"mnuNOTESSAVE", L"&Save", L"Ctrl+S"}, true, &Form::Save},
      {{L"mnuNOTESSAVEAS", L"&Export...", L"F12"}, false, &Form::Export},
      {{L"mnuNOTESVERSIONS", L"Earlier &versions..."},
       false,
       &Form::ShowVersions,
       &Form::HasVersions},
      {{L"mnuNOTESRENAME", L"Rena&me"}, true, &Form::NOTERenameShow, &Form::HasRow},
      {{L"mnuNOTESDELETE", L"&Delete..."}, false, &Form::NoteDelete, &Form::HasRow},
      {{L"mnuNOTESCLOSE", L"&Close note", L"Ctrl+W"}, false, &Form::CloseNote},
      {{L"mnuNOTESPRINT", L"&Print...", L"Ctrl+P"}, true, &Form::DocumentPrint, &Form::CanPrint},
      {{L"mnuNOTESPANELS", L"&List of notes"}, true, &Form::ToggleList, nullptr, &Form::ListWanted},
      {{L"mnuNOTESPROPS", L"Notes propert&ies..."}, false, &Form::Properties},
  };
  return kActions;
}

std::span<const NotesForm::Action> NotesForm::TextActions() {
  using Form = NotesForm;
  static constexpr Action kActions[] = {
      {{L"mnuNOTERCUNDO", L"&Undo", L"Ctrl+Z"}, false, &Form::TextUndo, &Form::CanUndo},
      {{L"mnuNOTERCREDO", L"&Redo", L"Ctrl+Y"}, false, &Form::TextRedo, &Form::CanRedo},
      {{L"mnuNOTERCCUT", L"Cu&t", L"Ctrl+X"}, true, &Form::TextCut, &Form::HasSelection},
      {{L"mnuNOTERCCOPY", L"&Copy", L"Ctrl+C"}, false, &Form::TextCopy, &Form::HasSelection},
      {{L"mnuNOTERCPASTE", L"&Paste", L"Ctrl+V"}, false, &Form::TextPaste},
      {{L"mnuNOTERCPASTETEXT", L"Paste as plain te&xt", L"Ctrl+Shift+V"},
       false,
       &Form::TextPastePlain},
      {{L"mnuNOTERCDELETE", L"&Delete", L"Del"}, false, &Form::TextDelete, &Form::HasSelection},
      {{L"mnuNOTERCSELECTALL", L"Select &all", L"Ctrl+A"}, false, &Form::TextSelectAll},
      {{L"mnuNOTERCBOLD", L"&Bold", L"Ctrl+B"}, true, &Form::TextBoldSet, &Form::Rich, &Form::Bold},
      {{L"mnuNOTERCITALIC", L"&Italic", L"Ctrl+I"},
       false,
       &Form::TextItalicSet,
       &Form::Rich,
       &Form::Italic},
      {{L"mnuNOTERCUNDERL", L"Underli&ne", L"Ctrl+U"},
       false,
       &Form::TextUnderlineSet,
       &Form::Rich,
       &Form::Underlined},
      {{L"mnuNOTERCBULETS", L"Bu&llets", L"Ctrl+Enter"},
       false,
       &Form::TextBullets,
       &Form::Rich,
       &Form::Bulleted},
      {{L"mnuNOTERCWORDCNT", L"Count the &words"}, true, &Form::ShowCountsInStrip},
      {{L"mnuNOTERCWORDLINE", L"Count the lin&es"}, false, &Form::ShowCountsInStrip},
      {{L"mnuNOTERCPROPS", L"Notes prop&erties..."}, true, &Form::Properties},
      {{L"mnuNOTERCTOP", L"&Keep on top"}, false, &Form::ToggleOnTop, nullptr, &Form::OnTop},
  };
  return kActions;
}

std::vector<MenuItem> NotesForm::ItemsOf(std::span<const Action> actions) const {
  std::vector<MenuItem> items;
  for (const Action& action : actions) {
    if (action.new_group) items.push_back(MenuSeparator());
    items.push_back(ItemOf(action.command, !action.enabled || (this->*action.enabled)(),
                           action.checked && (this->*action.checked)()));
  }
  return items;
}

std::vector<MenuItem> NotesForm::MenuGroup() const {
  return ItemsOf(NoteActions());
}

bool NotesForm::RunOwnCommand(int id) {
  for (const std::span<const Action> actions : {NoteActions(), TextActions()}) {
    const auto found = std::ranges::find_if(
        actions, [id](const Action& action) { return CommandId(action.command.name) == id; });
    if (found == actions.end()) continue;
    (this->*found->run)();
    return true;
  }
  return false;
}

void NotesForm::ShowEditorMenu(LPARAM position) {
  Point at{static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
  if (position == -1) {  // asked for by key
    POINT caret = {};
    ::GetCaretPos(&caret);
    ::ClientToScreen(editor_.handle(), &caret);
    at = {static_cast<int>(caret.x), static_cast<int>(caret.y)};
  }
  services().program.SetCurrentWidget(entry().form_name);
  RunOwnCommand(ShowPopupMenu(handle(), at, ItemsOf(TextActions())));
}

}  // namespace varnel
