#include "widgets/boards/month.h"

#include <algorithm>
#include <chrono>

#include "base/number_text.h"

namespace varnel {
namespace {

namespace chrono = std::chrono;

chrono::sys_days DaysOf(const Date& date) {
  return chrono::year{date.year} / date.month / date.day;
}

Date DateOf(chrono::sys_days days) {
  const chrono::year_month_day date{days};
  return {static_cast<int>(date.year()), static_cast<int>(unsigned{date.month()}),
          static_cast<int>(unsigned{date.day()})};
}

long long MonthCount(Month month) {
  return 12LL * month.year + month.month - 1;
}

int DaysAfter(int weekday, int first_weekday) {
  return (weekday - first_weekday + kWeekDays) % kWeekDays;
}

int SaneWeekday(int weekday) {
  return weekday < 0 || weekday >= kWeekDays ? 0 : weekday;
}

// The day on which the first week of a year begins.
chrono::sys_days FirstWeekOf(int year, int first_weekday, FirstWeek rule) {
  const Date new_year{year, 1, 1};
  const int into_week = DaysAfter(WeekdayOf(new_year), first_weekday);
  const bool counts = rule == FirstWeek::kWithNewYear || into_week == 0 ||
                      (rule == FirstWeek::kFourDays && into_week <= 3);
  return DaysOf(new_year) + chrono::days{counts ? -into_week : kWeekDays - into_week};
}

}  // namespace

Month MonthOf(const LocalTime& time) {
  return {time.year, time.month};
}

Date DateOf(const LocalTime& time) {
  return {time.year, time.month, time.day};
}

Month MovedBy(Month month, long long months) {
  constexpr long long kFarthest = 1'000'000;
  const long long moved = std::clamp(MonthCount(month) + std::clamp(months, -kFarthest, kFarthest),
                                     MonthCount(kFirstMonth), MonthCount(kLastMonth));
  return {static_cast<int>(moved / 12), static_cast<int>(moved % 12) + 1};
}

int MonthsBetween(Month from, Month to) {
  return static_cast<int>(MonthCount(to) - MonthCount(from));
}

int DaysIn(Month month) {
  const auto last = chrono::year{month.year} / month.month / chrono::last;
  return static_cast<int>(unsigned{last.day()});
}

int WeekdayOf(const Date& date) {
  return static_cast<int>(chrono::weekday{DaysOf(date)}.c_encoding());
}

std::array<Date, kGridDays> GridOf(Month month, int first_weekday) {
  const Date first{month.year, month.month, 1};
  chrono::sys_days day =
      DaysOf(first) - chrono::days{DaysAfter(WeekdayOf(first), SaneWeekday(first_weekday))};
  std::array<Date, kGridDays> grid;
  for (Date& date : grid) {
    date = DateOf(day);
    day += chrono::days{1};
  }
  return grid;
}

int WeekNumber(const Date& date, int first_weekday, FirstWeek rule) {
  const int weekday = SaneWeekday(first_weekday);
  const chrono::sys_days day = DaysOf(date);
  chrono::sys_days first = FirstWeekOf(date.year, weekday, rule);
  if (day < first) {
    first = FirstWeekOf(date.year - 1, weekday, rule);
  } else if (rule == FirstWeek::kFourDays) {
    if (const auto next = FirstWeekOf(date.year + 1, weekday, rule); day >= next) first = next;
  }
  return static_cast<int>((day - first).count() / kWeekDays) + 1;
}

std::wstring_view EnglishMonthName(int month) {
  constexpr std::array<std::wstring_view, 12> kNames = {
      L"January", L"February", L"March",     L"April",   L"May",      L"June",
      L"July",    L"August",   L"September", L"October", L"November", L"December"};
  return month < 1 || month > 12 ? std::wstring_view()
                                 : kNames[static_cast<std::size_t>(month - 1)];
}

std::wstring MonthTitle(Month month, const TimeFormatter& words) {
  LocalTime first;
  first.year = month.year;
  first.month = month.month;
  first.weekday = WeekdayOf({month.year, month.month, 1});
  const std::wstring name = words.Format(first, L"mmmm");
  if (name.empty()) return EnglishMonthTitle(month);
  return name + L" " + PaddedNumber(month.year, 4);
}

std::wstring EnglishMonthTitle(Month month) {
  return std::wstring(EnglishMonthName(month.month)) + L" " + PaddedNumber(month.year, 4);
}

std::wstring MonthFile(const FileStore& files, const std::wstring& folder, Month month,
                       const TimeFormatter& words) {
  const auto path = [&](const std::wstring& title) { return folder + L"pic_" + title + L".bmp"; };
  const std::wstring usual = path(MonthTitle(month, words));
  const std::wstring english = path(EnglishMonthTitle(month));
  return !files.FileExists(usual) && files.FileExists(english) ? english : usual;
}

int SecondsToMidnight(const LocalTime& now) {
  const int passed = (now.hour * 60 + now.minute) * 60 + now.second;
  return std::clamp(24 * 60 * 60 - passed, 1, 24 * 60 * 60);
}

}  // namespace varnel
