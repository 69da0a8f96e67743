#include <gtest/gtest.h>

#include <ctime>

#include "base/path.h"
#include "tests/support/cases.h"
#include "tests/support/memory_files.h"
#include "widgets/boards/board_names.h"
#include "widgets/boards/holidays.h"
#include "widgets/boards/month.h"
#include "widgets/boards/pens.h"

namespace varnel {
namespace {

class Words : public TimeFormatter {
 public:
  std::wstring Format(const LocalTime& time, std::wstring_view) const override {
    return time.month == 9 ? L"septembre" : time.month == 5 ? L"" : L"mois";
  }
};

TEST(BoardPens, AreThoseOfTheTable) {
  EXPECT_EQ(PenAt(5).colour, 0xFF7700);  // 0, 119, 255
  EXPECT_EQ(PenAt(2).name, L"ORANGE");
  EXPECT_EQ(PenAt(9).name, L"ERASE");
  EXPECT_EQ(PenAt(7).colour, kWhite);
  EXPECT_EQ(PenAt(-3).name, L"BLACK");
  const test::Cases<int, int, int> widths = {
      {1, 2, 1}, {2, 6, 1}, {6, 20, 2}, {20, 20, 6}, {4, 6, 2}};
  for (const auto& [width, more, less] : widths) {
    EXPECT_EQ(NextPenWidth(width, 1), more) << width;
    EXPECT_EQ(NextPenWidth(width, -1), less) << width;
  }
  EXPECT_EQ(SanePenWidth(20), 20);
  EXPECT_EQ(SanePenWidth(4'000'000'001), 2);
}

TEST(BoardNames, SayWhenTheBoardWasFirstSaved) {
  EXPECT_EQ(NewBoardName({2024, 1, 31, 3, 15, 45, 2}), L"pic_20240131_154502");
}

TEST(DocumentFolder, IsNeverNestedInItself) {
  const test::Cases<std::wstring, std::wstring> cases = {
      {L"C:\\My", L"C:\\My\\wboard\\"},
      {L"C:\\", L"C:\\wboard\\"},
      {L"C:\\wboard", L"C:\\wboard\\"},
      {L"C:\\WBoard\\", L"C:\\WBoard\\"},
      {L"C:\\mywboard", L"C:\\mywboard\\wboard\\"},
      {L"C:\\wboard\\wboard\\x\\wboard\\", L"C:\\wboard\\x\\wboard\\"},
      {L"\\\\server\\wboard", L"\\\\server\\wboard\\"},
  };
  for (const auto& [chosen, folder] : cases) {
    EXPECT_EQ(DocumentFolderIn(chosen, L"wboard"), folder);
  }
}

TEST(CalendarMonth, MovesWithinTheYearsThatThereAre) {
  EXPECT_EQ(MovedBy({2024, 1}, 12), (Month{2025, 1}));
  EXPECT_EQ(MovedBy({2025, 1}, -1), (Month{2024, 12}));
  EXPECT_EQ(MovedBy({2024, 6}, -10'000), kFirstMonth);
  EXPECT_EQ(MovedBy({2024, 6}, 1LL << 60), kLastMonth);
  for (const int offset : {-500, -13, -1, 0, 1, 11, 12, 4000}) {
    EXPECT_EQ(MonthsBetween({2024, 6}, MovedBy({2024, 6}, offset)), offset);
  }
}

std::tm TimeOf(const Date& date, int days_later = 0) {
  std::tm time{};
  time.tm_year = date.year - 1900;
  time.tm_mon = date.month - 1;
  time.tm_mday = date.day + days_later;
  time.tm_hour = 12;
  std::mktime(&time);
  return time;
}

// Against the C library's own calendar.
TEST(CalendarMonth, GridsAndWeekNumbersAgreeWithTheLibrary) {
  for (int year = 1995; year < 2036; ++year) {
    for (int month = 1; month <= 12; ++month) {
      for (const int first_weekday : {0, 1, 6}) {
        const auto grid = GridOf({year, month}, first_weekday);
        EXPECT_EQ(WeekdayOf(grid[0]), first_weekday);
        EXPECT_LE(grid[0], (Date{year, month, 1}));
        EXPECT_GE(grid[6], (Date{year, month, 1}));
        EXPECT_GE(grid[41], (Date{year, month, DaysIn({year, month})}));
      }
      for (const Date& date : GridOf({year, month}, 1)) {
        std::tm time = TimeOf(date);
        ASSERT_EQ(time.tm_wday, WeekdayOf(date));
        // A week belongs to the year of its Thursday.
        const std::tm thursday = TimeOf(date, 3 - (time.tm_wday + 6) % 7);
        EXPECT_EQ(WeekNumber(date, 1, FirstWeek::kFourDays), thursday.tm_yday / 7 + 1);
        char week[8];
        std::strftime(week, sizeof week, "%W", &time);  // 00 before the first whole week
        const int whole = std::atoi(week);
        if (whole > 0) EXPECT_EQ(WeekNumber(date, 1, FirstWeek::kWhole), whole);
        if (whole == 0) EXPECT_GE(WeekNumber(date, 1, FirstWeek::kWhole), 52);
      }
    }
  }
  const test::Cases<Date, int, FirstWeek, int> cases = {
      {{2026, 1, 1}, 0, FirstWeek::kWithNewYear, 1},
      {{2026, 1, 4}, 0, FirstWeek::kWithNewYear, 2},
      {{2025, 12, 31}, 0, FirstWeek::kWithNewYear, 53},
      {{2026, 1, 1}, 6, FirstWeek::kFourDays, 52},
      {{2028, 12, 31}, 0, FirstWeek::kWithNewYear, 54}};
  for (const auto& [date, first_weekday, rule, week] : cases) {
    EXPECT_EQ(WeekNumber(date, first_weekday, rule), week) << date.year << ' ' << date.month;
  }
  for (const Month edge : {kFirstMonth, kLastMonth}) EXPECT_EQ(GridOf(edge, 1)[41].day > 0, true);
}

TEST(CalendarMonth, FileIsFoundUnderItsEnglishNameToo) {
  test::MemoryFiles files;
  const auto path = [&](int month) { return MonthFile(files, L"C:\\c\\", {2015, month}, Words()); };
  EXPECT_EQ(path(9), L"C:\\c\\pic_septembre 2015.bmp");
  EXPECT_EQ(path(5), L"C:\\c\\pic_May 2015.bmp");
  files.files[L"C:\\c\\pic_September 2015.bmp"] = "x";
  EXPECT_EQ(path(9), L"C:\\c\\pic_September 2015.bmp");
  files.files[L"C:\\c\\pic_septembre 2015.bmp"] = "y";
  EXPECT_EQ(path(9), L"C:\\c\\pic_septembre 2015.bmp");
  EXPECT_EQ(SecondsToMidnight({2026, 1, 1, 4, 23, 59, 59}), 1);
  EXPECT_EQ(SecondsToMidnight({2026, 1, 1, 4, 0, 0, 0}), 86'400);
}

TEST(Holidays, ReadWhatIsWhole) {
  const Holidays days(
      "\xEF\xBB\xBF# comment\r\n2026-12-25 Christmas Day\r\n12-25 every Christmas\n"
      "1-1\tNew Year \n2-29 Leap\n 3-3 after a blank\n2026-02-29 none\n13-1 none\n0-1 none\n"
      "5-5\n5-6   \n5-7x\n20-12-25 short year\n2026-5-8- none\n6-1 one\n6-1 other\n1500-1-1 early\n"
      "7-4 last \xC3\xA9");
  EXPECT_EQ(days.count(), 7U);
  const test::Cases<Date, std::wstring> cases = {
      {{2026, 12, 25}, L"Christmas Day"}, {{2025, 12, 25}, L"every Christmas"},
      {{1601, 1, 1}, L"New Year"},        {{2028, 2, 29}, L"Leap"},
      {{2026, 3, 3}, L"after a blank"},   {{2026, 6, 1}, L"other"},
      {{2026, 7, 4}, L"last \u00E9"},     {{2026, 5, 5}, L""}};
  for (const auto& [date, name] : cases) EXPECT_EQ(days.NameOf(date), name) << date.month;
  EXPECT_EQ(Holidays("1-1 " + std::string(500, 'x')).NameOf({1, 1, 1}).size(), 100U);
}

}  // namespace
}  // namespace varnel
