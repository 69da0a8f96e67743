// The note in the editor, as searches and the spelling check see and change it.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "widgets/notes/text/text_edit.h"
#include "widgets/notes/text/text_words.h"

namespace varnel {

// Positions count the editor's units: a line end is one, a picture too.
class EditedNote {
 public:
  virtual ~EditedNote() = default;
  // What is hidden reads as pictures, and so is neither found nor checked.
  virtual std::wstring Units() const = 0;
  virtual TextRange Selection() const = 0;
  // Selects and scrolls there. What lies beyond the text counts as its end.
  virtual void Select(TextRange range) = 0;
  // Asked now and then while something takes long, with how much of it is done; false stops it.
  using GoOn = std::function<bool(int percent)>;
  // Makes all edits as one step that one undo takes back. What is put in has the format of the
  // first character that it replaces, and the caret stands behind the last. False, and nothing
  // done, when the editor cannot or was stopped.
  virtual bool MakeEdits(std::span<const TextEdit> edits, const GoOn& go_on) = 0;
};

// A message box of the notes; all have the information icon.
struct NotesMessage {
  std::wstring_view title;
  std::wstring_view text;
};

// What the panels have to say.
class NoteVoice {
 public:
  virtual ~NoteVoice() = default;
  // In the widget's strip.
  virtual void Notice(const std::wstring& text) = 0;
  virtual void Inform(const NotesMessage& message) = 0;
};

}  // namespace varnel
