// The days that a plain text file in the calendar folder names.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "widgets/boards/month.h"

namespace varnel {

inline constexpr std::wstring_view kHolidayFile = L"holidays.txt";
inline constexpr std::size_t kMostHolidayBytes = 1U << 20;

// One day a line: "2026-12-25 Christmas Day", or "12-25 Christmas Day" for every year; months and
// days of one or two digits. Blank lines and those that begin with "#" say nothing; a line that
// names no day, or a day that does not exist, is skipped. Of several names of one day the last
// counts, and one of a single year before one of all.
class Holidays {
 public:
  static constexpr std::size_t kLongestName = 100;  // in units; the rest is cut off
  static constexpr std::size_t kMostDays = 10'000;

  Holidays() = default;
  // `file`: UTF-8, with a mark or without, lines ended by LF or CR LF.
  explicit Holidays(std::string_view file);

  // Empty when the day has none.
  std::wstring NameOf(const Date& date) const;
  std::size_t count() const { return days_.size(); }

 private:
  void ReadLine(std::wstring_view line);

  std::map<Date, std::wstring> days_;  // year 0: every year
};

}  // namespace varnel
