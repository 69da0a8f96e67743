// The panel that checks the spelling.
#pragma once

#include "theme/text_field_win.h"
#include "widgets/notes/panels/note_panel_win.h"
#include "widgets/notes/panels/panel_voice_win.h"
#include "widgets/notes/spelling/spell_desk.h"

namespace varnel {

class SpellPanel : public NotePanel {  // pfrSPELL
 public:
  // All outlive it.
  SpellPanel(NotePanelHost& host, EditedNote& note, clsNOTsp& checker);

  void Load() override;
  bool ForPlainText() const override { return true; }
  int Rows(int width) const override;
  void Place(const Rect& box) override;
  bool OnControl(int id, int code) override;
  ButtonCheck CheckOf(int id) const override;
  void DrawOnButton(const ButtonPainting& painting) override;
  bool OnKey(const MSG& message) override;
  bool Has(HWND control) const override;
  void OnNoteShown(const std::wstring& path) override;
  void SaveState() override { checker_.DatabaseSave(); }

 private:
  void AddList(int id, const wchar_t* word);
  int ListWidth() const;
  void ShowLists();
  void Step(void (SpellDesk::*step)());
  void Change(void (SpellDesk::*step)(const std::wstring& replacement));
  void Ignore(IgnoreScope scope);
  void ShowStep(bool take_focus);
  void EnableButtons();
  void TakeSuggestion();
  void ShowOwnWords();
  void RemoveOwnWord();
  void UseDictionary(std::wstring_view name);
  void Toggle(const Setting& option, int id);

  PanelVoice voice_;
  clsNOTsp& checker_;
  SpellDesk desk_;
  TextField txtSUGG_;
  Rect list_;
  bool own_words_ = false;  // are shown in place of suggestions
};

}  // namespace varnel
