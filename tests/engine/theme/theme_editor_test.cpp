#include "dialogs/theme/theme_editor.h"

#include <gtest/gtest.h>

#include "core/widget_index.h"
#include "dialogs/theme/place_beside.h"
#include "tests/support/cases.h"
#include "tests/support/fixed_system_colours.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_settings.h"
#include "theme/theme_store.h"

namespace varnel {
namespace {

class ThemeEditorTest : public ::testing::Test {
 protected:
  test::MemorySettings settings_;
  test::MemoryFiles files_;
  test::FixedSystemColours system_;
  ThemeEditor editor_{settings_, files_, system_, L"C:\\varnel\\"};
};

TEST_F(ThemeEditorTest, NamesTheFormInItsCaption) {
  for (const FormEntry* form : {FormNamed(L"frmCLKwg"), &kManagerForm}) {
    editor_.Open(*form, {});
    EXPECT_EQ(editor_.caption(), form->theme_caption);
    EXPECT_EQ(editor_.target(), form->form_name);
  }
}

TEST_F(ThemeEditorTest, StoresNothingBeforeApplyAndThenOnlyForItsForm) {
  settings_.Write(kThemeSection, L"frmCLKwgTheme-Main-Opacity", L"99");
  ThemeRecord current;
  current.lngTHEMECONTRAST = 7;
  editor_.Open(*FormNamed(L"frmSTWwg"), current);
  EXPECT_FALSE(editor_.changed());
  editor_.theme().lngTHEMECOLOR = 255;
  editor_.theme().strTHEMEPANELFONTNAME = L"Verdana";
  EXPECT_TRUE(editor_.changed());
  EXPECT_EQ(editor_.kept(), current);
  EXPECT_EQ(LoadTheme(settings_, L"frmSTWwg", system_).lngTHEMECOLOR, ThemeRecord().lngTHEMECOLOR);

  editor_.Apply();
  EXPECT_FALSE(editor_.changed());
  EXPECT_EQ(editor_.kept(), editor_.theme());
  const ThemeRecord stored = LoadTheme(settings_, L"frmSTWwg", system_);
  EXPECT_EQ(stored.lngTHEMECOLOR, 255);
  EXPECT_EQ(stored.lngTHEMECONTRAST, 7);
  EXPECT_EQ(stored.strTHEMEPANELFONTNAME, L"Verdana");
  EXPECT_EQ(LoadTheme(settings_, L"frmCLKwg", system_).bytTHEMEOPACITY, 99);
  EXPECT_EQ(LoadTheme(settings_, L"frmVRNwg", system_).lngTHEMECOLOR, ThemeRecord().lngTHEMECOLOR);
}

TEST_F(ThemeEditorTest, RemembersTheStyleFolderWhenTold) {
  const std::pair<const wchar_t*, const wchar_t*> stored[] = {
      {L"Neon", L"Neon"}, {L"neon", L"Neon"}, {L"..\\secret", L"Soft"}, {L"", L"Soft"}};
  for (const auto& [text, style] : stored) {
    settings_.Write(kThemeFolderSetting, text);
    editor_.Open(*FormNamed(L"frmCLKwg"), {});
    EXPECT_EQ(editor_.folder(), style);
  }
  editor_.SelectFolder(L"Glass");
  editor_.SelectFolder(L"Nowhere");
  EXPECT_EQ(editor_.folder(), L"Glass");
  editor_.StoreFolder();
  EXPECT_EQ(settings_.Read(kThemeFolderSetting), L"Glass");
}

TEST_F(ThemeEditorTest, PresetsAreSavedListedLoadedAndDeleted) {
  editor_.Open(*FormNamed(L"frmCLKwg"), {});
  EXPECT_TRUE(editor_.Presets().empty());
  editor_.theme().lngTHEMECOLOR = 4711;
  EXPECT_EQ(editor_.NewPreset(L" Mine "), PresetSaved::kSaved);
  EXPECT_EQ(editor_.NewPreset(L"Other"), PresetSaved::kSaved);
  ASSERT_EQ(editor_.Presets().size(), 2u);
  EXPECT_EQ(editor_.Presets()[0].name, L"Mine");
  // Whatever the file system takes for the same name is the same preset.
  for (const wchar_t* same : {L"Mine", L" mine ", L"MINE. ."}) {
    EXPECT_EQ(editor_.PresetNamed(same), L"Mine") << same;
  }
  for (const wchar_t* other : {L"", L"Min", L"Mine.dcp", L"..\\Soft\\Mine"}) {
    EXPECT_EQ(editor_.PresetNamed(other), std::nullopt) << other;
  }

  editor_.theme().lngTHEMECOLOR = 1;
  editor_.SelectPreset(L"Mine");
  EXPECT_EQ(editor_.theme().lngTHEMECOLOR, 4711);
  EXPECT_TRUE(editor_.RemovePreset(L"Mine"));
  EXPECT_EQ(editor_.PresetNamed(L"Mine"), std::nullopt);
  EXPECT_TRUE(editor_.RemoveAllPresets());
  EXPECT_TRUE(editor_.Presets().empty());
  EXPECT_TRUE(files_.files.empty());
}

TEST(ThemeNumbers, SlidersShowAnyValueWithinTheirEnds) {
  const test::Cases<int, int, int, const wchar_t*> cases = {
      {kOpacityNumber, 235, 235, L"235 (92%)"},
      {kOpacityNumber, 0, 20, L"0 (0%)"},
      {kOpacityNumber, 255, 255, L"255 (100%)"},
      {kContrastNumber, 44, 44, L"44"},
      {kContrastNumber, -5, 0, L"-5"},
      {kContrastNumber, 400, 255, L"400"},
      {kAngleNumber, 261, 261, L"261\xB0"},
      {kAngleNumber, 360, 0, L"360\xB0"},
      {kAngleNumber, -90, 270, L"-90\xB0"},
      {kAngleNumber, INT32_MIN, 232, L"-2147483648\xB0"}};
  for (const auto& [number, value, place, label] : cases) {
    ThemeRecord theme;
    ThemeNumberAt(number).write(theme, value);
    EXPECT_EQ(SliderPlace(theme, number), place) << value;
    EXPECT_EQ(NumberLabel(theme, number), label);
  }
}

TEST(ThemeReadability, JudgesTextsOnTheirGrounds) {
  const test::FixedSystemColours system;
  ThemeRecord theme;
  theme.lngTHEMECOLOR = kWhite;
  theme.lngTHEMEBARFONTCOLOR = kBlack;
  theme.lngTHEMEPANELFONTCOLOR = kWhite;
  Readability readability = ReadabilityOf(theme, system);
  EXPECT_DOUBLE_EQ(readability.bar, 21);
  EXPECT_DOUBLE_EQ(readability.panel, 1);
  EXPECT_FALSE(HardToRead(readability.bar));
  EXPECT_TRUE(HardToRead(readability.panel));
  // A contrast above 145 whitens the bar more than the panel.
  theme.lngTHEMECOLOR = test::SystemColour(8);
  theme.lngTHEMECONTRAST = 145;
  readability = ReadabilityOf(theme, system);
  EXPECT_DOUBLE_EQ(readability.bar, 21);
  EXPECT_GT(readability.panel, 1.5);

  EXPECT_FALSE(HardToRead(4.5));
  EXPECT_TRUE(HardToRead(4.49));
  EXPECT_EQ(RatioText(4.49), L"4.4 : 1");
  EXPECT_EQ(RatioText(21), L"21.0 : 1");
}

TEST(PlaceBesideTest, HidesAsLittleAsCanBe) {
  const Rect screen{0, 0, 1280, 780};
  const test::Cases<Size, Rect, Rect> cases = {
      {{600, 400}, {10, 20, 400, 250}, {410, 20, 1010, 420}},      // to the right
      {{600, 400}, {700, 500, 1100, 730}, {90, 380, 690, 780}},    // left, moved up
      {{1000, 400}, {300, 10, 700, 240}, {280, 250, 1280, 650}},   // below, moved left
      {{1000, 400}, {300, 540, 700, 770}, {280, 130, 1280, 530}},  // above
      {{1000, 730}, {630, 15, 1220, 362}, {0, 15, 1000, 745}},     // nowhere free: hides least
      {{1500, 900}, {100, 100, 200, 200}, {0, 0, 1500, 900}}};     // too large for the screen
  for (const auto& [dialog, window, place] : cases) {
    EXPECT_EQ(PlaceBeside(dialog, window, screen, 10), place) << window.left << ", " << window.top;
  }
}

}  // namespace
}  // namespace varnel
