// Presets as the theme dialog uses them: loaded, saved, deleted and listed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/file_store.h"
#include "theme/theme_record.h"

namespace varnel {

inline constexpr std::wstring_view kPresetEnding = L".dcp";

// The path of the preset file of that name (without ending) in a style folder's path.
std::wstring PresetPath(std::wstring_view folder, std::wstring_view name);

// Writes a preset file that holds nothing but `theme` and the caption, in place of one at `path`.
// False when that failed: an existing file stayed as it was.
bool WritePreset(FileStore& files, const std::wstring& path, const ThemeRecord& theme,
                 std::wstring_view caption);

// Sets the stored fields of `theme` from a preset file. A field that is missing in the file or
// unreadable (see SetFieldText) stays as it is; what was missing, the caption too, is written into
// the file. The derived colours are left for the caller to derive.
void LoadPreset(FileStore& files, std::wstring_view folder, std::wstring_view name,
                ThemeRecord& theme);

enum class PresetSaved {
  kSaved,
  kNoName,   // nothing but blanks was typed
  kBadName,  // what was typed cannot be a file's name (see SafeFileName)
  kFailed,   // the file could not be written; an existing one stayed as it was
};

// Writes `theme` as a new preset under the name that the user typed, in place of one of that name.
PresetSaved SavePreset(FileStore& files, std::wstring_view folder, std::wstring_view typed_name,
                       const ThemeRecord& theme);

// Deletes the preset of the name that the user typed. True when no such file is there afterwards.
bool DeletePreset(FileStore& files, std::wstring_view folder, std::wstring_view typed_name);

// Deletes every preset of the folder, which stays. True when none is left.
bool DeleteAllPresets(FileStore& files, const std::wstring& folder);

struct PresetSwatch {
  std::wstring name;     // of the file, without ending
  Colour main = kBlack;  // the main colour, lightened the more the higher the contrast
  Colour panel_text = kBlack;
  Colour bar_text = kBlack;
};

// The first kMostPresets presets of the folder. Keys missing in a file are completed with the
// values of `current`, the theme being edited.
inline constexpr std::size_t kMostPresets = 1000;
std::vector<PresetSwatch> ListPresets(FileStore& files, const std::wstring& folder,
                                      const ThemeRecord& current, const SystemColours& system);

}  // namespace varnel
