#include "widgets/boards/calendar_sheet.h"

#include <algorithm>
#include <utility>

#include "base/bmp.h"
#include "base/resample.h"
#include "widgets/boards/calendar_layout.h"

namespace varnel {
namespace {

Rect Whole(const Image& image) {
  return {0, 0, image.width(), image.height()};
}

Rect CellOfSheet(std::size_t cell) {
  const auto index = static_cast<int>(cell);
  return SheetCell(index % kWeekDays, index / kWeekDays);
}

Rect NameOfSheet(int column) {
  const Rect cell = SheetCell(column, 0);
  return {cell.left, 0, cell.right, cell.top};
}

void Copy(const Image& from, const Rect& part, Image& to, const Rect& place) {
  for (int y = 0; y < part.height(); ++y) {
    const auto width = static_cast<std::size_t>(part.width());
    const auto source = from.Row(part.top + y).subspan(static_cast<std::size_t>(part.left), width);
    std::ranges::copy(source, to.Row(place.top + y).begin() + place.left);
  }
}

bool HasInk(const Image& sheet, const Rect& part) {
  for (int y = part.top; y < part.bottom; ++y) {
    const auto row = sheet.Row(y).subspan(static_cast<std::size_t>(part.left),
                                          static_cast<std::size_t>(part.width()));
    if (std::ranges::any_of(row, [](std::uint32_t pixel) { return pixel != 0; })) return true;
  }
  return false;
}

Image OnSheet(const Image& picture) {
  // A picture of the calendar lies on the sheet day by day.
  const SheetMaps maps =
      MapsToSheet(LayOutCalendarGrid({picture.width(), picture.height()}, kDefaultDpi));
  Image sheet(kSheetSize.width, kSheetSize.height);
  Resample(picture, maps.across, maps.down, sheet, Whole(sheet));
  return sheet;
}

}  // namespace

MonthInk NoInk(int first_weekday) {
  return {Image(kSheetSize.width, kSheetSize.height), first_weekday};
}

std::optional<MonthInk> MonthInkIn(std::string_view file, Month month, int first_weekday) {
  if (auto ink = InkIn(file)) {
    if (ink->sheet.width() != kSheetSize.width || ink->sheet.height() != kSheetSize.height) {
      ink->sheet = Resampled(ink->sheet, kSheetSize);
    }
    if (ink->first_weekday == first_weekday) return ink;
    if (auto arranged = Rearranged(*ink, month, first_weekday)) return arranged;
    return ink;
  }
  const auto picture = ReadBmp(file);
  if (!picture) return std::nullopt;
  return MonthInk{OnSheet(*picture), first_weekday};
}

std::string MonthFileBytes(const Image& picture, const MonthInk& ink) {
  constexpr std::size_t kUsualInkBytes = 256 * 1024;  // so that there is seldom need to copy
  return WithInk(WriteBmp(picture, BmpDepth::k24Bits, kUsualInkBytes), ink);
}

std::string MonthDraftBytes(const MonthInk& ink) {
  return MonthFileBytes(Image(1, 1, OpaquePixel(0xFFFFFF)), ink);
}

std::optional<MonthInk> Rearranged(const MonthInk& ink, Month month, int first_weekday) {
  MonthInk arranged = NoInk(first_weekday);
  const auto former = GridOf(month, ink.first_weekday);
  const auto now = GridOf(month, first_weekday);
  for (std::size_t cell = 0; cell < former.size(); ++cell) {
    const auto place = std::ranges::find(now, former[cell]);
    if (place != now.end()) {
      Copy(ink.sheet, CellOfSheet(cell), arranged.sheet,
           CellOfSheet(static_cast<std::size_t>(place - now.begin())));
    } else if (HasInk(ink.sheet, CellOfSheet(cell))) {
      return std::nullopt;
    }
  }
  for (int column = 0; column < kWeekDays; ++column) {
    const int weekday = ink.first_weekday + column;
    Copy(ink.sheet, NameOfSheet(column), arranged.sheet,
         NameOfSheet((weekday - first_weekday + kWeekDays) % kWeekDays));
  }
  const Rect weeks{0, 0, kSheetWeeks, kSheetSize.height};
  Copy(ink.sheet, weeks, arranged.sheet, weeks);
  return arranged;
}

}  // namespace varnel
