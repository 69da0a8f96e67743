// The panel of paragraphs: alignment, indents, bullets and spacing of those selected.
#pragma once

#include "widgets/notes/panels/note_panel_win.h"

namespace varnel {

class ParagraphPanel : public NotePanel {  // pfrPGRAPH
 public:
  using NotePanel::NotePanel;

  void Load() override;
  void Refresh() override;
  bool OnControl(int id, int code) override;
  ButtonCheck CheckOf(int id) const override;

 private:
  void TextLineSpacingGet(const RichParagraph& now);
  // Applies what stands in the boxes, of which `id` has just changed.
  void TextLineSpacingApply(int id, int code);

  RichParagraph shown_;
  bool showing_ = false;  // the boxes change by the program
};

}  // namespace varnel
