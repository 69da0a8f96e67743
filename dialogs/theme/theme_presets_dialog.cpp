// The part of the theme dialog that keeps the presets.
#include <iterator>

#include "base/number_text.h"
#include "base/text.h"
#include "dialogs/theme/theme_dialog.h"
#include "frame/product.h"
#include "resources/control_ids.h"
#include "theme/preset_generator.h"

namespace varnel {
namespace {

constexpr Message kNoName{L"You Have not Entered a File Name",
                          L"Please make sure you type it in correctly."};
constexpr Message kBadName{kApplicationTitle, L"A preset cannot have that name."};
constexpr Message kNotSaved{kApplicationTitle, L"The preset could not be saved."};
constexpr Message kReplace{kApplicationTitle, L"Replace the preset \"%1\" of the style \"%2\"?",
                           MessageKind::kQuestion};
constexpr Message kDelete{L"Delete a preset", L"Delete the preset \"%1\" of the style \"%2\"?",
                          MessageKind::kQuestion};
constexpr Message kDeleteAll{L"Delete all presets", L"Delete all %1 presets of the style \"%2\"?",
                             MessageKind::kQuestion};

}  // namespace

void ThemeDialog::SelectFolder() {
  const LRESULT place = ::SendMessageW(Control(lstFOLDERS), LB_GETCURSEL, 0, 0);
  if (place < 0 || place >= static_cast<LRESULT>(kStyleFolders.size())) return;
  editor_.SelectFolder(kStyleFolders[place]);
  FillPresets();
  EnableButtons();
}

void ThemeDialog::FillPresets() {
  filling_ = true;
  presets_.Fill(editor_.Presets());
  filling_ = false;
  ::SendMessageW(Control(flbLIST), LB_RESETCONTENT, 0, 0);
  for (const PresetSwatch& preset : presets_.presets()) {
    const std::wstring file = preset.name + std::wstring(kPresetEnding);
    ::SendMessageW(Control(flbLIST), LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(file.c_str()));
  }
}

void ThemeDialog::SelectPreset(int place) {
  const std::wstring name = presets_.presets()[place].name;
  ::SendMessageW(Control(flbLIST), LB_SETCURSEL, place, 0);
  SetControlText(txtPRESETNEW, name);
  editor_.SelectPreset(name);
  Changed();
}

void ThemeDialog::OnNameBox(int code) {
  if (code == EN_CHANGE) EnableButtons();
  // Enter in the box makes the preset that is named in it.
  if (code == EN_SETFOCUS) ::SendMessageW(handle(), DM_SETDEFID, btnNEW, 0);
  if (code == EN_KILLFOCUS) ::SendMessageW(handle(), DM_SETDEFID, btnAPPLY, 0);
}

bool ThemeDialog::Confirmed(const Message& question, const std::wstring& subject) {
  asking_ = true;
  const bool yes = Ask(handle(), question, {subject, editor_.folder()});
  asking_ = false;
  return yes && handle();
}

void ThemeDialog::NewPreset() {
  const std::wstring name = ControlText(txtPRESETNEW);
  const auto present = editor_.PresetNamed(name);
  if (present && !Confirmed(kReplace, *present)) return;
  switch (editor_.NewPreset(name)) {
    case PresetSaved::kNoName:
      Ask(handle(), kNoName);
      break;
    case PresetSaved::kBadName:
      Ask(handle(), kBadName);
      break;
    case PresetSaved::kFailed:
      Ask(handle(), kNotSaved);
      break;
    case PresetSaved::kSaved:
      FillPresets();
      filling_ = true;
      presets_.Choose(presets_.Find(editor_.PresetNamed(name).value_or(L"")));
      filling_ = false;
      EnableButtons();
      break;
  }
}

void ThemeDialog::DeletePreset() {
  const auto name = editor_.PresetNamed(ControlText(txtPRESETNEW));
  if (!name || !Confirmed(kDelete, *name)) return;
  editor_.RemovePreset(*name);
  FillPresets();
  EnableButtons();
}

void ThemeDialog::DeleteAllPresets() {
  if (!Confirmed(kDeleteAll, NumberText(std::ssize(presets_.presets())))) return;
  editor_.RemoveAllPresets();
  FillPresets();
  EnableButtons();
}

}  // namespace varnel
