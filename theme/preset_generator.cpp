#include "theme/preset_generator.h"

#include <algorithm>
#include <cstdint>

#include "base/text.h"
#include "theme/preset.h"
#include "theme/theme_record.h"

namespace varnel {
namespace {

constexpr Colour kDarkText = 3092271;  // 47, 47, 47

struct BaseColour {
  std::wstring_view name;
  Colour main = kBlack;
  Colour text = kWhite;
};

constexpr BaseColour kGreen = {L"Green", 1619546};

// In the order in which the files are written. "Green" comes twice and is written twice.
constexpr std::array<BaseColour, 15> kBaseColours = {{{L"Black", 0},
                                                      {L"Sky", 16367236},
                                                      {L"Blue", 16221762},
                                                      {L"Cherry", 6689485},
                                                      {L"Cyan", 11456089},
                                                      {L"Gray", 12566463},
                                                      kGreen,
                                                      {L"Forest", 4293120},
                                                      kGreen,
                                                      {L"Orange", 2461404},
                                                      {L"Pink", 14310615},
                                                      {L"Purple", 15093141},
                                                      {L"Red", 4538846},
                                                      {L"White", kWhite, kDarkText},
                                                      {L"Yellow", 571127}}};

enum class TextRule { kKeep, kDark, kDarkBar, kDeepened, kGlowing };

struct Tint {
  Colour with = kBlack;
  int weight = 255;  // how much of the colour stays
};

struct Style {
  std::wstring_view name;
  std::int32_t contrast = 0;
  std::uint8_t opacity = 255;
  Tint first;
  Tint second;
  TextRule text_rule = TextRule::kKeep;
};

constexpr std::array<Style, 10> kStyles = {{
    {L"Bright", 90, 240, {}, {}, TextRule::kKeep},
    {L"Dark", 30, 240, {kBlack, 130}, {}, TextRule::kDark},
    {L"Flat", 0, 255, {}, {}, TextRule::kKeep},
    {L"Frosted", 0, 190, {kWhite, 150}, {}, TextRule::kKeep},
    {L"Glass", 0, 110, {kBlack, 220}, {}, TextRule::kKeep},
    {L"Light", 30, 230, {kWhite, 150}, {}, TextRule::kDarkBar},
    {L"Neon", 0, 220, {kBlack, 20}, {}, TextRule::kGlowing},
    {L"Pale", 255, 240, {kWhite, 170}, {}, TextRule::kDeepened},
    {L"Slate", 70, 220, {kBlack, 150}, {kWhite, 120}, TextRule::kKeep},
    {L"Soft", 40, 230, {kWhite, 220}, {}, TextRule::kKeep},
}};

struct TextColours {
  Colour bar = kWhite;
  Colour panel = kWhite;
};

TextColours TextColoursOf(const BaseColour& base, TextRule rule, const SystemColours& system) {
  switch (rule) {
    case TextRule::kDark:
      return {kDarkText, kDarkText};
    case TextRule::kDarkBar:
      return {kDarkText, base.text};
    case TextRule::kDeepened: {
      const Colour deep = Blend(base.main, kBlack, 220, system);
      return {deep, deep};
    }
    case TextRule::kGlowing: {
      const Colour glow = Blend(base.main, kWhite, base.name == L"Black" ? 240 : 150, system);
      return {glow, glow};
    }
    case TextRule::kKeep:
      break;
  }
  return {base.text, base.text};
}

ThemeRecord GeneratedTheme(const Style& style, const BaseColour& base,
                           const SystemColours& system) {
  const auto tinted = [&system](Colour colour, const Tint& tint) {
    return Blend(colour, tint.with, tint.weight, system);
  };
  const TextColours text = TextColoursOf(base, style.text_rule, system);
  ThemeRecord theme;
  theme.lngTHEMECOLOR = tinted(tinted(base.main, style.first), style.second);
  theme.bytTHEMEOPACITY = style.opacity;
  theme.lngTHEMECONTRAST = base.name == L"White" ? 255 : style.contrast;
  theme.lngTHEMEBARFONTCOLOR = text.bar;
  theme.lngTHEMEBARFONTANGLE = 188;  // not the angle of a widget that never had a preset
  theme.lngTHEMEPANELFONTCOLOR = text.panel;
  return theme;
}

std::wstring ThemesFolder(std::wstring_view program_folder) {
  std::wstring path(program_folder);
  if (!path.ends_with(L'\\')) path += L'\\';
  return path + L"themes";
}

}  // namespace

std::wstring StyleFolderPath(std::wstring_view program_folder, std::wstring_view style) {
  return ThemesFolder(program_folder).append(L"\\").append(style);
}

bool GeneratePresets(FileStore& files, const std::wstring& folder, std::wstring_view style_name,
                     const SystemColours& system, SamePresets same) {
  const auto style = std::find_if(kStyles.begin(), kStyles.end(), [&](const Style& each) {
    return EqualsIgnoreCase(each.name, style_name);
  });
  if (style == kStyles.end()) return true;
  bool all = true;
  for (const BaseColour& base : kBaseColours) {
    const std::wstring path = PresetPath(folder, base.name);
    if (same == SamePresets::kLeave && files.FileExists(path)) continue;
    all = WritePreset(files, path, GeneratedTheme(*style, base, system), base.name) && all;
  }
  return all;
}

bool EnsureThemeFolders(FileStore& files, std::wstring_view program_folder,
                        const SystemColours& system) {
  files.CreateFolder(ThemesFolder(program_folder));
  bool all = true;
  for (const std::wstring_view style : kStyleFolders) {
    const std::wstring folder = StyleFolderPath(program_folder, style);
    const std::wstring unfinished = folder + L".unfinished";
    if (files.FolderExists(folder) && !files.FileExists(unfinished)) continue;
    // The mark comes before the folder, and goes when all is in it.
    const bool whole = files.Replace(unfinished, "") && files.CreateFolder(folder) &&
                       GeneratePresets(files, folder, style, system, SamePresets::kLeave) &&
                       files.Remove(unfinished) == FileResult::kDone;
    all = whole && all;
  }
  return all;
}

}  // namespace varnel
