// The note in the editor as searches and the spelling check change it, many places in one step.
#pragma once

#include <deque>
#include <string>

#include "widgets/notes/editor/edited_note.h"
#include "widgets/notes/editor/note_editor_win.h"

namespace varnel {

class EditorNote : public EditedNote {
 public:
  // `editor` outlives it.
  explicit EditorNote(NoteEditor& editor) : editor_(editor) {}

  std::wstring Units() const override;
  TextRange Selection() const override;
  void Select(TextRange range) override;
  // One edit is a step of the editor's own. More are made in the whole text at once; the editor
  // forgets its steps, and the next undo of this class brings the former text back. `go_on` is
  // asked in long texts alone.
  bool MakeEdits(std::span<const TextEdit> edits, const GoOn& go_on) override;

  // Takes back a step of many edits, or makes it again. False when the editor has a step of its own
  // to take first, or there is none.
  bool Undo();
  bool Redo();
  bool CanUndo() const;
  bool CanRedo() const;
  // Another note is shown: its steps are forgotten.
  void NoteShown();

 private:
  struct State {
    std::wstring units;
    std::string rtf;  // empty for a plain text
  };
  struct Step {
    State before;
    State after;
  };

  std::wstring AllUnits() const;
  std::optional<State> Now();
  std::optional<State> After(std::span<const TextEdit> edits, const State& before) const;
  void MakeOneByOne(std::span<const TextEdit> edits);
  bool Put(const State& state, const GoOn& go_on = nullptr);
  void Changed();

  NoteEditor& editor_;
  std::deque<Step> done_;
  std::deque<Step> undone_;
};

}  // namespace varnel
