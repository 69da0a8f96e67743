// The theme dialog: edits the theme of the form whose menu was opened last, which shows the changes
// at once and keeps them when they are applied.
#pragma once

#include <array>

#include "dialogs/theme/font_box_win.h"
#include "dialogs/theme/preset_list_win.h"
#include "dialogs/theme/theme_editor.h"
#include "frame/services.h"
#include "win/windows/colour_picker.h"
#include "win/windows/dialog.h"
#include "win/windows/message_box.h"

namespace varnel {

class ThemeDialog : public Dialog {  // frmTHEME
 public:
  explicit ThemeDialog(Services& services);

 private:
  void OnOpen() override;
  void OnReopen() override;
  void OnCommand(int id, int code) override;
  bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  bool OnKey(const MSG& message) override;
  LRESULT OnNotify(const NMHDR& notice);
  void Draw(const DRAWITEMSTRUCT& item);

  // Takes up the current form; the dialog goes beside it.
  void TakeTarget();
  // Gives the target the theme that is kept.
  void ReturnTarget();
  // What the target shows, when it is open: nothing is stored.
  void ShowOnTarget(const ThemeRecord& theme);
  void MoveBeside(const LiveForm& form);

  void FillTabs();
  void ShowPage(int page);
  // The working theme has changed: the target and the controls follow.
  void Changed();
  void ShowValues();
  void ShowReadability();
  void EnableButtons();

  void SelectFolder();
  void FillPresets();
  void SelectPreset(int place);
  void OnNameBox(int code);
  void NewPreset();
  // Asks about `subject` of the folder that is shown; false when the user says no. What is asked
  // about stays taken up meanwhile.
  bool Confirmed(const Message& question, const std::wstring& subject);
  void DeletePreset();
  void DeleteAllPresets();
  void OnSlider(HWND slider);
  void OnFont(int combo, int code);
  void PickColour(int button);
  void Apply();

  Services& services_;
  ThemeEditor editor_;
  PresetList presets_;
  std::array<FontBox, 2> fonts_;
  ColourPicker colours_;
  bool filling_ = false;  // controls change by our own hand
  bool asking_ = false;   // a question about presets is open
};

}  // namespace varnel
