// The frame of every widget: dragging, sizing, keys, menus, looks.
#include <gtest/gtest.h>

#include "resources/control_ids.h"
#include "tests/rig/scene.h"
#include "tests/support/cases.h"

namespace varnel {
namespace {

using namespace rig;

constexpr int kGrid = 10;  // pixels: 150 twips at 96 dpi

class Frame : public Scene {
 protected:
  void SetUp() override {
    Scene::SetUp();
    root().settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Clock", L"True");
    ASSERT_TRUE(program().Start());
    manager_ = WaitForForm(program(), L"frmVRNwg");
    clock_ = WaitForForm(program(), L"frmCLKwg");
    ASSERT_TRUE(manager_ && clock_);
  }
  Rect DragClockBy(int across, int down) {
    const Rect place = RectOf(clock_);
    const Point bar{place.left + 100, place.top + 12};
    Drag(bar, {bar.x + across, bar.y + down});
    return WaitUntilStill([&] { return RectOf(clock_); });
  }
  Size SizeOf(HWND form) {
    const Rect place = RectOf(form);
    return {place.width(), place.height()};
  }
  std::wstring Stored(const wchar_t* name) {
    return root().settings().Text(L"frmCLKwg\\Window", name).value_or(L"");
  }

  HWND manager_ = nullptr;
  HWND clock_ = nullptr;
};

TEST_F(Frame, DragSnapsToTheGridAndIsRemembered) {
  const Rect start = RectOf(clock_);
  EXPECT_EQ(DragClockBy(34, 46),
            RectAt({start.left + 30, start.top + 50}, {start.width(), start.height()}));
  // 4 pixels are less than half a grid step: it goes back.
  const Rect rest = RectOf(clock_);
  EXPECT_EQ(DragClockBy(4, -4), rest);
  EXPECT_EQ(rest.left % kGrid, 0);
  EXPECT_SOON_EQ(Stored(L"Left"), std::to_wstring(rest.left * 15));
  EXPECT_SOON_EQ(Stored(L"Top"), std::to_wstring(rest.top * 15));
  ASSERT_EQ(LeaveByMenu(program()), 0u);
  ASSERT_TRUE(program().Start());
  EXPECT_EQ(RectOf(WaitForForm(program(), L"frmCLKwg")), rest);
}

TEST_F(Frame, DraggedOffTheScreenItComesBackToTheEdge) {
  RECT work = {};
  ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
  const Rect right = DragClockBy(700, 0);
  EXPECT_EQ(right.right, work.right);
  const Rect corner = DragClockBy(-1200, 700);
  EXPECT_EQ(corner.left, 0);
  EXPECT_EQ(corner.bottom, work.bottom);
}

TEST_F(Frame, GripSizesOnTheGridDownToTheSmallestSize) {
  const Rect start = RectOf(clock_);
  const Point grip{start.right - 5, start.bottom - 5};
  Drag(grip, {grip.x + 63, grip.y + 41});
  const Rect larger = WaitUntilStill([&] { return RectOf(clock_); });
  EXPECT_GT(larger.width(), start.width() + 40);
  EXPECT_EQ(larger.left, start.left);
  const Point again{larger.right - 5, larger.bottom - 5};
  Drag(again, {larger.left + 5, larger.top + 5});
  EXPECT_SOON_EQ(SizeOf(clock_), (Size{160, 107}));
  EXPECT_SOON_EQ(Stored(L"Width"), L"2400");
  EXPECT_SOON_EQ(Stored(L"Height"), L"1600");
  EXPECT_TRUE(IsShown(Control(clock_, lblPANECLOCK)));
  EXPECT_FALSE(IsShown(Control(clock_, lbl7Sept2010)));
}

TEST_F(Frame, SizeCommands) {
  const Rect start = RectOf(clock_);
  ASSERT_EQ(SizeOf(clock_), (Size{393, 231}));
  const test::Cases<const wchar_t*, int, Size> cases = {
      {L"mnuWIDGRESETA", 0, {500, 350}}, {L"mnuWIDGRESETA", 1, {330, 233}},
      {L"mnuWIDGRESETA", 2, {160, 107}}, {L"mnuWIDGRESET", 1, {640, 400}},
      {L"mnuWIDGRESET", 2, {320, 200}},  {L"mnuWIDGRESET", 3, {160, 100}},
      {L"mnuWIDGRESET", 0, {1280, 800}}};
  for (const auto& [name, index, size] : cases) {
    Choose(clock_, name, index);
    EXPECT_SOON_EQ(SizeOf(clock_), size) << name;
  }
  Choose(clock_, L"mnuWIDGRESETD");
  // Where there is room again, it goes back to where the full screen took it from.
  EXPECT_SOON_EQ(RectOf(clock_), start);
  EXPECT_SOON_EQ(Stored(L"Width"), L"5900");
  EXPECT_SOON_EQ(Stored(L"Height"), L"3471");
}

TEST_F(Frame, KeysMoveAndSizeTheWindowAndWalkTheButtons) {
  ASSERT_TRUE(Activate(clock_));
  const Rect start = RectOf(clock_);
  Chord({VK_CONTROL, VK_RIGHT});
  EXPECT_SOON_EQ(RectOf(clock_).left, start.left + kGrid);
  Chord({VK_CONTROL, VK_DOWN});
  EXPECT_SOON_EQ(RectOf(clock_).top, start.top + kGrid);
  Chord({VK_CONTROL, VK_SHIFT, VK_RIGHT});
  EXPECT_SOON(RectOf(clock_).width() > start.width());
  EXPECT_EQ(RectOf(clock_).height(), start.height());

  const Picture before = StillPictureOf(Control(clock_, lablTBARTOP));
  PressKey(VK_TAB);
  EXPECT_SOON(FocusedWindow() == Control(clock_, lablTBARTOP));
  EXPECT_NE(StillPictureOf(Control(clock_, lablTBARTOP)), before)
      << "the focus is to be seen once a key was used";
  PressKeys({VK_TAB, VK_TAB});
  EXPECT_SOON(FocusedWindow() == Control(clock_, lablTBARTOP + 2));
  PressKey(VK_SPACE);
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKwg"));
}

// The system's user has not said that they work by keyboard. A program asks that only once.
class WorksByMouse {
 public:
  WorksByMouse() {
    ::SystemParametersInfoW(SPI_GETKEYBOARDPREF, 0, &former_, 0);
    ::SystemParametersInfoW(SPI_SETKEYBOARDPREF, FALSE, nullptr, 0);
  }
  WorksByMouse(const WorksByMouse&) = delete;
  WorksByMouse& operator=(const WorksByMouse&) = delete;
  ~WorksByMouse() { ::SystemParametersInfoW(SPI_SETKEYBOARDPREF, former_, nullptr, 0); }

 private:
  BOOL former_ = FALSE;
};

class FrameByMouse : public Frame {
  WorksByMouse user_;
};

class BoardByMouse : public Scene {
  WorksByMouse user_;
};

TEST_F(FrameByMouse, TheFocusIsShownFromTheFirstKeyToTheNextClick) {
  const HWND button = Control(clock_, lablTBARTOP);
  const Rect place = RectOf(clock_);
  ASSERT_TRUE(Activate(clock_));
  const Picture plain = StillPictureOf(button);
  PressKey(VK_TAB);
  EXPECT_SOON(FocusedWindow() == button);
  EXPECT_SOON(PictureOf(button) != plain);
  Click({place.left + 30, place.bottom - 8});
  EXPECT_SOON(PictureOf(button) == plain);
  EXPECT_EQ(FocusedWindow(), button);
}

TEST_F(BoardByMouse, APenKeepsNoFocusMarkAfterATextWasTyped) {
  root().settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Whiteboard", L"True");
  ASSERT_TRUE(program().Start(L"/tray"));
  HWND form = WaitForForm(program(), L"frmWBDwg");
  ASSERT_TRUE(form && Activate(form));
  HWND pen = Control(form, cmdPEN + 2);
  ASSERT_TRUE(ClickOn(pen));
  EXPECT_SOON(FocusedWindow() == pen);
  ResetInput();
  const Picture chosen = StillPictureOf(pen);
  Choose(form, L"mnuWBOARDINSTEXT");
  HWND dialog = WaitForForm(program(), L"frmWBDit");
  ASSERT_TRUE(dialog);
  ASSERT_TRUE(ClickOn(Control(dialog, txtINSE)));
  Type(L"pond");
  EXPECT_SOON_EQ(Text(Control(dialog, txtINSE)), L"pond");
  ASSERT_TRUE(ClickOn(Control(dialog, cmdOKfrmWBDit)));
  ASSERT_TRUE(WaitForNoForm(program(), L"frmWBDit"));
  ResetInput();
  EXPECT_SOON(PictureOf(pen) == chosen);
}

TEST_F(Frame, MenuByMouseAndByKey) {
  const Rect place = RectOf(clock_);
  Click({place.left + 60, place.top + 12}, MouseButton::kRight);
  ASSERT_TRUE(WaitForMenus(program(), 1));
  PressKey('P');  // the clock's properties
  HWND dialog = WaitForForm(program(), L"frmCLKpr");
  ASSERT_TRUE(dialog);
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKpr"));
  ASSERT_TRUE(Activate(clock_));
  Chord({VK_SHIFT, VK_F10});
  ASSERT_TRUE(WaitForMenus(program(), 1));
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitForMenus(program(), 0));
  // The button of three lines opens it too.
  ASSERT_TRUE(ClickOn(Control(clock_, lablTBARTOP)));
  ASSERT_TRUE(WaitForMenus(program(), 1));
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(WaitForMenus(program(), 0));
}

TEST_F(Frame, HoverLightsAButtonUntilTheMouseLeaves) {
  HWND close = Control(clock_, lablTBARTOP + 2);
  const Picture normal = StillPictureOf(close);
  MoveMouse(CentreOf(close));
  EXPECT_SOON(PictureOf(close) != normal);
  MoveMouse(CentreOf(Control(clock_, lblPANECLOCK)));
  EXPECT_SOON(PictureOf(close) == normal);
}

TEST_F(Frame, OnTopOfOneWindowAlone) {
  EXPECT_FALSE(IsTopmost(clock_));
  Choose(clock_, L"mnuCLOCKTOP");
  EXPECT_SOON(IsTopmost(clock_));
  EXPECT_FALSE(IsTopmost(manager_));
  Choose(clock_, L"mnuDCTOP");
  EXPECT_SOON(!IsTopmost(clock_));
  Choose(clock_, L"mnuDCTOP");
  EXPECT_SOON(IsTopmost(clock_));

  ASSERT_EQ(LeaveByMenu(program()), 0u);
  ASSERT_TRUE(program().Start());
  clock_ = WaitForForm(program(), L"frmCLKwg");
  manager_ = WaitForForm(program(), L"frmVRNwg");
  EXPECT_SOON(IsTopmost(clock_) && !IsTopmost(manager_)) << "the choice lasts";
  // Other options leave it; one for all replaces it.
  const auto options_with = [&](int check_box) {
    Choose(manager_, L"mnuDCGENSET");
    HWND options = WaitForForm(program(), L"frmVRNpr");
    EXPECT_TRUE(options && ClickOn(Control(options, check_box)));
    EXPECT_TRUE(ClickOn(Control(options, IDOK)));
    EXPECT_TRUE(WaitForNoForm(program(), L"frmVRNpr"));
  };
  options_with(chkREADABLE);
  EXPECT_TRUE(IsTopmost(clock_));
  for (const bool on : {true, false}) {
    options_with(chkONTOP);
    EXPECT_SOON(IsTopmost(clock_) == on && IsTopmost(manager_) == on);
  }
}

TEST_F(Frame, OpacityIsKeptAboveTheFaintest) {
  EXPECT_EQ(AlphaOf(clock_), 235);
  ASSERT_EQ(LeaveByMenu(program()), 0u);
  root().settings().SetText(L"frmTHEME\\Details", L"frmCLKwgTheme-Main-Opacity", L"0");
  root().settings().SetText(L"frmTHEME\\Details", L"frmCLKwgTheme-Main-Color", L"255");
  ASSERT_TRUE(program().Start());
  clock_ = WaitForForm(program(), L"frmCLKwg");
  EXPECT_EQ(AlphaOf(clock_), 20);
  EXPECT_EQ(AlphaOf(FindForm(program(), L"frmVRNwg")), 235);
  // Red at contrast 44 on the panel: red stays full, the rest is white at 122 of 255.
  const Picture picture = StillPictureOf(clock_);
  EXPECT_EQ(picture.MainColour(), RGB(255, 122, 122));
}

TEST_F(Frame, ManagerCommandsForAllWidgets) {
  Choose(manager_, L"mnuDCWIDGETS", 4);
  HWND stopwatch = WaitForForm(program(), L"frmSTWwg");
  DragClockBy(-300, 300);
  Choose(clock_, L"mnuWIDGRESETA", 0);
  Choose(manager_, L"mnuVRNARRANGE");
  // The manager first, 393 pixels wide, the large clock beside it, and below the manager the other.
  EXPECT_SOON_EQ(RectOf(manager_).left, 10);
  EXPECT_SOON_EQ(RectOf(clock_), RectAt({420, 10}, {500, 350}));
  EXPECT_SOON_EQ(RectOf(stopwatch), RectAt({10, 260}, {393, 231}));
  Choose(manager_, L"mnuVRNCLOSEALL");
  EXPECT_TRUE(WaitForNoForm(program(), L"frmSTWwg"));
  EXPECT_TRUE(WaitForNoForm(program(), L"frmCLKwg"));
  EXPECT_EQ(root().settings().Text(L"frmVRNpr\\Details", L"Start-Load-Stopwatch"), L"False");
}

}  // namespace
}  // namespace varnel
