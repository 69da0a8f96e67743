// The part of the notes' form that finds, and keeps the panels informed.
#include "widgets/notes/notes_form.h"

namespace varnel {
void NotesForm::TellPanels() {
  const std::int32_t number = desk_.document().number();
  if (std::exchange(told_note_, number) == number) return;
  edited_.NoteShown();
  for (const auto& panel : panels_) {
    if (panel) panel->OnNoteShown(desk_.document().path());
  }
}

// What is selected is to be found.
void NotesForm::OpenFind() {
  const RichRange selection = editor_.edit().Selection();
  const std::wstring selected = editor_.edit().Units(selection);
  ShowPanel(kToolFind);
  if (OpenPanel() == pfrFIND_) pfrFIND_->Start(selected);
}

void NotesForm::FindNext() {
  if (!pfrFIND_->FindAgain(false)) OpenFind();
}

void NotesForm::FindPrevious() {
  if (!pfrFIND_->FindAgain(true)) OpenFind();
}

void NotesForm::TextUndo() {
  if (!edited_.Undo()) editor_.edit().Undo();
}

void NotesForm::TextRedo() {
  if (!edited_.Redo()) editor_.edit().Redo();
}

}  // namespace varnel
