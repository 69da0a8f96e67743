// The part of the notes' form that follows keys: who has the focus decides what they mean.
#include <algorithm>

#include "resources/control_ids.h"
#include "widgets/notes/notes_form.h"

namespace varnel {
namespace {

enum Held { kCtrl = 1, kShift = 2, kAlt = 4 };

int HeldKeys() {
  const auto held = [](int key, int bit) { return ::GetKeyState(key) < 0 ? bit : 0; };
  return held(VK_CONTROL, kCtrl) | held(VK_SHIFT, kShift) | held(VK_MENU, kAlt);
}

}  // namespace

// What a key does while others are held.
template <class Run>
struct NotesForm::KeyAction {
  int held;
  WORD key;
  Scope scope;
  Run run;
  int argument = 0;  // of the commands that take one
};

bool NotesForm::RunPlainKey(WORD key, int held) {
  using Form = NotesForm;
  constexpr Scope kAny = Scope::kAnywhere;
  constexpr Scope kText = Scope::kEditor;
  static constexpr KeyAction<void (NotesForm::*)()> kKeys[] = {
      {kCtrl, 'N', kAny, &Form::DocumentNew},
      {kCtrl, 'O', kAny, &Form::DocumentOpen},
      {kCtrl, 'S', kAny, &Form::Save},
      {kCtrl, 'W', kAny, &Form::CloseNote},
      {kCtrl, 'P', kAny, &Form::DocumentPrint},
      {0, VK_F5, kAny, &Form::RefreshAll},
      {0, VK_F12, kAny, &Form::Export},
      {0, VK_DELETE, Scope::kList, &Form::NoteDelete},
      {0, VK_F2, Scope::kList, &Form::NOTERenameShow},
      {kCtrl, 'F', kAny, &Form::OpenFind},
      {kCtrl, 'G', kAny, &Form::OpenFind},
      {kCtrl, 'H', kAny, &Form::OpenFind},
      {0, VK_F3, kAny, &Form::FindNext},
      {kShift, VK_F3, kAny, &Form::FindPrevious},
      {kCtrl, 'Z', kText, &Form::TextUndo},
      {kCtrl, 'Y', kText, &Form::TextRedo},
      {kCtrl, 'A', kText, &Form::TextSelectAll},
      {kCtrl, 'B', kText, &Form::TextBoldSet},
      {kCtrl, 'I', kText, &Form::TextItalicSet},
      {kCtrl, 'U', kText, &Form::TextUnderlineSet},
      {kCtrl, 'M', kText, &Form::TextIndentIncr},
      {kCtrl, 'T', kText, &Form::TextIndentIncr},
      {kCtrl | kShift, 'M', kText, &Form::TextIndentDecr},
      {kCtrl | kShift, 'T', kText, &Form::TextIndentDecr},
      {kCtrl, VK_RETURN, kText, &Form::TextBullets},
      {kCtrl, VK_SPACE, kText, &Form::TextFormatClear},
      {kCtrl | kShift, 'V', kText, &Form::TextPastePlain},
      {kShift, VK_F10, kText, &Form::DoNothing},
  };
  return RunFrom(kKeys, key, held, [this](const auto& found) { (this->*found.run)(); });
}

bool NotesForm::RunNumberedKey(WORD key, int held) {
  using Form = NotesForm;
  constexpr Scope kAny = Scope::kAnywhere;
  constexpr Scope kText = Scope::kEditor;
  static constexpr KeyAction<void (NotesForm::*)(int)> kKeys[] = {
      {0, VK_F2, kAny, &Form::OnTool, kToolFonts},
      {0, VK_F4, kAny, &Form::OnTool, kToolParagraph},
      {0, VK_F6, kAny, &Form::OnTool, kToolFind},
      {0, VK_F7, kAny, &Form::OnTool, kToolSpelling},
      {0, VK_F9, kAny, &Form::OnTool, kToolText},
      {0, VK_F11, kAny, &Form::OnTool, kToolPicture},
      {kCtrl | kShift, 'K', kAny, &Form::OnTool, kToolSpelling},
      {kCtrl, 'L', kText, &Form::TextAlignmentSet, 0},
      {kCtrl, 'R', kText, &Form::TextAlignmentSet, 1},
      {kCtrl, 'E', kText, &Form::TextAlignmentSet, 2},
      {kCtrl, 'J', kText, &Form::TextAlignmentSet, 3},
      {kCtrl, '1', kText, &Form::NamedSpacingSet, 0},
      {kCtrl, '2', kText, &Form::NamedSpacingSet, 4},
      {kCtrl, '3', kText, &Form::NamedSpacingSet, 1},
      {kCtrl, '4', kText, &Form::NamedSpacingSet, 2},
      {kCtrl, '5', kText, &Form::NamedSpacingSet, 3},
      {kCtrl, VK_OEM_PLUS, kText, &Form::TextFontScriptSet, 0},
      {kCtrl | kShift, VK_OEM_PLUS, kText, &Form::TextFontScriptSet, 2},
      {kCtrl | kAlt, '1', kText, &Form::QuickStyleSet, 0},
      {kCtrl | kAlt, '2', kText, &Form::QuickStyleSet, 1},
      {kCtrl | kAlt, '3', kText, &Form::QuickStyleSet, 2},
      {kCtrl | kAlt, '4', kText, &Form::QuickStyleSet, 3},
      {kCtrl | kAlt, '5', kText, &Form::QuickStyleSet, 4},
      {kCtrl | kAlt, '6', kText, &Form::QuickStyleSet, 5},
      {kCtrl | kAlt, '7', kText, &Form::QuickStyleSet, 6},
  };
  return RunFrom(kKeys, key, held,
                 [this](const auto& found) { (this->*found.run)(found.argument); });
}

bool NotesForm::InScope(Scope scope) const {
  HWND focus = ::GetFocus();
  switch (scope) {
    case Scope::kEditor:
      return focus == editor_.handle() || focus == handle();
    case Scope::kList:
      return lvwFILES_.HasFocus() && !lvwFILES_.renaming();
    case Scope::kAnywhere:
      break;
  }
  return true;
}

template <class Keys, class Run>
bool NotesForm::RunFrom(const Keys& keys, WORD key, int held, Run run) {
  for (const auto& action : keys) {
    if (action.key != key || action.held != held || !InScope(action.scope)) continue;
    run(action);
    return true;
  }
  return false;
}

bool NotesForm::RunKey(WORD key) {
  const int held = HeldKeys();
  // What the right Alt key types on many keyboards is no command.
  if ((held & (kCtrl | kAlt)) == (kCtrl | kAlt) && ::GetKeyState(VK_RMENU) < 0) return false;
  return RunPlainKey(key, held) || RunNumberedKey(key, held);
}

bool NotesForm::OnKey(const MSG& message) {
  if (lvwFILES_.renaming()) return false;
  if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) {
    NotePanel* open = OpenPanel();
    if (open && open->Has(message.hwnd) && open->OnKey(message)) return true;
    if (RunKey(static_cast<WORD>(message.wParam))) return true;
    if (message.wParam == VK_ESCAPE && OpenPanel()) {
      ClosePanel();
      return true;
    }
  }
  lvwFILES_.OnKey(message);
  // In a text the arrows with Ctrl move by words, not the widget.
  HWND focus = ::GetFocus();
  const bool on_buttons = std::ranges::any_of(
      buttons().all(), [focus](const TextButton& button) { return button.handle == focus; });
  return (on_buttons || lvwFILES_.HasFocus()) && WidgetForm::OnKey(message);
}

}  // namespace varnel
