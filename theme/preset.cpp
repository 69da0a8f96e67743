#include "theme/preset.h"

#include "base/file_name.h"
#include "base/text.h"
#include "theme/preset_file.h"

namespace varnel {
namespace {

constexpr std::wstring_view kCaptionSection = L"preset";
constexpr std::wstring_view kCaptionKey = L"caption";

}  // namespace

std::wstring PresetPath(std::wstring_view folder, std::wstring_view name) {
  return std::wstring(folder).append(L"\\").append(name).append(kPresetEnding);
}

bool WritePreset(FileStore& files, const std::wstring& path, const ThemeRecord& theme,
                 std::wstring_view caption) {
  PresetFile preset(files);
  preset.StartPresetFile(path);
  for (const ThemeField& field : kThemeFields) {
    preset.PresetKeyWrite(field.preset_section, field.name, FieldText(theme, field));
  }
  preset.PresetKeyWrite(kCaptionSection, kCaptionKey, caption);
  return preset.Save();
}

void LoadPreset(FileStore& files, std::wstring_view folder, std::wstring_view name,
                ThemeRecord& theme) {
  PresetFile preset(files);
  preset.SelectPresetFile(PresetPath(folder, name));
  FillEmptyFonts(theme);
  for (const ThemeField& field : kThemeFields) {
    const std::wstring current = FieldText(theme, field);
    SetFieldText(theme, field, preset.PresetKeyRead(field.preset_section, field.name, current));
  }
  preset.PresetKeyRead(kCaptionSection, kCaptionKey, name);
  preset.Save();
}

PresetSaved SavePreset(FileStore& files, std::wstring_view folder, std::wstring_view typed_name,
                       const ThemeRecord& theme) {
  if (Trim(typed_name).empty()) return PresetSaved::kNoName;
  const auto name = SafeFileName(typed_name);
  if (!name) return PresetSaved::kBadName;
  const bool written = WritePreset(files, PresetPath(folder, *name), theme, *name);
  return written ? PresetSaved::kSaved : PresetSaved::kFailed;
}

bool DeletePreset(FileStore& files, std::wstring_view folder, std::wstring_view typed_name) {
  const auto name = SafeFileName(typed_name);
  return name && files.Remove(PresetPath(folder, *name)) == FileResult::kDone;
}

bool DeleteAllPresets(FileStore& files, const std::wstring& folder) {
  bool all = true;
  for (const std::wstring& name : files.FileNames(folder, kPresetEnding)) {
    all = files.Remove(folder + L"\\" + name) == FileResult::kDone && all;
  }
  return all;
}

std::vector<PresetSwatch> ListPresets(FileStore& files, const std::wstring& folder,
                                      const ThemeRecord& current, const SystemColours& system) {
  constexpr long long kSwatchBase = 305;
  std::vector<PresetSwatch> swatches;
  for (const std::wstring& file : files.FileNames(folder, kPresetEnding)) {
    if (swatches.size() == kMostPresets) break;
    const std::wstring name = file.substr(0, file.size() - kPresetEnding.size());
    ThemeRecord theme = current;
    LoadPreset(files, folder, name, theme);
    const Colour main =
        Blend(theme.lngTHEMECOLOR, kWhite, kSwatchBase - theme.lngTHEMECONTRAST, system);
    swatches.push_back({name, main, Translate(theme.lngTHEMEPANELFONTCOLOR, system),
                        Translate(theme.lngTHEMEBARFONTCOLOR, system)});
  }
  return swatches;
}

}  // namespace varnel
