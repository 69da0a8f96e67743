// The panel that finds and replaces.
#pragma once

#include "widgets/notes/find/find_desk.h"
#include "widgets/notes/panels/find_marks_win.h"
#include "widgets/notes/panels/note_panel_win.h"
#include "widgets/notes/panels/panel_voice_win.h"

namespace varnel {

class FindPanel : public NotePanel {  // pfrFIND
 public:
  // Both outlive it.
  FindPanel(NotePanelHost& host, EditedNote& note);

  void Load() override;
  bool ForPlainText() const override { return true; }
  void Place(const Rect& box) override;
  bool OnControl(int id, int code) override;
  ButtonCheck CheckOf(int id) const override;
  void DrawOnButton(const ButtonPainting& painting) override;
  bool OnKey(const MSG& message) override;
  void OnNoteShown(const std::wstring& path) override;
  void SaveState() override;

  // The panel was opened with that text selected in the note: its first line is to be found.
  void Start(const std::wstring& selected);
  // False when there is nothing to search for yet.
  bool FindAgain(bool backwards);

 private:
  FindWishes Wishes() const;
  void FindNext();
  void ReplaceAll();
  void ShowMarks();
  void EnableButtons();
  void ShowHistories();
  void ShowHistory(int id, const FindHistory& history);

  PanelVoice voice_;
  EditedNote& note_;
  FindDesk desk_;
  FindMarks marks_;
  bool open_ = false;
  bool match_case_ = false;
  bool whole_words_ = false;
};

}  // namespace varnel
