// Months of the calendar, their days in a grid of weeks, and the numbers of weeks.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/file_store.h"
#include "base/wall_clock.h"

namespace varnel {

// A month of the Gregorian calendar, from January 1601 to December 9999, the range that the
// platform's calendar knows.
struct Month {
  int year = 1970;
  int month = 1;  // 1 to 12
  bool operator==(const Month&) const = default;
};

inline constexpr Month kFirstMonth{1601, 1};
inline constexpr Month kLastMonth{9999, 12};

// A day as it is shown in a month's grid; days before the first month and after the last one are
// shown too.
struct Date {
  int year = 1970;
  int month = 1;
  int day = 1;
  bool operator==(const Date&) const = default;
  auto operator<=>(const Date&) const = default;
};

Month MonthOf(const LocalTime& time);
Date DateOf(const LocalTime& time);

// `month` moved by whole months, kept within the first and the last.
Month MovedBy(Month month, long long months);
// The months from `from` to `to`: the month offset when `from` is today's.
int MonthsBetween(Month from, Month to);

int DaysIn(Month month);
int WeekdayOf(const Date& date);  // 0 Sunday to 6 Saturday

inline constexpr int kGridWeeks = 6;
inline constexpr int kWeekDays = 7;
inline constexpr int kGridDays = kGridWeeks * kWeekDays;

// Six whole weeks, whatever the month, from the week that holds its first day.
// `first_weekday` 0 Sunday to 6 Saturday; anything else counts as 0.
std::array<Date, kGridDays> GridOf(Month month, int first_weekday);

// How weeks of a year are counted. The first is the one with 1 January, the first whole one, or the
// first with at least four days in the year (ISO 8601 with weeks from Monday).
enum class FirstWeek { kWithNewYear, kWhole, kFourDays };

// The number of the week that holds `date`, 1 to 54, for weeks that begin on `first_weekday`. Days
// before the first week belong to the last one of the year before; with kFourDays the last days of
// December may belong to week 1.
int WeekNumber(const Date& date, int first_weekday, FirstWeek rule);

// Words for months in the user's language; the platform's come through TimeFormatter.
std::wstring_view EnglishMonthName(int month);  // 1 to 12, empty otherwise

// "September 2015", as it is shown and as files are named.
std::wstring MonthTitle(Month month, const TimeFormatter& words);
std::wstring EnglishMonthTitle(Month month);
// The month's file in `folder` (which ends in "\"): "pic_September 2015.bmp". One that was saved
// while the user had English words is found under those when there is none under today's.
std::wstring MonthFile(const FileStore& files, const std::wstring& folder, Month month,
                       const TimeFormatter& words);

// Seconds from `now` until the mark of today has to move, at least 1.
int SecondsToMidnight(const LocalTime& now);

}  // namespace varnel
