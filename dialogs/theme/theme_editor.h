// What the theme dialog edits: a copy of one form's theme, and the presets of one style folder.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/file_store.h"
#include "base/settings.h"
#include "frame/form_entry.h"
#include "theme/preset.h"
#include "theme/theme_record.h"

namespace varnel {

// A number of the theme that is set with a slider.
struct ThemeNumber {
  int low;
  int high;
  int (*read)(const ThemeRecord& theme);
  void (*write)(ThemeRecord& theme, int value);
  std::wstring (*text)(int value);  // as the user reads it
};

enum ThemeNumberIndex { kOpacityNumber, kContrastNumber, kAngleNumber, kThemeNumberCount };

// `number` must be below kThemeNumberCount.
const ThemeNumber& ThemeNumberAt(int number);
// Where the slider stands: the value within the slider's ends, for the angle after whole turns are
// taken off. A theme read from elsewhere may hold any value.
int SliderPlace(const ThemeRecord& theme, int number);
std::wstring NumberLabel(const ThemeRecord& theme, int number);

// How well texts stand out from what they stand on: contrast ratios, 1 to 21.
struct Readability {
  double bar = 1;    // the title bar's text
  double panel = 1;  // the panel's
};
Readability ReadabilityOf(const ThemeRecord& theme, const SystemColours& system);
// Under 4.5 : 1.
bool HardToRead(double ratio);
// "7.3 : 1", cut rather than rounded, so that no figure looks better than it is.
std::wstring RatioText(double ratio);

class ThemeEditor {
 public:
  ThemeEditor(Settings& settings, FileStore& files, const SystemColours& system,
              std::wstring program_folder)
      : settings_(settings),
        files_(files),
        system_(system),
        program_folder_(std::move(program_folder)) {}

  // Takes up a form, which has the theme `current`. `target` outlives the editor.
  void Open(const FormEntry& target, const ThemeRecord& current);
  std::wstring_view target() const { return target_->form_name; }
  std::wstring_view caption() const { return target_->theme_caption; }
  const FormEntry& target_entry() const { return *target_; }

  // The working copy. Its derived colours are not kept up to date.
  ThemeRecord& theme() { return working_; }
  const ThemeRecord& theme() const { return working_; }
  // What the form goes back to when the changes are dropped: its theme as it was taken up or last
  // applied.
  const ThemeRecord& kept() const { return kept_; }
  bool changed() const { return working_ != kept_; }
  // Stores the working copy under the form's value names.
  void Apply();

  // The style folder: at first the stored one, "Soft" when that is no style.
  const std::wstring& folder() const { return folder_; }
  // An unknown style is refused and changes nothing.
  void SelectFolder(std::wstring_view style);
  // Stores the style folder for the next opening of the dialog.
  void StoreFolder();

  std::vector<PresetSwatch> Presets() const;
  // The preset of the folder that the typed name stands for, under the name that it has there: in
  // whatever case, with blanks around it or a dot after it. Nothing when there is none.
  std::optional<std::wstring> PresetNamed(std::wstring_view typed_name) const;
  // Loads a preset of the folder into the working copy.
  void SelectPreset(std::wstring_view name);
  // The working copy becomes a preset of the folder, which is created if it is missing.
  PresetSaved NewPreset(std::wstring_view typed_name);
  // True when no such preset is there afterwards.
  bool RemovePreset(std::wstring_view typed_name);
  // True when the folder holds no preset afterwards.
  bool RemoveAllPresets();

 private:
  std::wstring FolderPath() const;

  Settings& settings_;
  FileStore& files_;
  const SystemColours& system_;
  const std::wstring program_folder_;
  const FormEntry* target_ = &kNoForm;
  ThemeRecord working_;
  ThemeRecord kept_;
  std::wstring folder_;
};

}  // namespace varnel
