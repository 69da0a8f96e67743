// The time of day and its texts, given to engines so that tests can choose both.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

// A moment of the user's local calendar and clock.
struct LocalTime {
  int year = 1970;
  int month = 1;    // 1 to 12
  int day = 1;      // 1 to 31
  int weekday = 4;  // 0 Sunday to 6 Saturday
  int hour = 0;     // 0 to 23
  int minute = 0;
  int second = 0;
  bool operator==(const LocalTime&) const = default;
};

class WallClock {
 public:
  virtual ~WallClock() = default;
  virtual LocalTime Now() const = 0;
};

// The platform's date and time pattern language: "HH" two-digit hour, "nn" minutes, "ss" seconds,
// "ampm" the locale's marker, "d" day, "dddd" weekday name, "mmmm" month name, "Long Date" the
// user's long date form.
class TimeFormatter {
 public:
  virtual ~TimeFormatter() = default;
  // Gives whatever the facility makes of a pattern it does not know; empty when it makes nothing.
  virtual std::wstring Format(const LocalTime& time, std::wstring_view pattern) const = 0;
};

}  // namespace varnel
