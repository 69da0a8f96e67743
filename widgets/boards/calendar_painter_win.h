// Paints the grid of a month: what the ink lies on.
#pragma once

#include <array>
#include <string>

#include "theme/widget_paint.h"
#include "widgets/boards/calendar_layout.h"
#include "win/graphics/surface.h"
#include "win/windows/ui.h"

namespace varnel {

// What a month's grid says.
struct MonthGrid {
  Month month;
  std::array<Date, kGridDays> days;
  std::array<std::wstring, kWeekDays> names;        // of its columns, whole
  std::array<std::wstring, kWeekDays> brief_names;  // the same as "Mon"
  std::array<int, kGridWeeks> weeks{};              // their numbers
  std::array<std::wstring, kGridDays> holidays;     // empty on other days
  int today = -1;                                   // the cell of today, or -1
};

// Fills the surface, which has the grid's size. The board is white in every theme, as its pens are
// made for that; the theme tints it.
void PaintMonthGrid(Ui& ui, Surface& surface, const CalendarGrid& grid, const MonthGrid& month,
                    const WidgetPaint& paint);

}  // namespace varnel
