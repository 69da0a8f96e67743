// What the buttons of the find panel do to the note in the editor.
#pragma once

#include <string>

#include "widgets/notes/editor/edited_note.h"
#include "widgets/notes/find/find_panel.h"

namespace varnel {

// What stands in the panel when a button is pressed.
struct FindWishes {
  std::wstring wanted;
  std::wstring replacement;
  bool match_case = false;
  bool whole_words = false;
};

class FindDesk {
 public:
  // Both outlive it.
  FindDesk(EditedNote& note, NoteVoice& voice) : note_(note), voice_(voice) {}

  FindHistory& searched() { return searched_; }
  FindHistory& replaced() { return replaced_; }
  // Whether Replace may be pressed: not after a search that found nothing more.
  bool may_replace() const { return may_replace_; }

  // Another note is shown.
  void NoteShown();

  // Each does nothing for an empty search text. The first search of a text, one with other options
  // and one after the selection was changed by hand start from the caret, and Replace all then from
  // the note's start. The next two give whether something was found, which is selected then.
  bool FindNext(const FindWishes& wishes);
  bool FindPrevious(const FindWishes& wishes);
  void Replace(const FindWishes& wishes);
  // When `go_on` stops it, the note is as it was.
  void ReplaceAll(const FindWishes& wishes, const EditedNote::GoOn& go_on);

 private:
  void Remember(const FindWishes& wishes, bool both);
  void FollowCaret(const TextFinder& finder, const FindWishes& wishes);
  bool Found(const std::optional<TextRange>& hit, const std::wstring& text,
             const TextFinder& finder, std::wstring_view wrap_notice);
  void Select(TextRange range);

  EditedNote& note_;
  NoteVoice& voice_;
  FindSearch search_;
  FindHistory searched_;
  FindHistory replaced_;
  std::optional<TextRange> left_;  // the selection as the last search left it
  bool wraps_ = false;             // the last search found nothing more
  bool may_replace_ = true;
};

}  // namespace varnel
