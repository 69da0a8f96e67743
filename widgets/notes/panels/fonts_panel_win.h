// The panel of letters: face, size, colour and style of what is selected.
#pragma once

#include "widgets/notes/panels/note_panel_win.h"
#include "win/windows/colour_picker.h"

namespace varnel {

class FontsPanel : public NotePanel {  // pfrFONTS
 public:
  using NotePanel::NotePanel;

  void Load() override;
  void OnOpened() override;
  void Refresh() override;
  bool OnControl(int id, int code) override;
  ButtonCheck CheckOf(int id) const override;
  void DrawOnButton(const ButtonPainting& painting) override;

 private:
  bool OnBox(int id, int code);
  void PickColour();

  CharacterFormat shown_;
  ColourPicker picker_;
};

}  // namespace varnel
