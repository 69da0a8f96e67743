#include "tools/shots/sample_month.h"

#include <cmath>
#include <vector>

#include "base/canvas.h"
#include "base/number_text.h"
#include "base/text.h"
#include "tests/rig/files.h"
#include "widgets/boards/board_folders.h"
#include "widgets/boards/board_names.h"
#include "widgets/boards/calendar_layout.h"
#include "widgets/boards/calendar_sheet.h"
#include "widgets/boards/pens.h"
#include "win/system/local_time.h"
#include "win/system/user_week.h"

namespace varnel::shots {
namespace {

// A place on the sheet, in cells from the upper left day.
PointF At(double column, double row) {
  return {kSheetWeeks + column * kSheetCell.width, kSheetNames + row * kSheetCell.height};
}

void Draw(Canvas& sheet, int pen, const std::vector<PointF>& points) {
  sheet.BeginStroke(OpaquePixel(PenAt(pen).colour), {10, 10});
  for (std::size_t i = 1; i < points.size(); ++i) sheet.DrawSegment(points[i - 1], points[i]);
  sheet.EndStroke();
}

}  // namespace

void PlantMonth(const std::wstring& program_folder) {
  Canvas sheet(Canvas::kClearSheet);
  sheet.Grow(kSheetSize);
  std::vector<PointF> journey, ring;
  for (int i = 0; i <= 60; ++i) {
    journey.push_back(At(0.2 + i * 0.06, 3.75 + 0.06 * std::sin(i * 0.2)));
    const double turn = i * 0.11;
    ring.push_back(At(2.55 + 0.3 * std::cos(turn), 2.6 + (0.24 + 0.001 * i) * std::sin(turn)));
  }
  Draw(sheet, 2, journey);
  Draw(sheet, 1, ring);
  Draw(sheet, 5, {At(3.2, 1.7), At(3.35, 1.85), At(3.7, 1.4)});
  const LocalTime now = SystemClock().Now();
  const std::wstring folder = program_folder + std::wstring(kCalendarFolder.below_program);
  rig::WriteBytes(folder + L"pic_" + EnglishMonthTitle(MonthOf(now)) + std::wstring(kBoardEnding),
                  MonthDraftBytes({sheet.pixels(), UserFirstWeekday()}));
  const std::wstring month = PaddedNumber(now.month, 2);
  rig::WriteBytes(folder + L"holidays.txt",
                  Utf8FromWide(month + L"-06 Rent day\n" + month + L"-11 Saint Martin\n"));
}

}  // namespace varnel::shots
