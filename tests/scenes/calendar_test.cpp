// The calendar, drawn on by hand.
#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "base/bmp.h"
#include "resources/control_ids.h"
#include "tests/rig/scene.h"
#include "widgets/boards/calendar_layout.h"
#include "widgets/boards/calendar_sheet.h"
#include "win/system/local_time.h"
#include "win/system/user_week.h"

namespace varnel {
namespace {

using namespace rig;

constexpr COLORREF kRed = RGB(255, 0, 0);

class Calendar : public Scene {
 protected:
  void SetUp() override {
    Scene::SetUp();
    root().settings().SetText(L"frmVRNpr\\Details", L"Start-Load-Calendar", L"True");
    root().settings().SetText(L"frmCALwg\\Details", L"pen-Color-index", L"1");
    root().settings().SetText(L"frmCALwg\\Details", L"pen-width-index", L"6");
    Start();
  }
  void Start() {
    ASSERT_TRUE(program().Start());
    widget_ = WaitForForm(program(), L"frmCALwg");
    ASSERT_TRUE(widget_);
    Size(600, 440);
    ASSERT_TRUE(Activate(widget_));
  }
  void Size(int width, int height) {
    ::SetWindowPos(widget_, nullptr, 100, 60, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
    StillPictureOf(widget_);
  }

  // On the screen.
  Rect Cell(int column, int row) {
    const Rect board = RectOf(Control(widget_, picMAINBOARD));
    const CalendarGrid grid = LayOutCalendarGrid({board.width(), board.height()}, 96);
    return Within(board, grid.cells[static_cast<std::size_t>(row * kWeekDays + column)]);
  }
  Point Middle(int column, int row) {
    const Rect cell = Cell(column, row);
    return {(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2};
  }
  void Stroke(int column, int row) {
    const Point from = Middle(column, row);
    Drag(from, {from.x + 15, from.y + 5});
  }
  int RedIn(const Rect& part) {
    const auto colours = Picture(part).Colours();
    const auto red = colours.find(kRed);
    return red == colours.end() ? 0 : red->second;
  }
  bool HasRed(int column, int row) { return RedIn(Cell(column, row)) > 20; }

  std::wstring Title() { return Text(Control(widget_, lblSeptember2015)); }
  Month ThisMonth() { return MonthOf(SystemClock().Now()); }
  std::wstring FileOf(Month month) {
    return root().folder() + L"\\calendar\\pic_" + EnglishMonthTitle(month) + L".bmp";
  }
  // The cells of a month's file that have ink, counted from the first day shown.
  std::vector<int> InkedCells(Month month) {
    std::vector<int> cells;
    const auto bytes = FileBytes(FileOf(month));
    const auto ink = bytes ? MonthInkIn(*bytes, month, UserFirstWeekday()) : std::nullopt;
    for (int i = 0; ink && i < kGridDays; ++i) {
      const Rect cell = SheetCell(i % kWeekDays, i / kWeekDays);
      bool found = false;
      for (int y = cell.top; y < cell.bottom && !found; ++y) {
        for (int x = cell.left; x < cell.right && !found; ++x) found = ink->sheet.At(x, y) != 0;
      }
      if (found) cells.push_back(i);
    }
    return cells;
  }
  void Save() {
    Choose(widget_, L"mnuCALSAVE");
    ASSERT_SOON(FileExists(FileOf(ThisMonth())));
  }

  HWND widget_ = nullptr;
};

TEST_F(Calendar, InkStaysInItsDayAtEverySizeAndInItsFile) {
  Stroke(2, 3);
  EXPECT_SOON(HasRed(2, 3));
  Save();
  EXPECT_EQ(InkedCells(ThisMonth()), (std::vector{23}));
  const auto shown = ReadBmp(*FileBytes(FileOf(ThisMonth())));
  ASSERT_TRUE(shown);
  const Rect board = RectOf(Control(widget_, picMAINBOARD));
  EXPECT_EQ(shown->width(), board.width());
  const Point dot = Middle(2, 3);
  EXPECT_EQ(shown->At(dot.x - board.left, dot.y - board.top), 0xFFFF0000);
  for (const auto& [width, height] : {std::pair{900, 640}, {420, 300}, {600, 440}}) {
    Size(width, height);
    EXPECT_SOON(RedIn(Cell(2, 3)) > 2);
    EXPECT_EQ(RedIn(Cell(3, 3)) + RedIn(Cell(1, 3)) + RedIn(Cell(2, 2)), 0) << width;
  }
  Chord({VK_CONTROL, 'Z'});
  EXPECT_SOON(RedIn(Cell(2, 3)) == 0);
  Chord({VK_CONTROL, 'Y'});
  EXPECT_SOON(HasRed(2, 3));
}

TEST_F(Calendar, MonthsArePagedOverNewYearAndSavedUnasked) {
  const Month now = ThisMonth();
  const int to_january = 13 - now.month;
  Stroke(4, 2);
  EXPECT_SOON(HasRed(4, 2));
  for (int i = 0; i < to_january; ++i) PressKey(VK_NEXT);
  EXPECT_SOON_EQ(Title(), EnglishMonthTitle({now.year + 1, 1}));
  EXPECT_EQ(InkedCells(now), (std::vector{18}));
  EXPECT_SOON(RedIn(Cell(4, 2)) == 0);
  Stroke(1, 4);
  EXPECT_SOON(HasRed(1, 4));
  TurnWheel(Middle(3, 3), 1);
  EXPECT_SOON_EQ(Title(), EnglishMonthTitle({now.year, 12}));
  EXPECT_EQ(InkedCells({now.year + 1, 1}), (std::vector{29}));
  Chord({VK_CONTROL, VK_PRIOR});
  EXPECT_SOON_EQ(Title(), EnglishMonthTitle({now.year - 1, 12}));
  EXPECT_FALSE(FileExists(FileOf({now.year, 12})));
  PressKey(VK_HOME);
  EXPECT_SOON_EQ(Title(), EnglishMonthTitle(now));
  EXPECT_EQ(Text(Control(widget_, lblMONTHBAR)), Title());
  EXPECT_SOON(HasRed(4, 2));
  ASSERT_TRUE(ClickOn(Control(widget_, cmdCALTOOL + 1)));
  EXPECT_SOON_EQ(Title(), EnglishMonthTitle(MovedBy(now, 1)));
}

TEST_F(Calendar, AStrokeOutlivesASizeOfTheWindow) {
  const Point from = Middle(1, 1);
  PressMouse(from);
  MoveMouse({from.x + 10, from.y});
  EXPECT_SOON(HasRed(1, 1));
  Size(760, 540);
  const Point to = Middle(1, 2);
  MoveMouse(to);
  ReleaseMouse(to);
  EXPECT_SOON(HasRed(1, 2));
  Save();
  const auto inked = InkedCells(ThisMonth());
  EXPECT_TRUE(std::ranges::find(inked, 8) != inked.end());
  EXPECT_TRUE(std::ranges::find(inked, 15) != inked.end());
}

TEST_F(Calendar, TextAndIconsLieWhereTheyWerePut) {
  Choose(widget_, L"mnuCALINSTXT");
  HWND dialog = WaitForForm(program(), L"frmCALit");
  ASSERT_TRUE(dialog);
  EXPECT_TRUE(IsChecked(Control(dialog, chkWRAP)));
  SetText(Control(dialog, txtINSERTBOX), L"Anna");
  ASSERT_TRUE(ClickOn(Control(dialog, cmdOKfrmCALit)));
  ASSERT_TRUE(WaitForNoForm(program(), L"frmCALit"));
  Click(Middle(2, 1));

  Choose(widget_, L"mnuCALINSPIC");
  HWND picker = WaitForForm(program(), L"frmCALip");
  ASSERT_TRUE(picker);
  EXPECT_EQ(Send(Control(picker, tabMAIN), TCM_GETITEMCOUNT), 7);
  EXPECT_EQ(Send(Control(picker, lvwICONS), LVM_GETITEMCOUNT), 15);
  Send(Control(picker, tabMAIN), TCM_SETCURFOCUS, 6);
  EXPECT_SOON_EQ(Send(Control(picker, lvwICONS), LVM_GETITEMCOUNT), 27);
  const Rect icons = RectOf(Control(picker, lvwICONS));
  DoubleClick({icons.left + 45, icons.top + 25});
  ASSERT_TRUE(WaitForNoForm(program(), L"frmCALip"));
  ASSERT_TRUE(Activate(widget_));
  MoveMouse(Middle(5, 3));
  const Picture before = StillPictureOf(widget_);
  PressKey(VK_UP);
  PressKey(VK_RETURN);
  EXPECT_SOON(PictureOf(widget_).Colours() != before.Colours());
  Save();
  EXPECT_EQ(InkedCells(ThisMonth()), (std::vector{9, 26}));
}

TEST_F(Calendar, AKilledProgramComesBackWithTheDrawing) {
  Stroke(6, 1);
  const std::wstring draft = root().folder() + L"\\calendar\\.varnel\\pic_" +
                             EnglishMonthTitle(ThisMonth()) + L".bmp.draft";
  ASSERT_TRUE(WaitUntil([&] { return FileExists(draft); }, 6'000));
  program().Kill();
  EXPECT_FALSE(FileExists(FileOf(ThisMonth())));
  Start();
  EXPECT_SOON(HasRed(6, 1));
  EXPECT_EQ(LeaveByMenu(program()), 0u);
  EXPECT_EQ(InkedCells(ThisMonth()), (std::vector{13}));
  EXPECT_FALSE(FileExists(draft));
}

TEST_F(Calendar, WhatOthersMakeOfTheMonthIsShownOrKeptBesideIt) {
  constexpr std::uint32_t kBlue = 0xFF0000FF, kGreen = 0xFF00FF00;
  const std::string blue = WriteBmp(Image(200, 150, kBlue), BmpDepth::k24Bits);
  const std::string green = WriteBmp(Image(200, 150, kGreen), BmpDepth::k24Bits);
  const std::wstring beside =
      root().folder() + L"\\calendar\\pic_" + EnglishMonthTitle(ThisMonth()) + L"_2.bmp";
  const auto shows_blue = [&](int column, int row) {
    return Picture(RectAt(Middle(column, row), {1, 1})).At({0, 0}) == RGB(0, 0, 255);
  };
  Stroke(2, 3);
  EXPECT_SOON(HasRed(2, 3));
  Save();
  ASSERT_TRUE(WriteBytes(FileOf(ThisMonth()), blue));
  EXPECT_SOON(shows_blue(2, 3) && shows_blue(5, 1));

  Stroke(1, 1);
  EXPECT_SOON(HasRed(1, 1));
  ASSERT_TRUE(WriteBytes(FileOf(ThisMonth()), green));
  PressKey(VK_NEXT);
  EXPECT_SOON_EQ(Title(), EnglishMonthTitle(MovedBy(ThisMonth(), 1)));
  EXPECT_EQ(FileBytes(beside), green);
  PressKey(VK_PRIOR);
  EXPECT_SOON(HasRed(1, 1) && shows_blue(5, 1));
}

TEST_F(Calendar, AFullDiskLosesNothing) {
  const std::wstring disk = PathFromEnvironment(L"VARNEL_SMALL_DISK");
  if (disk.empty()) GTEST_SKIP() << "only root can make a small disk";
  program().Kill();
  root().settings().SetText(L"frmCALpr\\Details", L"Calendar Folder Location",
                            disk + L"\\calendar\\");
  Start();
  Stroke(2, 3);
  PressKey(VK_NEXT);
  EXPECT_SOON(Text(Control(widget_, lblSCREEN)).find(L"disk is full") != std::wstring::npos);
  EXPECT_EQ(Title(), EnglishMonthTitle(ThisMonth()));
  EXPECT_SOON(HasRed(2, 3));
  ASSERT_TRUE(ChooseShared(program(), L"mnuDCEXIT"));
  HWND question = WaitForDialog(program());
  ASSERT_TRUE(question && CloseDialog(question, IDYES));
  EXPECT_EQ(program().WaitForExit(), 0u);
  // The month does not fit, but its ink alone does.
  Start();
  EXPECT_SOON(HasRed(2, 3));
  program().Kill();
  RemoveAll(disk + L"\\calendar");
}

}  // namespace
}  // namespace varnel
