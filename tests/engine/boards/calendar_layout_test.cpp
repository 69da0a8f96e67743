// The calendar's panel and the month's grid, from the smallest widget to a whole screen.
#include <gtest/gtest.h>

#include <random>

#include "base/resample.h"
#include "tests/support/boxes.h"
#include "tests/support/plain_measure.h"
#include "widgets/boards/calendar_layout.h"
#include "widgets/boards/picture_pack.h"

namespace varnel {
namespace {

using test::ExpectApart;
using test::Inside;

TEST(CalendarLayout, ToolsLieApartAtEverySizeAndGoByRank) {
  for (const int dpi : {96, 120, 144, 192}) {
    for (int width = 160; width <= 2000; width += width < 800 ? 7 : 311) {
      const Size panel{Scaled(width, dpi), Scaled(width * 3 / 5, dpi)};
      const CalendarLayout layout = LayOutCalendar(panel, dpi, Scaled(130, dpi));
      std::vector<Rect> boxes(layout.tools.begin(), layout.tools.end());
      boxes.insert(boxes.end(), layout.pens.begin(), layout.pens.end());
      boxes.insert(boxes.end(), {layout.title, layout.today_number, layout.today_lines,
                                 layout.pen_menu, layout.document});
      ExpectApart(boxes, {0, 0, panel.width, panel.height});
      const auto shown = [&](CalendarTool tool) {
        return !layout.tools[static_cast<std::size_t>(tool)].empty();
      };
      EXPECT_FALSE(layout.title.empty()) << width;
      EXPECT_FALSE(layout.document.empty()) << width;
      EXPECT_EQ(shown(CalendarTool::kPrevious), shown(CalendarTool::kNext)) << width;
      EXPECT_TRUE(layout.pens[0].empty() || layout.pen_menu.empty()) << width;
      if (width >= 200) EXPECT_TRUE(shown(CalendarTool::kNext)) << width;
      if (width >= 390) EXPECT_TRUE(shown(CalendarTool::kText) && shown(CalendarTool::kIcon));
      if (width >= 390) EXPECT_GE(layout.title.width(), Scaled(84, dpi)) << width;
      if (width >= 600) EXPECT_FALSE(layout.pens[0].empty()) << width;
    }
  }
}

std::vector<Size> Boards() {
  return {{150, 49},  {152, 60},   {240, 130},  {376, 190},
          {583, 279}, {1001, 617}, {1904, 990}, {3824, 2080}};
}

TEST(CalendarGrid, TilesTheBoardAndLeavesOutByRank) {
  for (const int dpi : {96, 144, 192}) {
    for (const Size board : Boards()) {
      const CalendarGrid grid = LayOutCalendarGrid(board, dpi);
      const Rect all{0, 0, board.width, board.height};
      std::vector<Rect> boxes(grid.cells.begin(), grid.cells.end());
      boxes.insert(boxes.end(), {grid.names, grid.weeks});
      ExpectApart(boxes, all);
      long long area = 0;
      for (const Rect& box : boxes) area += 1LL * box.width() * box.height();
      const bool corner = !grid.names.empty() && !grid.weeks.empty();
      area += corner ? 1LL * grid.weeks.width() * grid.names.height() : 0;
      EXPECT_EQ(area, 1LL * board.width * board.height);
      for (std::size_t i = 0; i < grid.cells.size(); ++i) {
        EXPECT_TRUE(Inside(grid.NumberBox(i), grid.cells[i]));
        EXPECT_GE(grid.NumberBox(i).height(), std::min(grid.number_font, 8));
        const Rect holiday = grid.HolidayBox(i);
        EXPECT_TRUE(holiday.empty() || Inside(holiday, grid.cells[i]));
        EXPECT_EQ(grid.CellAt({grid.cells[i].left, grid.cells[i].bottom - 1}), static_cast<int>(i));
      }
    }
  }
  EXPECT_TRUE(LayOutCalendarGrid({150, 49}, 96).names.empty());
  EXPECT_FALSE(LayOutCalendarGrid({376, 190}, 96).names.empty());
  EXPECT_FALSE(LayOutCalendarGrid({376, 190}, 96).weeks.empty());
  EXPECT_EQ(LayOutCalendarGrid({376, 190}, 96).CellAt({2, 100}), -1);
}

// Ink of one cell, filled to its edges, shows in that cell and nowhere else.
TEST(CalendarGrid, InkOfACellIsShownInThatCellAtEverySize) {
  std::mt19937 random(20240131);
  for (const Size board : Boards()) {
    if (board.width > 2000) continue;
    const CalendarGrid grid = LayOutCalendarGrid(board, 96);
    const SheetMaps maps = MapsOf(grid);
    const int cell = std::uniform_int_distribution(0, kGridDays - 1)(random);
    Image sheet(kSheetSize.width, kSheetSize.height);
    sheet.Fill(SheetCell(cell % kWeekDays, cell / kWeekDays), 0xFFFF0000);
    const Rect box = grid.cells[static_cast<std::size_t>(cell)];
    const Rect around = Intersection(Inset(box, -20), {0, 0, board.width, board.height});
    Image shown(board.width, board.height);
    Resample(sheet, maps.across, maps.down, shown, around);
    for (int y = around.top; y < around.bottom; ++y) {
      for (int x = around.left; x < around.right; ++x) {
        ASSERT_EQ(shown.At(x, y), box.Contains({x, y}) ? 0xFFFF0000 : 0u) << x << "," << y;
      }
    }
  }
}

// A picture of the grid at any size comes back from the sheet cell by cell.
TEST(CalendarGrid, PictureOfTheGridCoversTheSheet) {
  const CalendarGrid small = LayOutCalendarGrid({376, 190}, 96);
  Image picture(376, 190, 0xFFFFFFFF);
  picture.Fill(small.cells[17], 0xFF008000);
  const SheetMaps maps = MapsToSheet(small);
  Image sheet(kSheetSize.width, kSheetSize.height);
  Resample(picture, maps.across, maps.down, sheet, {0, 0, sheet.width(), sheet.height()});
  const Rect cell = SheetCell(17 % kWeekDays, 17 / kWeekDays);
  EXPECT_EQ(sheet.At(cell.left, cell.top), 0xFF008000);
  EXPECT_EQ(sheet.At(cell.right - 1, cell.bottom - 1), 0xFF008000);
  EXPECT_EQ(sheet.At(cell.left - 1, cell.top), 0xFFFFFFFF);
  EXPECT_EQ(sheet.At(0, 0), 0xFFFFFFFF);
}

TEST(CalendarGrid, DayNamesAreShortenedAlike) {
  const std::array<std::wstring, kWeekDays> whole = {
      L"Monday", L"Tuesday", L"Wednesday", L"Thursday", L"Friday", L"Saturday", L"Sunday"};
  const std::array<std::wstring, kWeekDays> brief = {L"Mon", L"Tue", L"Wed", L"Thu",
                                                     L"Fri", L"Sat", L"Sun"};
  const auto third = [&](int room) {
    const auto names = FittingNames(whole, brief, room, 10, test::PlainMeasure());
    EXPECT_EQ(names[0].size() > 3, names[2].size() > 3);
    return names[2];
  };
  EXPECT_EQ(third(100), L"Wednesday");
  EXPECT_EQ(third(30), L"Wed");
  EXPECT_EQ(third(16), L"We");
  EXPECT_EQ(third(1), L"W");
}

TEST(PicturePack, IsReadAndCutOffAnywhere) {
  using namespace std::string_literals;
  const std::string pack =
      "\x04\x05WorkClock\3\0\0\0abc\4\0\0\0defg"s + "\x04\x04WorkDisk\0\0\0\0\1\0\0\0x"s;
  const auto pictures = ReadPicturePack(pack);
  ASSERT_EQ(pictures.size(), 2u);
  EXPECT_EQ(pictures[0].name, "Clock");
  EXPECT_EQ(pictures[0].small, "abc");
  EXPECT_EQ(pictures[1].group, "Work");
  EXPECT_EQ(pictures[1].large, "x");
  for (std::size_t cut = 0; cut < pack.size(); ++cut) {
    EXPECT_EQ(ReadPicturePack(pack.substr(0, cut)).size(), cut >= 24 + 2 ? 1u : 0u) << cut;
  }
}

TEST(CalendarLayout, OfSeveralTextsTheFirstThatFitsIsTaken) {
  const test::PlainMeasure measure;
  const std::array<std::wstring, 3> titles = {L"November 2026", L"Nov 2026", L"Nov"};
  const int brief = measure.Measure(titles[1], 12).width;
  EXPECT_EQ(FirstFitting(titles, brief - 1, 12, measure), titles[2]);
  EXPECT_EQ(FirstFitting(titles, brief, 12, measure), titles[1]);
  EXPECT_EQ(FirstFitting(titles, 10 * brief, 12, measure), titles[0]);
  EXPECT_EQ(FirstFitting(titles, 0, 12, measure), titles[2]);
}

}  // namespace
}  // namespace varnel
