// Starting, remembering and ending: what the user finds at the first start and at every later one.
#include <gtest/gtest.h>

#include "resources/control_ids.h"
#include "tests/rig/scene.h"

namespace varnel {
namespace {

using namespace rig;

constexpr wchar_t kOptions[] = L"frmVRNpr\\Details";

class Start : public Scene {
 protected:
  HWND StartWithManager() {
    EXPECT_TRUE(program().Start());
    HWND manager = WaitForForm(program(), L"frmVRNwg");
    EXPECT_TRUE(manager);
    return manager;
  }
  std::wstring Flag(const wchar_t* name) {
    return root().settings().Text(kOptions, name).value_or(L"");
  }
  void Exit() { EXPECT_EQ(LeaveByMenu(program()), 0u); }
};

TEST_F(Start, FirstRunMakesFoldersAndShowsTheManagerAlone) {
  StartWithManager();
  for (const wchar_t* folder : {L"\\wboard", L"\\tavrin", L"\\calendar"}) {
    EXPECT_TRUE(FolderExists(root().folder() + folder)) << folder;
  }
  EXPECT_EQ(FoldersIn(root().folder() + L"\\themes").size(), 11u);
  EXPECT_EQ(FilesBelow(root().folder() + L"\\themes").size(), 140u);
  EXPECT_TRUE(FilesBelow(root().folder() + L"\\themes\\Custom").empty());
  EXPECT_FALSE(FindForm(program(), L"frmCLKwg"));
  EXPECT_TRUE(FindForm(program(), L"frmSTRmn"));
  EXPECT_TRUE(FindForm(program(), L"frmSTRtr"));
  Exit();
  // The settings that a first run leaves are places only: defaults are not written.
  EXPECT_EQ(root().settings().Text(L"frmVRNwg\\Window", L"Window State"), L"0");
  EXPECT_FALSE(root().settings().Text(kOptions, L"Program Launch"));
}

TEST_F(Start, TileOpensAndClosesTheClockAndTheNextStartRemembers) {
  HWND manager = StartWithManager();
  HWND tile = Control(manager, lblNUMBER);
  EXPECT_EQ(Text(tile), L"Clock");
  ASSERT_TRUE(ClickOn(tile));
  HWND clock = WaitForForm(program(), L"frmCLKwg");
  ASSERT_TRUE(clock);
  EXPECT_SOON_EQ(Text(tile), L"Clock (open)");
  EXPECT_EQ(Flag(L"Start-Load-Clock"), L"True");
  Exit();
  EXPECT_EQ(Flag(L"Start-Load-Clock"), L"True");

  manager = StartWithManager();
  ASSERT_TRUE(WaitForForm(program(), L"frmCLKwg"));
  EXPECT_EQ(Text(Control(manager, lblNUMBER)), L"Clock (open)");
  ASSERT_TRUE(ClickOn(Control(manager, lblNUMBER)));
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKwg"));
  EXPECT_EQ(Flag(L"Start-Load-Clock"), L"False");
  Exit();

  StartWithManager();
  EXPECT_FALSE(FindForm(program(), L"frmCLKwg"));
}

TEST_F(Start, CloseButtonOfAWidgetEqualsItsTile) {
  HWND manager = StartWithManager();
  ASSERT_TRUE(ClickOn(Control(manager, lblNUMBER)));
  HWND clock = WaitForForm(program(), L"frmCLKwg");
  ASSERT_TRUE(ClickOn(Control(clock, lablTBARTOP + 2)));
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKwg"));
  EXPECT_SOON_EQ(Text(Control(manager, lblNUMBER)), L"Clock");
  EXPECT_EQ(Flag(L"Start-Load-Clock"), L"False");
  // The manager's own close button ends the program.
  ASSERT_TRUE(ClickOn(Control(manager, lablTBARTOP + 2)));
  EXPECT_EQ(program().WaitForExit(), 0u);
}

TEST_F(Start, HiddenStartShowsOnlyTheTrayIcon) {
  root().settings().SetText(kOptions, L"Program Minimize on Start", L"1");
  ASSERT_TRUE(program().Start());
  ASSERT_SOON(FindForm(program(), L"frmSTRtr") != nullptr);
  HWND manager = FindForm(program(), L"frmVRNwg");
  ASSERT_TRUE(manager);
  EXPECT_FALSE(IsShown(manager));
  // A double click on the tray icon, as the shell reports it.
  ::PostMessageW(FindForm(program(), L"frmSTRtr"), WM_MOUSEMOVE, 1, WM_LBUTTONDBLCLK);
  EXPECT_TRUE(WaitForForm(program(), L"frmVRNwg"));
  const Rect place = RectOf(manager);
  ASSERT_TRUE(ClickOn(Control(manager, lablTBARTOP + 1)));
  EXPECT_SOON(::IsIconic(manager));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCMANAGER"));
  EXPECT_SOON_EQ(RectOf(manager), place);
}

TEST_F(Start, HideAllAndShowAllLastOverARestart) {
  root().settings().SetText(kOptions, L"Start-Load-Clock", L"True");
  root().settings().SetText(kOptions, L"Start-Load-Stopwatch", L"True");
  StartWithManager();
  ASSERT_TRUE(WaitForForm(program(), L"frmCLKwg"));
  ASSERT_TRUE(WaitForForm(program(), L"frmSTWwg"));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCHIDEALL"));
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKwg"));
  EXPECT_TRUE(WaitForNoForm(program(), L"frmSTWwg"));
  EXPECT_SOON(Flag(L"Start-Show or Hide") == L"Hidden");
  Exit();

  StartWithManager();
  HWND clock = FindForm(program(), L"frmCLKwg");
  ASSERT_TRUE(clock) << "hidden widgets are loaded all the same";
  EXPECT_FALSE(IsShown(clock));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCSHOWALL"));
  EXPECT_TRUE(WaitForForm(program(), L"frmCLKwg"));
  EXPECT_SOON(Flag(L"Start-Show or Hide") == L"Show");
  // What another program has minimised is shown whole, too.
  const Rect time = RectOf(Control(clock, lblPANECLOCK));
  ::ShowWindow(clock, SW_MINIMIZE);
  EXPECT_SOON(::IsIconic(clock));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCSHOWALL"));
  EXPECT_SOON(RectOf(Control(clock, lblPANECLOCK)) == time);
}

TEST_F(Start, OptionsDialogStoresAndApplies) {
  root().settings().SetText(kOptions, L"Start-Load-Clock", L"True");
  StartWithManager();
  HWND clock = WaitForForm(program(), L"frmCLKwg");
  const auto choose = [&](std::initializer_list<int> buttons) {
    EXPECT_TRUE(ChooseShared(program(), L"mnuDCGENSET"));
    HWND dialog = WaitForForm(program(), L"frmVRNpr");
    ASSERT_TRUE(dialog);
    for (const int button : buttons) ASSERT_TRUE(ClickOn(Control(dialog, button)));
    EXPECT_TRUE(WaitForNoForm(program(), L"frmVRNpr"));
  };
  const Registry at_logon(HKEY_LOCAL_MACHINE, L"Software\\Microsoft\\Windows\\CurrentVersion");
  choose({chkONTOP, chkSTARTUP, IDCANCEL});
  EXPECT_EQ(Flag(L"On-Top"), L"");

  choose({chkONTOP, chkMINSTART, IDOK});
  EXPECT_EQ(Flag(L"Program Launch"), L"1") << "it is chosen from the start";
  EXPECT_EQ(Flag(L"Program Minimize on Start"), L"1");
  EXPECT_EQ(Flag(L"On-Top"), L"1");
  EXPECT_SOON(IsTopmost(clock));
  const std::wstring name = L"Widget Varnel (" + root().title() + L")";
  EXPECT_TRUE(at_logon.Text(L"Run", name.c_str())
                  .value_or(L"")
                  .ends_with(L"\\WidgetVarnel.exe\" " + root().Arguments()));

  choose({chkSTARTUP, IDOK});
  EXPECT_EQ(at_logon.Text(L"Run", name.c_str()), L"");
}

TEST_F(Start, SecondStartShowsTheFirstOnesManagerAndEnds) {
  StartWithManager();
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCMANAGERHIDE"));
  ASSERT_TRUE(WaitForNoForm(program(), L"frmVRNwg"));
  Program second(root());
  ASSERT_TRUE(second.Start());
  EXPECT_EQ(second.WaitForExit(), 0u);
  EXPECT_TRUE(WaitForForm(program(), L"frmVRNwg"));
}

TEST_F(Start, SecondStartShowsAWidgetAndEndsTheFirst) {
  ASSERT_TRUE(program().Start(L"/tray /show stopwatch"));
  ASSERT_TRUE(WaitForForm(program(), L"frmSTWwg"));
  Program second(root());
  for (int again = 0; again < 2; ++again) {
    ASSERT_TRUE(second.Start(L"/show Countdown"));
    EXPECT_EQ(second.WaitForExit(), 0u);
    EXPECT_TRUE(WaitForForm(program(), L"frmCDNwg"));
  }
  ASSERT_TRUE(second.Start(L"/quit"));
  EXPECT_EQ(second.WaitForExit(), 0u);
  EXPECT_EQ(program().exit_code(), 0u);
  // There is none any more.
  ASSERT_TRUE(second.Start(L"/quit"));
  EXPECT_EQ(second.WaitForExit(), 0u);
}

TEST_F(Start, SessionEndSavesWhatIsOpenAndWhereItIs) {
  HWND manager = StartWithManager();
  ASSERT_TRUE(ClickOn(Control(manager, lblNUMBER)));
  HWND clock = WaitForForm(program(), L"frmCLKwg");
  const Rect before = RectOf(clock);
  const Point bar{before.left + 80, before.top + 12};
  Drag(bar, {bar.x + 60, bar.y + 90});
  const Rect moved = WaitUntilStill([&] { return RectOf(clock); });
  EXPECT_NE(moved, before);
  ASSERT_TRUE(EndSession(program()));
  program().Kill();
  EXPECT_EQ(Flag(L"Start-Load-Clock"), L"True");
  StartWithManager();
  EXPECT_EQ(RectOf(WaitForForm(program(), L"frmCLKwg")), moved);
}

TEST_F(Start, ShellThatStartsAnewGetsTheTrayIconAgain) {
  StartWithManager();
  // The broadcast that a new shell sends; the form must take it and stay alive.
  ::PostMessageW(FindForm(program(), L"frmSTRtr"), ::RegisterWindowMessageW(L"TaskbarCreated"), 0,
                 0);
  ::PostMessageW(FindForm(program(), L"frmSTRtr"), WM_MOUSEMOVE, 1, WM_RBUTTONUP);
  EXPECT_TRUE(WaitForMenus(program(), 1));
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitForMenus(program(), 0));
}

TEST_F(Start, KilledWhileSettingsAreWrittenItComesBackAsItWas) {
  for (int round = 0; round < 6; ++round) {
    HWND manager = StartWithManager();
    const Rect place = RectOf(manager);
    // Each toggle writes a flag and a place; the kill comes somewhere among them.
    for (int i = 0; i <= round; ++i) Choose(manager, L"mnuDCWIDGETS", 0);
    program().Kill();
    const std::wstring flag = Flag(L"Start-Load-Clock");
    EXPECT_TRUE(flag.empty() || flag == L"True" || flag == L"False") << flag;
    manager = StartWithManager();
    EXPECT_EQ(RectOf(manager), place);
    EXPECT_EQ(FindForm(program(), L"frmCLKwg") != nullptr, flag == L"True");
    program().Kill();
  }
}

TEST_F(Start, HostileSettingsKeepEveryWindowReachable) {
  const Registry& settings = root().settings();
  const std::wstring huge(5000, L'9');
  const std::vector<std::wstring> texts = {L"-99999", L"2147483648", L"NaN",       L"letters",
                                           L"1e9",    huge,          L"..\\..\\x", L"\xD800"};
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (const wchar_t* name : {L"Left", L"Top", L"Width", L"Height", L"Window State"}) {
      settings.SetText(L"frmVRNwg\\Window", name, texts[i]);
      settings.SetText(L"frmCLKwg\\Window", name, texts[(i + 3) % texts.size()]);
    }
    for (const wchar_t* name :
         {L"Theme-Main-Opacity", L"Theme-Main-Contrast", L"Theme-Main-Color", L"Theme-Panel-Font",
          L"Theme-Panel-Color", L"Theme-Bar-Font", L"Theme-Bar-Angle", L"Theme-Bar-Color"}) {
      settings.SetText(L"frmTHEME\\Details", std::wstring(L"frmCLKwg") + name, texts[i]);
    }
    settings.SetText(L"frmCLKpr\\Details", L"date-default", L"0");
    settings.SetText(L"frmCLKpr\\Details", L"date-default-custom", texts[i]);
    settings.SetText(L"frmNOTpr\\Details", L"Notes Folder Location", texts[i]);
    settings.SetText(kOptions, L"Start-Load-Clock", L"True");
    settings.SetRaw(kOptions, L"On-Top", {REG_DWORD, std::string("\1\0\0\0", 4)});
    settings.SetRaw(kOptions, L"Program Launch", {REG_SZ, "\x41"});  // half a unit
    HWND manager = StartWithManager();
    HWND clock = WaitForForm(program(), L"frmCLKwg");
    ASSERT_TRUE(clock) << i;
    for (HWND form : {manager, clock}) {
      const Rect place = RectOf(form);
      EXPECT_GE(place.left, 0) << i;
      EXPECT_GE(place.top, 0) << i;
      EXPECT_LE(place.right, ::GetSystemMetrics(SM_CXSCREEN)) << i;
      EXPECT_LE(place.bottom, ::GetSystemMetrics(SM_CYSCREEN)) << i;
      EXPECT_GE(AlphaOf(form).value_or(0), 20) << i;
    }
    Exit();
  }
}

}  // namespace
}  // namespace varnel
