#include "widgets/boards/calendar_layout.h"

#include <algorithm>
#include <vector>

#include "frame/panel_strip.h"

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kToolSide = 24;
constexpr int kPenWidth = 22;
constexpr int kColours = kPens - 1;  // without the eraser
constexpr int kLeastTitle = 84;
constexpr int kTodayNumber = 30;
constexpr int kTodayLines = 84;
constexpr int kTitleGap = 12;
constexpr int kLeastCellWithNames = 11;  // the height of cells from which there are day names
constexpr int kLeastWidthWithWeeks = 240;

// The places of what is no CalendarTool in the strip below.
enum StripPlace : std::size_t {
  kTitlePlace = 3,
  kTodayPlace = 4,
  kPensPlace = 5,
  kEraserPlace = 6
};

// Ranks: where room is short the title is left, then the months, then what one draws with.
std::vector<StripTool> StripOf(int title_width, int pens_width) {
  return {{kToolSide, 1, false, false},
          {kToolSide, 1, false, false},
          {kToolSide, 3, false, false},
          {title_width, 0, false, true},
          {kTodayNumber + kTodayLines, 8, true, false},
          {pens_width, 2, true, true},
          {kToolSide, 4, true, false},
          {kToolSide, 7, true, false},
          {kToolSide, 5, true, true},
          {kToolSide, 3, true, false},
          {kToolSide, 4, true, true},
          {kToolSide, 6, true, false}};
}

std::size_t PlaceOf(std::size_t tool) {
  const auto first_after_eraser = static_cast<std::size_t>(CalendarTool::kPenWidth);
  return tool < first_after_eraser ? tool : tool - first_after_eraser + kEraserPlace + 1;
}

int Edge(int from, int to, int part, int parts) {
  return from + (to - from) * part / parts;
}

}  // namespace

CalendarLayout LayOutCalendar(Size panel, int dpi, int title_width) {
  const int wished = std::max(kLeastTitle, title_width * kDefaultDpi / std::max(dpi, 1) + 1);
  constexpr int kAllPens = kColours * kPenWidth;
  // A title in full is given up for pens side by side, and those for the tool that writes.
  struct Widths {
    int title, pens;
  };
  const std::size_t text = PlaceOf(static_cast<std::size_t>(CalendarTool::kText));
  DocumentLayout laid;
  for (const Widths& widths : {Widths{wished, kAllPens}, Widths{kLeastTitle, kAllPens},
                               Widths{wished, kToolSide}, Widths{kLeastTitle, kToolSide}}) {
    laid = LayOutDocument(panel, dpi, StripOf(widths.title, widths.pens), {});
    if (!laid.tools[text].empty()) break;
  }
  CalendarLayout layout;
  for (std::size_t i = 0; i < kCalendarTools; ++i) layout.tools[i] = laid.tools[PlaceOf(i)];
  layout.pens[kEraser] = laid.tools[kEraserPlace];
  const Rect pens = laid.tools[kPensPlace];
  if (pens.width() < Scaled(kAllPens, dpi)) {
    layout.pen_menu = pens;
  } else {
    for (int i = 0; i < kColours; ++i) {
      layout.pens[static_cast<std::size_t>(i)] = {
          Edge(pens.left, pens.right, i, kColours), pens.top,
          Edge(pens.left, pens.right, i + 1, kColours), pens.bottom};
    }
  }
  layout.document = laid.document;
  layout.title = laid.tools[kTitlePlace];
  const Rect today = laid.tools[kTodayPlace];
  if (!today.empty()) {
    layout.today_number = layout.today_lines = today;
    layout.today_number.right = layout.today_lines.left = today.left + Scaled(kTodayNumber, dpi);
  }
  // The title takes what nothing else stands in.
  if (!layout.title.empty()) {
    int right = layout.document.right;
    for (std::size_t i = kTodayPlace; i < laid.tools.size(); ++i) {
      if (!laid.tools[i].empty()) right = std::min(right, laid.tools[i].left);
    }
    const bool alone = right == layout.document.right;
    layout.title.right = right - (alone ? 0 : Scaled(kTitleGap, dpi));
  }
  return layout;
}

// --- the grid

CalendarGrid LayOutCalendarGrid(Size board, int dpi) {
  CalendarGrid grid;
  grid.size = board;
  const auto px = [dpi](int length) { return Scaled(length, dpi); };
  int left = 0, top = 0;
  if (board.width >= px(kLeastWidthWithWeeks)) {
    left = std::clamp(board.width / 22, px(16), px(34));
  }
  const int names = std::clamp(board.height / 13, px(12), px(26));
  if ((board.height - names) / kGridWeeks >= px(kLeastCellWithNames)) top = names;
  if (left > 0) grid.weeks = {0, top, left, board.height};
  if (top > 0) grid.names = {left, 0, board.width, top};
  for (int i = 0; i < kGridDays; ++i) {
    const int column = i % kWeekDays, row = i / kWeekDays;
    grid.cells[static_cast<std::size_t>(i)] = {Edge(left, board.width, column, kWeekDays),
                                               Edge(top, board.height, row, kGridWeeks),
                                               Edge(left, board.width, column + 1, kWeekDays),
                                               Edge(top, board.height, row + 1, kGridWeeks)};
  }
  const int height = (board.height - top) / kGridWeeks;
  const int width = (board.width - left) / kWeekDays;
  // Small cells are filled by their numbers, large ones keep room to draw in.
  const int by_height = height <= px(15) ? height - 2 : std::max(px(12), height * 2 / 7);
  grid.number_font = std::max(1, std::min({by_height, width / 2, px(22)}));
  grid.small_font = std::max(1, std::min({grid.number_font, px(9) + height / 16, px(16)}));
  return grid;
}

Rect CalendarGrid::NameBox(int column) const {
  if (names.empty()) return {};
  const Rect& cell = cells[static_cast<std::size_t>(column)];
  return {cell.left, names.top, cell.right, names.bottom};
}

Rect CalendarGrid::WeekBox(int row) const {
  if (weeks.empty()) return {};
  // Beside the numbers of the days.
  const Rect number = NumberBox(static_cast<std::size_t>(row * kWeekDays));
  return {weeks.left, number.top, weeks.right, number.bottom};
}

Rect CalendarGrid::NumberBox(std::size_t cell) const {
  const Rect& day = cells[cell];
  const Rect inside{day.left + 1, day.top + 1, day.right, day.bottom};
  const int side = number_font * 3 / 2 + 1;
  const int margin = inside.height() > 2 * side ? number_font / 5 : 0;
  return Intersection(inside, RectAt({inside.left + margin, inside.top + margin},
                                     {std::max(side, number_font * 7 / 5), side}));
}

Rect CalendarGrid::HolidayBox(std::size_t cell) const {
  const Rect& day = cells[cell];
  const int height = small_font * 4 / 3;
  const Rect number = NumberBox(cell);
  const Rect box{day.left + 1 + number_font / 3, day.bottom - height - small_font / 4,
                 day.right - small_font / 4, day.bottom - small_font / 4};
  const bool roomy = box.top >= number.bottom && box.width() >= 4 * small_font;
  return roomy ? box : Rect{};
}

int CalendarGrid::CellAt(Point at) const {
  const auto cell = std::ranges::find_if(cells, [&](const Rect& box) { return box.Contains(at); });
  return cell == cells.end() ? -1 : static_cast<int>(cell - cells.begin());
}

// --- the sheet

Rect SheetCell(int column, int row) {
  return RectAt({kSheetWeeks + column * kSheetCell.width, kSheetNames + row * kSheetCell.height},
                kSheetCell);
}

namespace {

std::vector<AxisMap::Stop> StopsAcross(const CalendarGrid& grid) {
  std::vector<AxisMap::Stop> stops = {{0, 0}};
  for (int i = 0; i < kWeekDays; ++i) {
    stops.push_back({grid.cells[static_cast<std::size_t>(i)].left, SheetCell(i, 0).left});
  }
  stops.push_back({grid.size.width, kSheetSize.width});
  return stops;
}

std::vector<AxisMap::Stop> StopsDown(const CalendarGrid& grid) {
  std::vector<AxisMap::Stop> stops = {{0, 0}};
  for (int i = 0; i < kGridWeeks; ++i) {
    stops.push_back({grid.cells[static_cast<std::size_t>(i * kWeekDays)].top, SheetCell(0, i).top});
  }
  stops.push_back({grid.size.height, kSheetSize.height});
  return stops;
}

AxisMap Turned(std::vector<AxisMap::Stop> stops) {
  for (AxisMap::Stop& stop : stops) stop = {stop.kept, stop.shown};
  return AxisMap(std::move(stops));
}

}  // namespace

SheetMaps MapsOf(const CalendarGrid& grid) {
  return {AxisMap(StopsAcross(grid)), AxisMap(StopsDown(grid))};
}

SheetMaps MapsToSheet(const CalendarGrid& grid) {
  return {Turned(StopsAcross(grid)), Turned(StopsDown(grid))};
}

// --- names

std::array<std::wstring, kWeekDays> FittingNames(std::span<const std::wstring, kWeekDays> whole,
                                                 std::span<const std::wstring, kWeekDays> brief,
                                                 int room, int font_height,
                                                 const TextMeasure& measure) {
  std::array<std::wstring, kWeekDays> names;
  const auto fits = [&] {
    return std::ranges::all_of(names, [&](const std::wstring& name) {
      return measure.Measure(name, font_height).width <= room;
    });
  };
  std::ranges::copy(whole, names.begin());
  if (fits()) return names;
  std::ranges::copy(brief, names.begin());
  for (const std::size_t units : {std::size_t{2}, std::size_t{1}}) {
    if (fits()) break;
    for (std::wstring& name : names) name.resize(std::min(name.size(), units));
  }
  return names;
}

}  // namespace varnel
