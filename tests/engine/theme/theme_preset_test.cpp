#include <gtest/gtest.h>

#include <string>

#include "base/text.h"
#include "tests/support/cases.h"
#include "tests/support/failing_files.h"
#include "tests/support/fixed_system_colours.h"
#include "tests/support/memory_files.h"
#include "theme/preset.h"
#include "theme/preset_file.h"
#include "theme/preset_generator.h"

namespace varnel {
namespace {

const test::FixedSystemColours kSystem;
const std::wstring kFolder = L"C:\\Varnel\\themes\\Custom";
const std::wstring kPath = kFolder + L"\\Mine.dcp";

// A theme with no default in it.
ThemeRecord OtherTheme() {
  ThemeRecord theme;
  theme.bytTHEMEOPACITY = 200;
  theme.lngTHEMECONTRAST = 12;
  theme.lngTHEMECOLOR = 77;
  theme.strTHEMEPANELFONTNAME = L"Verdana";
  theme.lngTHEMEPANELFONTCOLOR = 5;
  theme.strTHEMEBARFONTNAME = L"Georgia";
  theme.lngTHEMEBARFONTANGLE = 90;
  theme.lngTHEMEBARFONTCOLOR = 6;
  return theme;
}

constexpr std::string_view kOtherPreset =
    "[main]\r\n> Main-Color=77\r\n> Main-Opacity=200\r\n> Main-Contrast=12\r\n"
    "[Text]\r\n> Bar-Font=Georgia\r\n> Bar-Color=6\r\n> Bar-Angle=90\r\n"
    "> Panel-Font=Verdana\r\n> Panel-Color=5\r\n[preset]\r\n> caption=Mine\r\n";

ThemeRecord Loaded(test::MemoryFiles& files, ThemeRecord theme = OtherTheme()) {
  LoadPreset(files, kFolder, L"Mine", theme);
  return theme;
}

// Main colour, opacity, contrast, bar text and panel text, worked out by hand from the palette.
TEST(Presets, StylesChangeTheBaseColours) {
  const test::Cases<const wchar_t*, const wchar_t*, Colour, int, int, Colour, Colour> cases = {
      {L"Bright", L"Forest", 4293120, 240, 90, kWhite, kWhite},
      {L"Dark", L"Gray", 0x616161, 240, 30, 3092271, 3092271},
      {L"Flat", L"White", kWhite, 255, 255, 3092271, 3092271},
      {L"Frosted", L"Black", 0x696969, 190, 0, kWhite, kWhite},
      {L"Glass", L"Gray", 0xA5A5A5, 110, 0, kWhite, kWhite},
      {L"Light", L"Black", 0x696969, 230, 30, 3092271, kWhite},
      {L"Light", L"White", kWhite, 230, 255, 3092271, 3092271},
      {L"Neon", L"Black", kBlack, 220, 0, 986895, 986895},
      {L"Neon", L"Red", 328977, 220, 0, 9605100, 9605100},
      {L"Pale", L"Yellow", 5951226, 240, 255, 499157, 499157},
      {L"Slate", L"Sky", 13417644, 220, 70, kWhite, kWhite},
      {L"Soft", L"Black", 0x232323, 230, 40, kWhite, kWhite},
  };
  test::MemoryFiles files;
  EnsureThemeFolders(files, L"C:\\", kSystem);
  for (const auto& [style, name, main, opacity, contrast, bar, panel] : cases) {
    ThemeRecord theme = OtherTheme();
    LoadPreset(files, StyleFolderPath(L"C:\\", style), name, theme);
    const auto label = std::wstring(style) + L" " + name;
    EXPECT_EQ(theme.lngTHEMECOLOR, main) << label;
    EXPECT_EQ(theme.bytTHEMEOPACITY, opacity) << label;
    EXPECT_EQ(theme.lngTHEMECONTRAST, contrast) << label;
    EXPECT_EQ(theme.lngTHEMEBARFONTCOLOR, bar) << label;
    EXPECT_EQ(theme.lngTHEMEPANELFONTCOLOR, panel) << label;
    EXPECT_EQ(theme.lngTHEMEBARFONTANGLE, 188) << label;
    EXPECT_EQ(theme.strTHEMEPANELFONTNAME, L"Tahoma") << label;
  }
}

TEST(Presets, BrightOnesHaveTheBaseColours) {
  const test::Cases<const wchar_t*, Colour> cases = {
      {L"Black", 0},       {L"Sky", 16367236},    {L"Blue", 16221762}, {L"Cherry", 6689485},
      {L"Cyan", 11456089}, {L"Gray", 12566463},   {L"Green", 1619546}, {L"Orange", 2461404},
      {L"Pink", 14310615}, {L"Purple", 15093141}, {L"Red", 4538846},   {L"White", kWhite},
      {L"Yellow", 571127}};
  test::MemoryFiles files;
  EnsureThemeFolders(files, L"C:\\", kSystem);
  for (const auto& [name, main] : cases) {
    ThemeRecord theme;
    LoadPreset(files, StyleFolderPath(L"C:\\", L"Bright"), name, theme);
    EXPECT_EQ(theme.lngTHEMECOLOR, main) << name;
  }
}

// Whichever operation fails, once or for ever: the next start completes what is missing, and only
// that.
TEST(Presets, AStartThatWasCutShortIsCompletedByTheNext) {
  const std::wstring soft = StyleFolderPath(L"C:\\Varnel", L"Soft");
  for (const bool for_ever : {false, true}) {
    for (int operation = 0; operation < 170; operation += operation < 40 ? 1 : 23) {
      test::MemoryFiles disk;
      test::FailingFiles files(disk);
      files.FailAfter(operation, FileResult::kFull, for_ever);
      EXPECT_FALSE(EnsureThemeFolders(files, L"C:\\Varnel", kSystem)) << operation;
      files.Heal();
      const bool soft_is_whole =
          disk.FileNames(soft, L".dcp").size() == 14 && !disk.FileExists(soft + L".unfinished");
      if (soft_is_whole) disk.Remove(PresetPath(soft, L"Blue"));
      EXPECT_TRUE(EnsureThemeFolders(files, L"C:\\Varnel", kSystem)) << operation;
      EXPECT_EQ(disk.files.size(), soft_is_whole ? 139u : 140u) << operation;
    }
  }
}

TEST(Presets, OnlyMissingFoldersAreFilled) {
  test::MemoryFiles files;
  EnsureThemeFolders(files, L"C:\\Varnel", kSystem);
  EXPECT_EQ(files.folders.size(), 13u);  // the program's, "themes" and the eleven styles
  EXPECT_EQ(files.files.size(), 140u);
  EXPECT_TRUE(files.FolderExists(kFolder));
  EXPECT_TRUE(files.FileNames(kFolder, L".dcp").empty());

  const std::wstring neon = StyleFolderPath(L"C:\\Varnel\\", L"Neon");
  const std::wstring soft = StyleFolderPath(L"C:\\Varnel\\", L"Soft");
  EXPECT_TRUE(DeleteAllPresets(files, neon));
  EXPECT_TRUE(DeleteAllPresets(files, soft));
  files.folders.erase(neon);
  EnsureThemeFolders(files, L"C:\\Varnel\\", kSystem);
  EXPECT_EQ(files.FileNames(neon, L".dcp").size(), 14u);
  EXPECT_TRUE(files.FileNames(soft, L".dcp").empty());
  EXPECT_EQ(files.files.size(), 126u);
}

TEST(Presets, AFullDiskLeavesNothingHalfDone) {
  test::MemoryFiles files;
  files.fail_writes = true;
  EnsureThemeFolders(files, L"C:\\", kSystem);
  EXPECT_TRUE(files.files.empty());
  EXPECT_EQ(SavePreset(files, kFolder, L"Mine", {}), PresetSaved::kFailed);
  EXPECT_EQ(Loaded(files), OtherTheme());
}

TEST(Presets, ReadingAPartialOneCompletesItInOneWrite) {
  test::MemoryFiles files(kFolder);
  files.files[kPath] = "[main]\r\n> Main-Color=255\r\n";
  ThemeRecord expected = OtherTheme();
  expected.lngTHEMECOLOR = 255;
  EXPECT_EQ(Loaded(files), expected);
  EXPECT_EQ(files.writes, 1);
  std::string completed(kOtherPreset);
  completed.replace(completed.find("77"), 2, "255");
  EXPECT_EQ(files.files[kPath], completed);
  EXPECT_EQ(Loaded(files, {}), expected);
  EXPECT_EQ(files.writes, 1);
}

TEST(Presets, AnEmptyFontIsReplaced) {
  test::MemoryFiles files(kFolder);
  ThemeRecord theme;
  theme.strTHEMEBARFONTNAME.clear();
  EXPECT_EQ(Loaded(files, theme), ThemeRecord());
  EXPECT_NE(files.files[kPath].find("> Bar-Font=Tahoma"), std::string::npos);
}

TEST(Presets, WhatIsNoPresetStaysAsItIs) {
  for (const std::string& bytes :
       {"[main]\r\n> Main-Color=1\r\n" + std::string(PresetFile::kLargestFile, '\n'),
        std::string("MZ\0\0[main]\n> Main-Color=1", 25)}) {
    test::MemoryFiles files(kFolder);
    files.files[kPath] = bytes;
    EXPECT_EQ(Loaded(files), OtherTheme());
    EXPECT_EQ(files.files[kPath], bytes);
  }
  // A file that only its completion would make too large is read, but stays.
  test::MemoryFiles files(kFolder);
  const std::string start = "[main]\r\n> Main-Color=1\r\n";
  const std::string bytes = start + std::string(PresetFile::kLargestFile - start.size(), '\n');
  files.files[kPath] = bytes;
  EXPECT_EQ(Loaded(files).lngTHEMECOLOR, 1);
  EXPECT_EQ(files.files[kPath], bytes);
}

TEST(Presets, SavingReplacesTheOneOfThatName) {
  test::MemoryFiles files(kFolder);
  files.files[kPath] = "[main]\r\n> Main-Color=1\r\n[junk]\r\n";
  EXPECT_EQ(SavePreset(files, kFolder, L" Mine ", OtherTheme()), PresetSaved::kSaved);
  EXPECT_EQ(files.files[kPath], kOtherPreset);
  EXPECT_EQ(Loaded(files, {}), OtherTheme());

  ThemeRecord foreign = OtherTheme();
  foreign.strTHEMEBARFONTNAME = L"\u30e1\u30a4\u30ea\u30aa";
  EXPECT_EQ(SavePreset(files, kFolder, L"\u00dcber", foreign), PresetSaved::kSaved);
  ThemeRecord read;
  LoadPreset(files, kFolder, L"\u00dcber", read);
  EXPECT_EQ(read, foreign);
  EXPECT_EQ(files.writes, 2);
}

TEST(Presets, NamesStayInsideTheFolder) {
  test::MemoryFiles files(kFolder);
  files.files[L"C:\\Varnel\\themes\\Soft\\Blue.dcp"] = "x";
  EXPECT_EQ(SavePreset(files, kFolder, L"", {}), PresetSaved::kNoName);
  EXPECT_EQ(SavePreset(files, kFolder, L"   ", {}), PresetSaved::kNoName);
  for (const wchar_t* name : {L"..\\Soft\\Blue", L"..", L"NUL", L"a:b", L"C:\\x"}) {
    EXPECT_EQ(SavePreset(files, kFolder, name, {}), PresetSaved::kBadName) << name;
    EXPECT_FALSE(DeletePreset(files, kFolder, name)) << name;
  }
  EXPECT_EQ(files.files.size(), 1u);
  EXPECT_EQ(files.writes, 0);
}

TEST(Presets, DeletingTakesOneOrAll) {
  test::MemoryFiles files(kFolder);
  for (const wchar_t* name : {L"One", L"Two", L"Three"}) SavePreset(files, kFolder, name, {});
  files.files[kFolder + L"\\note.txt"] = "keep";
  EXPECT_TRUE(DeletePreset(files, kFolder, L"Two"));
  EXPECT_EQ(files.files.size(), 3u);
  EXPECT_TRUE(DeleteAllPresets(files, kFolder));
  EXPECT_EQ(files.files.size(), 1u);
  SavePreset(files, kFolder, L"Four", {});
  files.fail_writes = true;
  EXPECT_FALSE(DeletePreset(files, kFolder, L"Four"));
  EXPECT_FALSE(DeleteAllPresets(files, kFolder));
}

TEST(Presets, TheListShowsLightenedSwatches) {
  test::MemoryFiles files(kFolder);
  const auto add = [&](const wchar_t* name, Colour main, std::int32_t contrast) {
    ThemeRecord theme = OtherTheme();
    theme.lngTHEMECOLOR = main;
    theme.lngTHEMECONTRAST = contrast;
    SavePreset(files, kFolder, name, theme);
  };
  add(L"a", 0x204060, 50);
  add(L"b", kBlack, 255);                 // weight 50 leaves 205 of white
  add(L"c", kBlack, -2147483647 - 1);     // far beyond: unlightened
  add(L"d", test::SystemColour(8), 305);  // weight 0
  files.files[kFolder + L"\\e.DCP"] = "";
  const auto list = ListPresets(files, kFolder, OtherTheme(), kSystem);
  ASSERT_EQ(list.size(), 5u);
  EXPECT_EQ(list[0].name, L"a");
  EXPECT_EQ(list[0].main, 0x204060);
  EXPECT_EQ(list[0].panel_text, 5);
  EXPECT_EQ(list[0].bar_text, 6);
  EXPECT_EQ(list[1].main, 0xCDCDCD);
  EXPECT_EQ(list[2].main, kBlack);
  EXPECT_EQ(list[3].main, kWhite);
  EXPECT_EQ(list[4].name, L"e");
  EXPECT_EQ(list[4].main, 77);  // completed with the theme being edited
}

TEST(PresetFile, OneFileAtATime) {
  test::MemoryFiles files(kFolder);
  PresetFile preset(files);
  preset.SelectPresetFile(kPath);
  EXPECT_TRUE(preset.Save());  // nothing to write, nothing written
  EXPECT_TRUE(files.files.empty());
  EXPECT_EQ(preset.PresetKeyRead(L"main", L"Main-Color", L" 12 "), L"12");
  EXPECT_TRUE(preset.Save());
  EXPECT_EQ(preset.PresetKeyRead(L"MAIN", L"main-color", L"13"), L"12");
  preset.PresetKeyWrite(L"main", L"Main-Color", L"lost");
  preset.SelectPresetFile(kFolder + L"\\Other.dcp");
  EXPECT_EQ(preset.PresetKeyRead(L"main", L"Main-Color", L""), L"");
  preset.SelectPresetFile(kPath);
  EXPECT_EQ(preset.PresetKeyRead(L"main", L"Main-Color", L""), L"12");
  files.fail_writes = true;
  preset.PresetKeyWrite(L"main", L"Main-Color", L"14");
  EXPECT_FALSE(preset.Save());
  files.fail_writes = false;
  EXPECT_TRUE(preset.Save());
  EXPECT_EQ(files.files.at(kPath), "[main]\r\n> Main-Color=14\r\n");
}

}  // namespace
}  // namespace varnel
