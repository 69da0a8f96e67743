#include "dialogs/theme/theme_editor.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/file_name.h"
#include "base/number_text.h"
#include "base/text.h"
#include "theme/chrome_colours.h"
#include "theme/contrast.h"
#include "theme/preset_generator.h"
#include "theme/theme_store.h"

namespace varnel {
namespace {

constexpr int kFullTurn = 360;

constexpr ThemeNumber kNumbers[] = {
    {20, 255, [](const ThemeRecord& theme) -> int { return theme.bytTHEMEOPACITY; },
     [](ThemeRecord& theme, int value) {
       theme.bytTHEMEOPACITY = static_cast<std::uint8_t>(value);
     },
     [](int value) {
       return NumberText(value) + L" (" + NumberText(RoundHalfEven(value / 2.55)) + L"%)";
     }},
    {0, 255, [](const ThemeRecord& theme) -> int { return theme.lngTHEMECONTRAST; },
     [](ThemeRecord& theme, int value) { theme.lngTHEMECONTRAST = value; },
     [](int value) { return NumberText(value); }},
    {0, kFullTurn - 1, [](const ThemeRecord& theme) -> int { return theme.lngTHEMEBARFONTANGLE; },
     [](ThemeRecord& theme, int value) { theme.lngTHEMEBARFONTANGLE = value; },
     [](int value) { return NumberText(value) + L"\xB0"; }},
};
static_assert(std::size(kNumbers) == kThemeNumberCount);

}  // namespace

const ThemeNumber& ThemeNumberAt(int number) {
  return kNumbers[number];
}

int SliderPlace(const ThemeRecord& theme, int number) {
  const ThemeNumber& slider = kNumbers[number];
  int value = slider.read(theme);
  if (number == kAngleNumber) value = (value % kFullTurn + kFullTurn) % kFullTurn;
  return std::clamp(value, slider.low, slider.high);
}

std::wstring NumberLabel(const ThemeRecord& theme, int number) {
  return kNumbers[number].text(kNumbers[number].read(theme));
}

Readability ReadabilityOf(const ThemeRecord& theme, const SystemColours& system) {
  ThemeRecord painted = theme;
  const ChromeColours chrome = DeriveChrome(painted, system);
  return {ContrastRatio(Translate(theme.lngTHEMEBARFONTCOLOR, system), chrome.bar.first),
          ContrastRatio(Translate(theme.lngTHEMEPANELFONTCOLOR, system), chrome.ground)};
}

bool HardToRead(double ratio) {
  return ratio < kReadableContrast;
}

std::wstring RatioText(double ratio) {
  const auto tenths = static_cast<long long>(std::floor(ratio * 10));
  return NumberText(tenths / 10) + L"." + NumberText(tenths % 10) + L" : 1";
}

void ThemeEditor::Open(const FormEntry& target, const ThemeRecord& current) {
  target_ = &target;
  working_ = kept_ = current;
  folder_ = kThemeFolderSetting.fallback;
  SelectFolder(settings_.Read(kThemeFolderSetting));
}

void ThemeEditor::Apply() {
  kept_ = working_;
  SaveTheme(settings_, target(), kept_);
}

void ThemeEditor::SelectFolder(std::wstring_view style) {
  const auto found = std::ranges::find_if(
      kStyleFolders, [&](std::wstring_view each) { return EqualsIgnoreCase(each, style); });
  if (found != kStyleFolders.end()) folder_ = *found;
}

void ThemeEditor::StoreFolder() {
  settings_.Write(kThemeFolderSetting, folder_);
}

std::wstring ThemeEditor::FolderPath() const {
  return StyleFolderPath(program_folder_, folder_);
}

std::vector<PresetSwatch> ThemeEditor::Presets() const {
  return ListPresets(files_, FolderPath(), working_, system_);
}

std::optional<std::wstring> ThemeEditor::PresetNamed(std::wstring_view typed_name) const {
  const auto name = SafeFileName(typed_name);
  if (!name) return std::nullopt;
  const std::wstring file = *name + std::wstring(kPresetEnding);
  for (const std::wstring& each : files_.FileNames(FolderPath(), kPresetEnding)) {
    if (EqualsIgnoreCase(each, file)) return each.substr(0, name->size());
  }
  return std::nullopt;
}

void ThemeEditor::SelectPreset(std::wstring_view name) {
  LoadPreset(files_, FolderPath(), name, working_);
}

PresetSaved ThemeEditor::NewPreset(std::wstring_view typed_name) {
  files_.CreateFolder(FolderPath());
  return SavePreset(files_, FolderPath(), typed_name, working_);
}

bool ThemeEditor::RemovePreset(std::wstring_view typed_name) {
  return DeletePreset(files_, FolderPath(), typed_name);
}

bool ThemeEditor::RemoveAllPresets() {
  return DeleteAllPresets(files_, FolderPath());
}

}  // namespace varnel
