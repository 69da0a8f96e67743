// What the formatting commands do to the selection of the note in the editor.
#pragma once

#include <string>

#include "base/settings.h"
#include "theme/colour.h"
#include "widgets/notes/editor/note_editor_win.h"
#include "widgets/notes/text/note_spacing.h"

namespace varnel {

// The format of a new note, and the one that clearing leaves, from the settings.
CharacterFormat NoteBaseFormat(const Settings& settings);
CharacterFormat ClearedFormat(const Settings& settings);

// The colour that a stored number names.
TextColour TextColourOf(Colour colour);

// Without effect on a plain text note.
class NoteFormats {
 public:
  NoteFormats(NoteEditor& editor, const Settings& settings)
      : editor_(editor), settings_(settings) {}

  CharacterFormat characters() const { return editor_.edit().SelectionFormat(); }
  RichParagraph paragraph() const { return editor_.edit().SelectionParagraph(); }

  void TextBoldSet();
  void TextItalicSet();
  void TextUnderlineSet();
  void SetFont(const std::wstring& face);
  void SetPoints(int points);
  void SetColour(COLORREF colour);
  // 0 raised, 1 normal, 2 lowered.
  void TextFontScriptSet(int index);
  void QuickStyleSet(int index);
  void TextFormatClear();
  void ClearWholeNote();

  // 0 left, 1 right, 2 centre, 3 justified.
  void TextAlignmentSet(int option);
  void TextIndentIncr();
  void TextIndentDecr();
  void TextBullets();
  void TextLineSpacingSet(LineRule rule, double line, double before, double after);

 private:
  void Set(const CharacterFormat& format);
  void Set(const RichParagraph& format);

  NoteEditor& editor_;
  const Settings& settings_;
};

}  // namespace varnel
