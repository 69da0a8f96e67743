#include "widgets/boards/calendar_painter_win.h"

#include <algorithm>

#include "base/image.h"
#include "base/number_text.h"
#include "base/rounded_box.h"
#include "theme/contrast.h"
#include "theme/text_painter_win.h"
#include "win/graphics/font_measure.h"

namespace varnel {
namespace {

// How much of the theme's colour is in what it tints, of 255.
constexpr int kNamesTint = 48;
constexpr int kWeekendTint = 18;
constexpr int kLineTint = 64;
constexpr int kInkTint = 64;
constexpr int kFaintTint = 40;
constexpr int kDarker = 225;  // what is left of a colour that is made darker step by step

constexpr Colour kGrey = 0xC8C8C8;
constexpr Colour kFaintGrey = 0x9A9A9A;
constexpr Colour kHolidayRed = 0x2424B8;

// What the parts of the grid are painted with.
struct GridColours {
  Colour names, weekend, line, ink, faint, holiday, today;
};

GridColours ColoursOf(const WidgetPaint& paint) {
  if (paint.high_contrast) return {kWhite, kWhite, kBlack, kBlack, kBlack, kBlack, kBlack};
  const PlainColours plain;
  const Colour theme = paint.theme.lngTHEMECOLOR;
  const auto tinted = [&](Colour colour, int share) { return Blend(theme, colour, share, plain); };
  GridColours colours{tinted(kWhite, kNamesTint),
                      tinted(kWhite, kWeekendTint),
                      tinted(kGrey, kLineTint),
                      tinted(kBlack, kInkTint),
                      tinted(kFaintGrey, kFaintTint),
                      kHolidayRed,
                      theme};
  // Readable on a weekend's ground, and so on white.
  colours.faint = InkColour(colours.weekend, colours.faint, plain);
  // White figures stand on it.
  while (ContrastRatio(colours.today, kWhite) < kReadableContrast) {
    colours.today = Blend(colours.today, kBlack, kDarker, plain);
  }
  return colours;
}

class GridPainter {
 public:
  GridPainter(Ui& ui, Surface& surface, const CalendarGrid& grid, const MonthGrid& month,
              const WidgetPaint& paint)
      : ui_(ui),
        surface_(surface),
        grid_(grid),
        month_(month),
        colours_(ColoursOf(paint)),
        measure_(ui.fonts, paint.theme.strTHEMEPANELFONTNAME, false) {
    style_.font.face = paint.theme.strTHEMEPANELFONTNAME;
    style_.colour = colours_.ink;
    style_.ground = kWhite;
    style_.readable = false;  // the colours are chosen for these grounds
  }

  void Paint() {
    FillRectangle(surface_.dc(), {0, 0, grid_.size.width, grid_.size.height}, kWhite);
    for (std::size_t i = 0; i < grid_.cells.size(); ++i) {
      if (IsWeekend(month_.days[i])) FillRectangle(surface_.dc(), grid_.cells[i], colours_.weekend);
    }
    Rect band = grid_.names;
    band.left = 0;
    if (!band.empty()) FillRectangle(surface_.dc(), band, colours_.names);
    PaintLines();
    PaintNames();
    PaintWeeks();
    for (std::size_t i = 0; i < grid_.cells.size(); ++i) PaintDay(i);
  }

 private:
  static bool IsWeekend(const Date& date) {
    const int weekday = WeekdayOf(date);
    return weekday == 0 || weekday == 6;
  }

  void PaintLines() {
    const int top = grid_.names.height(), left = grid_.weeks.width();
    for (int i = 0; i < kWeekDays; ++i) {
      const int x = grid_.cells[static_cast<std::size_t>(i)].left;
      if (x > 0) FillRectangle(surface_.dc(), {x, top, x + 1, grid_.size.height}, colours_.line);
    }
    for (int i = 0; i < kGridWeeks; ++i) {
      const int y = grid_.cells[static_cast<std::size_t>(i * kWeekDays)].top;
      const int from = i == 0 ? 0 : left;
      if (y > 0) FillRectangle(surface_.dc(), {from, y, grid_.size.width, y + 1}, colours_.line);
    }
  }

  void PaintNames() {
    if (grid_.names.empty()) return;
    TextStyle style = style_;
    style.font.height = std::min(grid_.small_font, grid_.names.height() * 4 / 5);
    style.ground = colours_.names;
    const int room = grid_.NameBox(0).width() - style.font.height;
    const auto names =
        FittingNames(month_.names, month_.brief_names, room, style.font.height, measure_);
    for (int i = 0; i < kWeekDays; ++i) {
      PaintText(ui_, surface_, grid_.NameBox(i), names[static_cast<std::size_t>(i)], style);
    }
  }

  void PaintWeeks() {
    TextStyle style = style_;
    style.font.height = std::min(grid_.small_font, grid_.weeks.width() * 3 / 5);
    style.colour = colours_.faint;
    for (int i = 0; i < kGridWeeks && !grid_.weeks.empty(); ++i) {
      PaintText(ui_, surface_, grid_.WeekBox(i),
                NumberText(month_.weeks[static_cast<std::size_t>(i)]), style);
    }
  }

  void PaintDay(std::size_t cell) {
    const Date& date = month_.days[cell];
    const bool own = date.month == month_.month.month && date.year == month_.month.year;
    const std::wstring& holiday = month_.holidays[cell];
    TextStyle style = style_;
    style.font.height = grid_.number_font;
    style.ground = IsWeekend(date) ? colours_.weekend : kWhite;
    style.colour = !own ? colours_.faint : holiday.empty() ? colours_.ink : colours_.holiday;
    const Rect number = grid_.NumberBox(cell);
    if (static_cast<int>(cell) == month_.today) {
      DrawRoundedBox(surface_.pixels(), surface_.size(), number,
                     std::min(number.width(), number.height()) / 2.0, OpaquePixel(colours_.today),
                     OpaquePixel(colours_.today));
      style.ground = colours_.today;
      style.colour = kWhite;
    }
    PaintText(ui_, surface_, number, NumberText(date.day), style);
    const Rect box = grid_.HolidayBox(cell);
    if (holiday.empty() || box.empty()) return;
    style.font.height = grid_.small_font * 9 / 10;
    style.ground = IsWeekend(date) ? colours_.weekend : kWhite;
    style.colour = own ? colours_.holiday : colours_.faint;
    style.align = Align::kLeft;
    PaintText(ui_, surface_, box, holiday, style);
  }

  Ui& ui_;
  Surface& surface_;
  const CalendarGrid& grid_;
  const MonthGrid& month_;
  const GridColours colours_;
  const FontMeasure measure_;
  TextStyle style_;
};

}  // namespace

void PaintMonthGrid(Ui& ui, Surface& surface, const CalendarGrid& grid, const MonthGrid& month,
                    const WidgetPaint& paint) {
  GridPainter(ui, surface, grid, month, paint).Paint();
}

}  // namespace varnel
