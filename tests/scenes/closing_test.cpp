// Closing and going out of sight: what is asked, what is kept, and what opens the next time.
#include <gtest/gtest.h>

#include <algorithm>

#include "resources/control_ids.h"
#include "tests/rig/scene.h"

namespace varnel {
namespace {

using namespace rig;

constexpr wchar_t kOptions[] = L"frmVRNpr\\Details";

class Closing : public Scene {
 protected:
  void SetUp() override {
    Scene::SetUp();
    for (const wchar_t* name : {L"Start-Load-Clock", L"Start-Load-Stopwatch"}) {
      root().settings().SetText(kOptions, name, L"True");
    }
  }
  void StartAll() {
    ASSERT_TRUE(program().Start());
    manager_ = WaitForForm(program(), L"frmVRNwg");
    clock_ = WaitForForm(program(), L"frmCLKwg");
    stopwatch_ = WaitForForm(program(), L"frmSTWwg");
    ASSERT_TRUE(manager_ && clock_ && stopwatch_);
  }
  std::wstring Flag(const wchar_t* name) {
    return root().settings().Text(kOptions, name).value_or(L"");
  }
  void ExpectBothOpenNextTime() {
    EXPECT_EQ(Flag(L"Start-Load-Clock"), L"True");
    EXPECT_EQ(Flag(L"Start-Load-Stopwatch"), L"True");
  }
  HWND ClockTile() { return Control(manager_, lblNUMBER); }

  HWND manager_ = nullptr;
  HWND clock_ = nullptr;
  HWND stopwatch_ = nullptr;
};

TEST_F(Closing, FromOutsideInAnyOrderTheOpenWidgetsComeBack) {
  for (int round = 0; round < 6; ++round) {
    StartAll();
    if (round % 2) {
      ASSERT_TRUE(ChooseShared(program(), L"mnuDCMANAGERHIDE"));
      ASSERT_TRUE(WaitForNoForm(program(), L"frmVRNwg"));
    }
    std::vector<HWND> windows = TopLevelWindows(program());
    const auto last = windows.end() - 1;
    // From the top, from the bottom, the manager last.
    if (round / 2 == 1) std::ranges::reverse(windows);
    if (round / 2 == 2) std::iter_swap(std::ranges::find(windows, manager_), last);
    for (HWND window : windows) ::PostMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(program().WaitForExit(), 0u) << round;
    ExpectBothOpenNextTime();
  }
  // Where only what can be seen is closed, the program goes on, and is left as ever.
  StartAll();
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCMANAGERHIDE"));
  for (HWND window : {clock_, stopwatch_}) ::PostMessageW(window, WM_CLOSE, 0, 0);
  EXPECT_SOON(!::IsWindow(clock_) && !::IsWindow(stopwatch_));
  EXPECT_EQ(LeaveByMenu(program()), 0u);
  ExpectBothOpenNextTime();
}

TEST_F(Closing, ByTheUserIsForGood) {
  StartAll();
  ASSERT_TRUE(Activate(clock_));
  Chord({VK_MENU, VK_F4});
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKwg"));
  EXPECT_SOON(Flag(L"Start-Load-Clock") == L"False");
  EXPECT_EQ(Flag(L"Start-Load-Stopwatch"), L"True");
}

TEST_F(Closing, ARunningStopwatchIsAskedForEveryTime) {
  StartAll();
  ASSERT_TRUE(ClickOn(Control(stopwatch_, lblStartfrmSTWwg)));
  EXPECT_SOON(Text(Control(stopwatch_, lblELAPSED)) != L"00:00:00");
  const auto refuse = [&](const char* way) {
    HWND question = WaitForDialog(program());
    ASSERT_TRUE(question) << way;
    ASSERT_TRUE(CloseDialog(question, IDNO)) << way;
    EXPECT_TRUE(program().WaitUntilIdle());
    for (HWND form : {manager_, clock_, stopwatch_}) EXPECT_TRUE(IsShown(form)) << way;
  };
  ASSERT_TRUE(ClickOn(Control(stopwatch_, lablTBARTOP + 2)));
  refuse("close button");
  ASSERT_TRUE(ClickOn(Control(manager_, lblNUMBER + 4)));
  refuse("tile");
  Choose(manager_, L"mnuVRNCLOSEALL");
  refuse("close all");
  ::PostMessageW(stopwatch_, WM_CLOSE, 0, 0);
  refuse("from outside");
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCEXIT"));
  // Asked again while it asks, it asks once.
  ASSERT_TRUE(WaitForDialog(program()));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCEXIT"));
  refuse("exit");
  EXPECT_FALSE(FindDialog(program()));
  ExpectBothOpenNextTime();
  ASSERT_TRUE(ClickOn(Control(manager_, lablTBARTOP + 2)));
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question);
  PressButton(question, IDYES);
  EXPECT_EQ(program().WaitForExit(), 0u);
  ExpectBothOpenNextTime();
}

TEST_F(Closing, AtTheSessionsEndNothingIsAskedWhateverIsOpen) {
  StartAll();
  ASSERT_TRUE(ClickOn(Control(stopwatch_, lblStartfrmSTWwg)));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCSETTINGS"));
  ASSERT_TRUE(WaitForForm(program(), L"frmTHEME"));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCEXIT"));
  ASSERT_TRUE(WaitForDialog(program()));
  root().settings().RemoveValue(L"frmCLKwg\\Window", L"Left");
  EXPECT_TRUE(EndSession(program()));
  EXPECT_TRUE(root().settings().Text(L"frmCLKwg\\Window", L"Left"));
  EXPECT_TRUE(program().running());
  program().Kill();
  ExpectBothOpenNextTime();
}

TEST_F(Closing, MinimisedAndHiddenWidgetsAreSeenOnTheirTiles) {
  StartAll();
  EXPECT_EQ(Text(ClockTile()), L"Clock (open)");
  const Rect place = RectOf(clock_);
  const Picture open = StillPictureOf(ClockTile());
  const auto expect_back = [&] {
    ASSERT_TRUE(ClickOn(ClockTile()));
    EXPECT_SOON_EQ(Text(ClockTile()), L"Clock (open)");
    EXPECT_SOON(!::IsIconic(clock_) && IsShown(clock_));
    EXPECT_EQ(RectOf(clock_), place);
    EXPECT_TRUE(::GetWindowLongPtrW(clock_, GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
  };
  ASSERT_TRUE(ClickOn(Control(clock_, lablTBARTOP + 1)));
  EXPECT_SOON(::IsIconic(clock_));
  EXPECT_SOON_EQ(Text(ClockTile()), L"Clock (minimised)");
  EXPECT_TRUE(::GetWindowLongPtrW(clock_, GWL_EXSTYLE) & WS_EX_APPWINDOW);
  MoveMouse({640, 790});
  EXPECT_SOON(StillPictureOf(ClockTile()) != open);
  expect_back();
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCHIDEALL"));
  EXPECT_SOON_EQ(Text(ClockTile()), L"Clock (hidden)");
  expect_back();
  // The task bar's way back.
  ASSERT_TRUE(ClickOn(Control(clock_, lablTBARTOP + 1)));
  EXPECT_SOON(::IsIconic(clock_));
  ::PostMessageW(clock_, WM_SYSCOMMAND, SC_RESTORE, 0);
  EXPECT_SOON_EQ(Text(ClockTile()), L"Clock (open)");
  EXPECT_EQ(RectOf(clock_), place);
  // The menu's item toggles, seen or not.
  ASSERT_TRUE(ClickOn(Control(clock_, lablTBARTOP + 1)));
  EXPECT_SOON(::IsIconic(clock_));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCWIDGETS", 0));
  EXPECT_SOON_EQ(Text(ClockTile()), L"Clock");
  EXPECT_EQ(root().settings().Text(L"frmCLKwg\\Window", L"Window State"), L"1");
}

TEST_F(Closing, DoubleClickOnATileOpens) {
  StartAll();
  ASSERT_TRUE(ClickOn(ClockTile()));
  EXPECT_SOON_EQ(Text(ClockTile()), L"Clock");
  DoubleClick(CentreOf(ClockTile()));
  EXPECT_SOON_EQ(Text(ClockTile()), L"Clock (open)");
  EXPECT_TRUE(program().WaitUntilIdle());
  EXPECT_EQ(Text(ClockTile()), L"Clock (open)");
}

TEST_F(Closing, FocusIsWhereItWasAfterAMessage) {
  StartAll();
  ASSERT_TRUE(Activate(clock_));
  PressKeys({VK_TAB, VK_TAB});
  HWND focus = Control(clock_, lablTBARTOP + 1);
  ASSERT_SOON(FocusedWindow() == focus);
  Choose(clock_, L"mnuDCHELP");
  HWND message = WaitForDialog(program());
  ASSERT_TRUE(message);
  PressKey(VK_RETURN);
  EXPECT_SOON(!FindDialog(program()));
  EXPECT_SOON(FocusedWindow() == focus);
}

}  // namespace
}  // namespace varnel
