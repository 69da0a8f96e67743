// The theme dialog on a live widget, and the presets.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <functional>

#include "core/shared_menu.h"
#include "resources/control_ids.h"
#include "tests/rig/scene.h"
#include "tests/support/cases.h"
#include "theme/chrome_colours.h"
#include "theme/system_colours_win.h"

namespace varnel {
namespace {

using namespace rig;

const wchar_t* const kSection = L"frmTHEME\\Details";

class ThemeDialogScene : public Scene {
 protected:
  void SetUp() override {
    Scene::SetUp();
    const Registry& settings = root().settings();
    settings.SetText(L"frmVRNpr\\Details", L"Start-Load-Clock", L"True");
    settings.SetText(L"frmVRNpr\\Details", L"Start-Load-Stopwatch", L"True");
    Start();
  }
  void Start() {
    ASSERT_TRUE(program().Start());
    clock_ = WaitForForm(program(), L"frmCLKwg");
    stopwatch_ = WaitForForm(program(), L"frmSTWwg");
    ASSERT_TRUE(clock_ && stopwatch_);
  }
  void OpenFrom(HWND form) {
    Choose(form, L"mnuDCSETTINGS");
    dialog_ = WaitForForm(program(), L"frmTHEME");
    ASSERT_TRUE(dialog_);
  }
  HWND Part(int id) { return Control(dialog_, id); }
  void ShowTab(int tab) {
    Send(Part(tabMAIN), TCM_SETCURFOCUS, tab);
    EXPECT_SOON(IsShown(Part(tab == 1 ? cboBAR : cboPANEL)));
  }
  void Slide(int slider, int place) {
    Send(Part(slider), TBM_SETPOS, TRUE, place);
    Send(dialog_, WM_HSCROLL, TB_THUMBTRACK, reinterpret_cast<LPARAM>(Part(slider)));
  }
  void PickColour(int button, COLORREF colour) {
    ASSERT_TRUE(ClickOn(Part(button)));
    HWND picker = WaitForDialog(program());
    ASSERT_TRUE(picker);
    constexpr int kRedBox = 706;
    for (int i = 0; i < 3; ++i) {
      SetText(Control(picker, kRedBox + i), std::to_wstring(colour >> 8 * i & 0xFF));
    }
    EXPECT_TRUE(CloseDialog(picker, IDOK));
  }
  bool CloseBy(int button) {
    return ClickOn(Part(button)) && WaitForNoForm(program(), L"frmTHEME");
  }
  std::vector<std::wstring> StoredNames() { return root().settings().ValueNames(kSection); }
  std::optional<std::wstring> Stored(const std::wstring& name) {
    return root().settings().Text(kSection, name);
  }
  std::wstring PresetPath(const std::wstring& name) {
    return root().folder() + L"\\themes\\Soft\\" + name + L".dcp";
  }

  HWND clock_ = nullptr;
  HWND stopwatch_ = nullptr;
  HWND dialog_ = nullptr;
};

Colour GroundOf(Colour colour, int contrast) {
  ThemeRecord theme;
  theme.lngTHEMECOLOR = colour;
  theme.lngTHEMECONTRAST = contrast;
  return DeriveChrome(theme, UserSystemColours()).ground;
}

TEST_F(ThemeDialogScene, ChangesShowAtOnceAndGoWhenClosed) {
  const Picture before = StillPictureOf(stopwatch_);
  OpenFrom(stopwatch_);
  EXPECT_EQ(Text(dialog_), L"Stopwatch Theme Settings");
  EXPECT_EQ(SliderPosition(Part(hsbOPACITY)), 235);
  EXPECT_EQ(Text(Part(lblREADPANEL)), L"2.4 : 1");
  EXPECT_TRUE(IsShown(Part(icoREADPANEL)));

  Slide(hsbOPACITY, 128);
  EXPECT_EQ(AlphaOf(stopwatch_), 128);
  EXPECT_EQ(AlphaOf(clock_), 235);
  EXPECT_EQ(Text(Part(lblVALUE)), L"128 (50%)");
  Slide(hsbCONTRAST, 0);
  PickColour(btnCOLORMAIN, RGB(120, 0, 40));
  const auto ground = static_cast<COLORREF>(GroundOf(RGB(120, 0, 40), 0));
  EXPECT_SOON_EQ(PictureOf(stopwatch_).MainColour(), ground);

  HWND elapsed = Control(stopwatch_, lblELAPSED);
  const Picture tahoma = StillPictureOf(elapsed);
  ShowTab(2);
  ASSERT_TRUE(Select(Part(cboPANEL), L"Symbol"));
  EXPECT_SOON(PictureOf(elapsed) != tahoma);
  const Picture white = StillPictureOf(elapsed);
  PickColour(btnCOLORPANEL, RGB(0, 0, 0));
  EXPECT_SOON(PictureOf(elapsed) != white);
  EXPECT_SOON(!IsShown(Part(icoREADPANEL)));
  Chord({VK_CONTROL, VK_SHIFT, VK_TAB});
  EXPECT_SOON(IsShown(Part(cboBAR)) && !IsShown(Part(cboPANEL)));
  ASSERT_TRUE(Select(Part(cboBAR), L"Symbol"));
  Slide(hsbBARANGLE, 90);

  EXPECT_EQ(StoredNames(), std::vector<std::wstring>()) << "nothing was applied";
  ASSERT_TRUE(CloseBy(btnCLOSEDLG));
  MoveMouse({1200, 700});
  EXPECT_EQ(AlphaOf(stopwatch_), 235);
  EXPECT_SOON(PictureOf(stopwatch_) == before);
  EXPECT_EQ(StoredNames(), std::vector<std::wstring>({L"Theme-folder"}));
}

TEST_F(ThemeDialogScene, ApplyStoresAPresetForItsWidgetOnly) {
  OpenFrom(stopwatch_);
  ASSERT_TRUE(Select(Part(lstFOLDERS), L"Neon"));
  // The first row, below the column titles.
  const Rect list = RectOf(Part(lvwTHEMES));
  Click({list.left + 30, list.top + 34});
  EXPECT_SOON_EQ(Text(Part(txtPRESETNEW)), L"Black");
  PressKey(VK_DOWN);
  EXPECT_SOON_EQ(Text(Part(txtPRESETNEW)), L"Blue");
  EXPECT_SOON_EQ(AlphaOf(stopwatch_), 220);
  ASSERT_TRUE(ClickOn(Part(btnAPPLY)));
  ASSERT_SOON(IsShown(Part(cmdOKfrmTHEME)));
  EXPECT_EQ(Stored(L"frmSTWwgTheme-Main-Opacity"), L"220");
  EXPECT_EQ(Stored(L"frmSTWwgTheme-Main-Contrast"), L"0");
  EXPECT_EQ(Stored(L"frmSTWwgTheme-Bar-Angle"), L"188");
  EXPECT_EQ(Stored(L"frmSTWwgTheme-Panel-Font"), L"Tahoma");
  EXPECT_EQ(StoredNames().size(), 8u);
  for (const std::wstring& name : StoredNames()) EXPECT_EQ(name.substr(0, 14), L"frmSTWwgTheme-");

  ASSERT_TRUE(CloseBy(cmdOKfrmTHEME));
  ASSERT_EQ(LeaveByMenu(program()), 0u);
  Start();
  EXPECT_EQ(AlphaOf(stopwatch_), 220);
  EXPECT_EQ(AlphaOf(clock_), 235);
  OpenFrom(clock_);
  EXPECT_EQ(Text(dialog_), L"Alarm Clock Theme Settings");
  EXPECT_EQ(Selected(Part(lstFOLDERS)), 7) << "Neon is shown again";
  EXPECT_EQ(Items(Part(flbLIST)).size(), 14u);
}

TEST_F(ThemeDialogScene, PresetsAreMadeCompletedAndDeleted) {
  ASSERT_TRUE(WriteBytes(PresetPath(L"Half"), "[main]\r\n> Main-Color=255\r\n"));
  OpenFrom(clock_);
  EXPECT_EQ(Items(Part(flbLIST)).size(), 15u);
  const std::string half = FileBytes(PresetPath(L"Half")).value_or("");
  EXPECT_NE(half.find("> caption=Half"), std::string::npos) << half;
  EXPECT_NE(half.find("> Main-Opacity=235"), std::string::npos) << half;

  ASSERT_TRUE(ClickOn(Part(btnNEW)));
  HWND message = WaitForDialog(program());
  EXPECT_EQ(Text(message), L"You Have not Entered a File Name");
  EXPECT_EQ(DialogText(message), L"Please make sure you type it in correctly.");
  ASSERT_TRUE(CloseDialog(message, IDOK));
  Slide(hsbOPACITY, 77);
  ASSERT_TRUE(ClickOn(Part(txtPRESETNEW)));
  Type(L"My blue\n");
  EXPECT_SOON(FileExists(PresetPath(L"My blue")));
  EXPECT_SOON_EQ(Items(Part(flbLIST)).size(), 16u);
  Slide(hsbOPACITY, 200);
  SetText(Part(txtPRESETNEW), L"MY BLUE.");
  ASSERT_TRUE(ClickOn(Part(btnNEW)));
  HWND replace = WaitForDialog(program());
  EXPECT_EQ(DialogText(replace), L"Replace the preset \"My blue\" of the style \"Soft\"?");
  // The dialog does not turn to another widget, or folder, while it asks.
  Choose(stopwatch_, L"mnuDCSETTINGS");
  EXPECT_SOON_EQ(Text(dialog_), L"Alarm Clock Theme Settings");
  ASSERT_TRUE(CloseDialog(replace, IDNO));
  // The button that was clicked is the one that Enter presses.
  PressKey(VK_RETURN);
  HWND again = WaitForDialog(program());
  ASSERT_TRUE(again && CloseDialog(again, IDNO));
  ASSERT_TRUE(Select(Part(flbLIST), L"My blue.dcp"));
  EXPECT_SOON_EQ(AlphaOf(clock_), 77);
  for (const int answer : {IDNO, IDYES}) {
    ASSERT_TRUE(ClickOn(Part(btnDELETE)));
    HWND question = WaitForDialog(program());
    EXPECT_EQ(DialogText(question), L"Delete the preset \"My blue\" of the style \"Soft\"?");
    ASSERT_TRUE(CloseDialog(question, answer));
    EXPECT_SOON_EQ(FileExists(PresetPath(L"My blue")), answer == IDNO);
  }
  EXPECT_SOON(!IsEnabled(Part(btnDELETE)));

  for (const int answer : {IDNO, IDYES}) {
    ASSERT_TRUE(ClickOn(Part(btnDELETEALL)));
    HWND question = WaitForDialog(program());
    EXPECT_EQ(DialogText(question), L"Delete all 15 presets of the style \"Soft\"?");
    ASSERT_TRUE(CloseDialog(question, answer));
    const std::size_t left = answer == IDNO ? 15 : 0;
    EXPECT_SOON_EQ(Items(Part(flbLIST)).size(), left);
  }
  const std::wstring folder = root().folder() + L"\\themes\\Soft";
  EXPECT_TRUE(FilesBelow(folder).empty());
  ASSERT_EQ(LeaveByMenu(program()), 0u);
  Start();
  EXPECT_TRUE(FolderExists(folder) && FilesBelow(folder).empty());
}

TEST_F(ThemeDialogScene, OutlivesItsWidgetAndTurnsToAnother) {
  OpenFrom(stopwatch_);
  Slide(hsbOPACITY, 50);
  Choose(clock_, L"mnuDCSETTINGS");
  EXPECT_SOON_EQ(Text(dialog_), L"Alarm Clock Theme Settings");
  EXPECT_SOON_EQ(AlphaOf(stopwatch_), 235);
  Slide(hsbOPACITY, 60);
  EXPECT_EQ(AlphaOf(clock_), 60);
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCWIDGETS", 0));
  ASSERT_TRUE(WaitForNoForm(program(), L"frmCLKwg"));
  Slide(hsbOPACITY, 70);
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCWIDGETS", 0));
  clock_ = WaitForForm(program(), L"frmCLKwg");
  EXPECT_EQ(AlphaOf(clock_), 235) << "nothing was applied";
  ASSERT_TRUE(ClickOn(Part(btnAPPLY)));
  EXPECT_SOON_EQ(AlphaOf(clock_), 70);
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitForNoForm(program(), L"frmTHEME"));
  EXPECT_EQ(AlphaOf(clock_), 70);
}

TEST_F(ThemeDialogScene, ATileTellsWhatItsWidgetShowsNow) {
  HWND tile = Control(FindForm(program(), L"frmVRNwg"), lblNUMBER + 4);
  HWND tip = nullptr;
  EXPECT_SOON((MoveMouse(CentreOf(tile)), tip = FindForm(program(), TOOLTIPS_CLASSW)) &&
              IsShown(tip));
  EXPECT_EQ(Text(tip), L"00:00.00 \x2013 Ready");
  Send(Control(stopwatch_, lblStartfrmSTWwg), BM_CLICK);
  EXPECT_SOON(Text(tip).ends_with(L" \x2013 Running"));
  // One that runs would ask before the program ends.
  Send(Control(stopwatch_, lblStartfrmSTWwg), BM_CLICK);
}

TEST_F(ThemeDialogScene, AGlyphTellsItsWordWhenTheMouseRests) {
  // A tile, which lights up, has its name on it, and its widget is closed.
  HWND tile = Control(FindForm(program(), L"frmVRNwg"), lblNUMBER + 1);
  const Picture normal = StillPictureOf(tile);
  MoveMouse(CentreOf(tile));
  EXPECT_SOON(PictureOf(tile) != normal);
  EXPECT_TRUE(FindForms(program(), TOOLTIPS_CLASSW).empty());
  MoveMouse(CentreOf(Control(stopwatch_, lablTBARTOP)));
  HWND tip = nullptr;
  EXPECT_TRUE(WaitUntil([&] {
    // The mouse of a user never stands quite still.
    MoveMouse(CentreOf(Control(stopwatch_, lablTBARTOP)));
    tip = FindForm(program(), TOOLTIPS_CLASSW);
    return tip && IsShown(tip);
  }));
  EXPECT_EQ(Text(tip), L"Menu");
  ASSERT_TRUE(ClickOn(Control(stopwatch_, lablTBARTOP)));
  ASSERT_TRUE(WaitForMenus(program(), 1));
  EXPECT_SOON(!IsShown(tip)) << "it would lie over the menu";
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitForMenus(program(), 0));
  // Nor one that waits for its moment when a quick hand clicks.
  MoveMouse({1200, 700});
  ASSERT_TRUE(ClickOn(Control(stopwatch_, lablTBARTOP)));
  ASSERT_TRUE(WaitForMenus(program(), 1));
  EXPECT_FALSE(
      WaitUntil([&] { return IsShown(tip); }, 3 * static_cast<int>(::GetDoubleClickTime())));
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitForMenus(program(), 0));
}

}  // namespace
}  // namespace varnel
