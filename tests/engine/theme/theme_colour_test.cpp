#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "tests/support/cases.h"
#include "tests/support/fixed_system_colours.h"
#include "tests/support/memory_settings.h"
#include "theme/chrome_colours.h"
#include "theme/colour.h"
#include "theme/font_list.h"
#include "theme/theme_record.h"
#include "theme/theme_store.h"
#include "theme/widget_paint.h"

namespace varnel {
namespace {

using test::FixedSystemColours;
using test::SystemColour;

const FixedSystemColours kSystem;

constexpr Colour Rgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

TEST(Blend, SystemColoursAreResolvedFirst) {
  EXPECT_EQ(Translate(SystemColour(13), kSystem), 0xC06010);
  EXPECT_EQ(Blend(SystemColour(8), SystemColour(5), 0, kSystem), kWhite);
  for (const Colour unknown : {SystemColour(99), SystemColour(0x10005), kNoColour}) {
    EXPECT_EQ(Translate(unknown, kSystem), kNoColour) << unknown;
    EXPECT_EQ(Blend(unknown, kBlack, 255, kSystem), kWhite) << unknown;
  }
}

TEST(Blend, AgreesWithALongerArithmetic) {
  std::mt19937 random(20241121);
  constexpr auto kFar = std::numeric_limits<long long>::max();
  for (int round = 0; round < 20000; ++round) {
    const auto a = static_cast<Colour>(random() & 0xFFFFFF);
    const auto b = static_cast<Colour>(random() & 0xFFFFFF);
    const int drawn = static_cast<int>(random() % 700) - 300;
    const long long weight = drawn == 399 ? kFar : drawn == -300 ? -kFar - 1 : drawn;
    Colour expected = 0;
    for (int shift = 0; shift < 24; shift += 8) {
      const long double w = std::min(weight, 255LL);
      const long double mixed =
          ((a >> shift & 0xFF) * w + (b >> shift & 0xFF) * (255 - w)) / 255.0L;
      expected |= static_cast<Colour>(std::clamp(std::nearbyint(mixed), 0.0L, 255.0L)) << shift;
    }
    ASSERT_EQ(Blend(a, b, weight, kSystem), expected) << a << ' ' << b << ' ' << weight;
  }
}

TEST(Theme, WeightsFollowTheContrast) {
  const test::Cases<std::int32_t, long long, long long, long long> cases = {
      {44, 98, 113, 133},
      {0, 120, 135, 155},
      {255, -8, 8, 28},
      {1, 120, 134, 154},
      {3, 118, 134, 154},
      {-2, 121, 136, 156},
      {std::numeric_limits<std::int32_t>::min(), 1073741944, 1073741959, 1073741979}};
  for (const auto& [contrast, load, chrome, panel] : cases) {
    EXPECT_EQ(ContrastWeight(120, contrast), load) << contrast;
    EXPECT_EQ(ContrastWeight(135, contrast), chrome) << contrast;
    EXPECT_EQ(ContrastWeight(155, contrast), panel) << contrast;
  }
}

// The figures are worked out by hand from the default main colour (red 0, green 80, blue 239).
TEST(Theme, DerivedColoursOfTheDefault) {
  ThemeRecord theme;
  DeriveOnLoad(theme, kSystem);
  EXPECT_EQ(theme.lngTHEMECOLORPANEL, Rgb(122, 164, 247));
  EXPECT_EQ(theme.lngTHEMECOLORSUBTLE, Rgb(157, 187, 247));  // of 1, 79, 235 with weight 98
  const ChromeColours chrome = DeriveChrome(theme, kSystem);
  EXPECT_EQ(theme.lngTHEMECOLORSUBTLE, Rgb(144, 176, 239));  // of 4, 76, 219 with weight 113
  EXPECT_EQ(theme.lngTHEMECOLORPANEL, Rgb(122, 164, 247));
  EXPECT_EQ(chrome.ground, theme.lngTHEMECOLORPANEL);
  EXPECT_EQ(chrome.bar.first, Rgb(154, 186, 249));  // weight 101
  EXPECT_EQ(chrome.bar.second, chrome.bar.first);
  EXPECT_EQ(chrome.bar_angle, 261);
  EXPECT_EQ(chrome.border, Rgb(98, 132, 199));  // 205 of 255 of the ground
}

TEST(Chrome, TheBarTurnsWhiteFromContrast145On) {
  for (const std::int32_t contrast : {145, 146, 255, std::numeric_limits<std::int32_t>::max()}) {
    ThemeRecord theme;
    theme.lngTHEMECONTRAST = contrast;
    EXPECT_EQ(DeriveChrome(theme, kSystem).bar, (ColourPair{kWhite, kWhite})) << contrast;
  }
}

TEST(Chrome, ButtonLooks) {
  ThemeRecord theme;
  theme.lngTHEMECOLOR = SystemColour(8);
  theme.lngTHEMEBARFONTCOLOR = kWhite;
  const auto grey = [](int level) { return Rgb(level, level, level); };
  const auto pair = [&](ButtonLook look) { return ButtonColours(theme, look, kSystem); };
  EXPECT_EQ(pair(ButtonLook::kNormal), (ColourPair{grey(65), grey(135)}));
  // hover: white text darkened to 105, a tenth of it laid on the black gives 10
  EXPECT_EQ(pair(ButtonLook::kHover), (ColourPair{grey(63), grey(15)}));
  // pressed: 215, of which 21 comes through
  EXPECT_EQ(pair(ButtonLook::kPressed), (ColourPair{grey(182), grey(81)}));
}

TEST(Chrome, NoOpacityMakesAWidgetVanish) {
  const int cases[][2] = {{0, 20},    {19, 20},   {20, 20}, {235, 235},
                          {255, 255}, {256, 255}, {-5, 20}};
  for (const auto& [opacity, alpha] : cases) EXPECT_EQ(WindowAlpha(opacity), alpha) << opacity;
}

TEST(Chrome, OnlyFontsThatNobodyChoseAreTheInterfaces) {
  ThemeRecord theme;
  theme.strTHEMEBARFONTNAME = L"Georgia";
  WidgetPaint paint = WidgetPaintOf(theme, false, kSystem);
  PutInterfaceFont(paint, L"");
  EXPECT_EQ(paint.theme.strTHEMEPANELFONTNAME, kDefaultThemeFont);
  PutInterfaceFont(paint, L"Segoe UI");
  EXPECT_EQ(paint.theme.strTHEMEPANELFONTNAME, L"Segoe UI");
  EXPECT_EQ(paint.theme.strTHEMEBARFONTNAME, L"Georgia");
  EXPECT_EQ(theme.strTHEMEPANELFONTNAME, kDefaultThemeFont) << "what is stored stays";
}

TEST(ThemeStore, NothingStoredGivesTheDefaults) {
  const test::MemorySettings settings;
  ThemeRecord expected;
  DeriveOnLoad(expected, kSystem);
  const ThemeRecord theme = LoadTheme(settings, L"frmCLKwg", kSystem);
  EXPECT_EQ(theme, expected);
  EXPECT_EQ(theme.lngTHEMECOLOR, Rgb(0, 80, 239));
  EXPECT_EQ(theme.bytTHEMEOPACITY, 235);
  EXPECT_EQ(theme.lngTHEMECONTRAST, 44);
  EXPECT_EQ(theme.lngTHEMEBARFONTANGLE, 261);
  EXPECT_EQ(settings.Read(kThemeFolderSetting), L"Soft");
}

TEST(ThemeStore, EveryFormHasItsOwnValues) {
  test::MemorySettings settings;
  ThemeRecord theme;
  theme.bytTHEMEOPACITY = 0;
  theme.lngTHEMECONTRAST = -7;
  theme.lngTHEMECOLOR = SystemColour(13);
  theme.strTHEMEPANELFONTNAME = L"Gerät";
  theme.lngTHEMEPANELFONTCOLOR = 1;
  theme.strTHEMEBARFONTNAME = L"";
  theme.lngTHEMEBARFONTANGLE = -90;
  theme.lngTHEMEBARFONTCOLOR = 2;
  SaveTheme(settings, L"frmCLKwg", theme);
  const std::wstring section = L"frmTHEME\\Details";
  EXPECT_EQ(settings.values.size(), 8u);
  EXPECT_EQ(settings.values.at({section, L"frmCLKwgTheme-Main-Opacity"}), L"0");
  EXPECT_EQ(settings.values.at({section, L"frmCLKwgTheme-Main-Contrast"}), L"-7");
  EXPECT_EQ(settings.values.at({section, L"frmCLKwgTheme-Main-Color"}), L"-2147483635");
  EXPECT_EQ(settings.values.at({section, L"frmCLKwgTheme-Panel-Font"}), L"Gerät");
  EXPECT_EQ(settings.values.at({section, L"frmCLKwgTheme-Panel-Color"}), L"1");
  EXPECT_EQ(settings.values.at({section, L"frmCLKwgTheme-Bar-Angle"}), L"-90");
  EXPECT_EQ(settings.values.at({section, L"frmCLKwgTheme-Bar-Color"}), L"2");
  theme.strTHEMEBARFONTNAME = L"Tahoma";
  DeriveOnLoad(theme, kSystem);
  EXPECT_EQ(LoadTheme(settings, L"frmCLKwg", kSystem), theme);
  EXPECT_EQ(LoadTheme(settings, L"frmSTWwg", kSystem).bytTHEMEOPACITY, 235);
}

TEST(ThemeStore, GarbageReadsAsTheDefaults) {
  ThemeRecord expected;
  DeriveOnLoad(expected, kSystem);
  for (const std::wstring& garbage :
       {std::wstring(L"-"), std::wstring(L"4294967296"), std::wstring(L"NaN\x1"),
        std::wstring(100, L'9'), std::wstring(L"2147483648\n")}) {
    test::MemorySettings settings;
    for (const ThemeField& field : kThemeFields) {
      settings.Write(kThemeSection, std::wstring(L"fTheme-").append(field.name), garbage);
    }
    ThemeRecord theme = LoadTheme(settings, L"f", kSystem);
    if (garbage == L"-" || garbage == L"4294967296") {  // a face may have such a name
      EXPECT_EQ(theme.strTHEMEBARFONTNAME, garbage);
      theme.strTHEMEBARFONTNAME = theme.strTHEMEPANELFONTNAME = kDefaultThemeFont;
    }
    EXPECT_EQ(theme, expected) << garbage;
  }
}

TEST(FontList, LeavesOutTwoKindsOnly) {
  for (const wchar_t* face : {L"@Meiryo", L"@", L"WST_Engl", L"WST"}) {
    EXPECT_FALSE(IsFontOffered(face)) << face;
  }
  for (const wchar_t* face : {L"Arial CYR", L"Arial CE", L"Arial TUR", L"Arial Greek", L"CE",
                              L"Arial Baltic", L"CYR", L"Wst", L"WS", L"My@", L"Greek", L""}) {
    EXPECT_TRUE(IsFontOffered(face)) << face;
  }
}

}  // namespace
}  // namespace varnel
