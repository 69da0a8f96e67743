// Where the parts of the calendar lie: the tools and the title on its panel, and the month's grid
// on its board.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

#include "base/axis_map.h"
#include "base/geometry.h"
#include "base/text_measure.h"
#include "widgets/boards/month.h"
#include "widgets/boards/pens.h"

namespace varnel {

// The tools of the strip beside the pens, from left to right; the title stands after the third.
enum class CalendarTool {
  kPrevious,
  kNext,
  kToday,
  kPenWidth,
  kText,
  kIcon,
  kUndo,
  kRedo,
};
inline constexpr std::size_t kCalendarTools = 8;

// In pixels of the panel; what has no room is empty.
struct CalendarLayout {
  std::array<Rect, kCalendarTools> tools;
  Rect title;
  Rect today_number;  // of today's date, with the two lines beside it
  Rect today_lines;
  std::array<Rect, kPens> pens;  // the last is the eraser
  Rect pen_menu;                 // one tool for all pens, where they have no room
  Rect document;                 // the frame around the board
};

// `title_width`: what the widest title takes in its usual font, in pixels.
CalendarLayout LayOutCalendar(Size panel, int dpi, int title_width);

// The month on its board, in pixels of the board. A cell has a line at its left and its top.
struct CalendarGrid {
  Size size;
  Rect names;  // the row of day names; empty where it has no room
  Rect weeks;  // the column of week numbers; the same
  std::array<Rect, kGridDays> cells;
  int number_font = 1;  // em of the days' numbers
  int small_font = 1;   // of day names, week numbers and holidays

  Rect NameBox(int column) const;
  Rect WeekBox(int row) const;
  // Where a day's number stands.
  Rect NumberBox(std::size_t cell) const;
  // Where a holiday's name stands; empty where the cell has no room.
  Rect HolidayBox(std::size_t cell) const;
  // The cell that shows a pixel, or -1.
  int CellAt(Point at) const;
};

CalendarGrid LayOutCalendarGrid(Size board, int dpi);

// The sheet that the ink of a month is kept on, in pixels; large enough that what is drawn in a
// window as large as a screen keeps its lines.
inline constexpr int kSheetWeeks = 64;  // the width of the column of weeks
inline constexpr int kSheetNames = 48;  // the height of the row of names
inline constexpr Size kSheetCell{288, 192};
inline constexpr Size kSheetSize{kSheetWeeks + kWeekDays * kSheetCell.width,
                                 kSheetNames + kGridWeeks* kSheetCell.height};
Rect SheetCell(int column, int row);

// How the sheet is shown on the grid: every cell in its cell.
struct SheetMaps {
  AxisMap across;
  AxisMap down;
};
SheetMaps MapsOf(const CalendarGrid& grid);
// The other way round: how a picture of the grid is shown on the sheet.
SheetMaps MapsToSheet(const CalendarGrid& grid);

// The names of seven days as they fit into `room` pixels, all shortened alike: whole, as `brief`
// has them, to two letters, to one.
std::array<std::wstring, kWeekDays> FittingNames(std::span<const std::wstring, kWeekDays> whole,
                                                 std::span<const std::wstring, kWeekDays> brief,
                                                 int room, int font_height,
                                                 const TextMeasure& measure);

}  // namespace varnel
