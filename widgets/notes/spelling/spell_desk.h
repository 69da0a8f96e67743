// What the buttons of the spelling panel do to the note in the editor.
#pragma once

#include <string>

#include "widgets/notes/editor/edited_note.h"
#include "widgets/notes/spelling/spell_checker.h"

namespace varnel {

inline constexpr NotesMessage kFullyChecked{
    L"The Spell Checking Now Been Completed",
    L"Your page has been fully checked. It is always a good idea to proof yourself too."};
inline constexpr NotesMessage kNoDictionary{L"Spelling", kDictionaryNotFound};

class SpellDesk {
 public:
  // All outlive it. The checker may not be loaded yet.
  SpellDesk(clsNOTsp& checker, EditedNote& note, NoteVoice& voice)
      : checker_(checker), note_(note), voice_(voice) {}

  // The word that the check stands at; empty when it stands at none.
  const std::wstring& word() const { return word_; }
  const Suggestions& suggestions() const { return suggestions_; }

  // Another note is shown, by a name of its own; a running check ends.
  void NoteShown(std::wstring_view name);

  // Goes on to the next unknown word, which is selected then, or begins a check at the caret. Says
  // so when the note is checked or there is no dictionary.
  void Check();
  // The next five do nothing without a word; all but the last of them go on to the next one. A word
  // that was edited meanwhile is not changed but checked again.
  void Change(const std::wstring& replacement);
  void ChangeAll(const std::wstring& replacement);
  void Ignore(IgnoreScope scope);
  void Include();

  // Turns to a dictionary: its file's name.
  void UseDictionary(std::wstring_view name, Settings& settings);
  // False when the word is still there.
  bool RemoveOwnWord(const std::wstring& word);

 private:
  void FollowText();
  void MakeEdits(std::span<const TextEdit> edits);
  void Clear();

  clsNOTsp& checker_;
  EditedNote& note_;
  NoteVoice& voice_;
  std::wstring text_;  // as the checker knows it, while a check runs
  std::wstring word_;
  Suggestions suggestions_;
};

}  // namespace varnel
