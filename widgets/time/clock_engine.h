// What the clock shows: its settings and the texts of its labels at a moment.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/settings.h"
#include "base/wall_clock.h"

namespace varnel {

namespace clock_settings {
inline constexpr std::wstring_view kSection = L"frmCLKpr\\Details";
inline constexpr Setting kModern{kSection, L"Style-modern", L"1"};
inline constexpr Setting kSeconds{kSection, L"Style-secs-show", L"1"};
inline constexpr Setting kMarker{kSection, L"Style-ampm-show", L"1"};
inline constexpr Setting kHours24{kSection, L"Style-24Hour", L"1"};
inline constexpr Setting kSystemDate{kSection, L"date-default", L"1"};
inline constexpr Setting kCustomDate{kSection, L"date-default-custom", L"dddd, d mmmm"};
}  // namespace clock_settings

struct ClockSettings {
  bool modern = true;  // seconds and marker beside the time; otherwise all in one line
  bool seconds = true;
  bool marker = true;  // AM or PM
  bool hours_24 = true;
  bool system_date = true;  // the user's long date; otherwise `custom_date`
  std::wstring custom_date{clock_settings::kCustomDate.fallback};  // a pattern of TimeFormatter
  bool operator==(const ClockSettings&) const = default;
};

// Absent or unreadable values read as their fallbacks.
ClockSettings LoadClockSettings(const Settings& settings);
void SaveClockSettings(Settings& settings, const ClockSettings& values);

// The hour as the clock writes it. The hour after midnight is 12 in both ways of counting: "12",
// "01" to "23" in 24 hours, "12", "1" to "11" twice otherwise.
std::wstring HourText(const LocalTime& time, bool hours_24);

// The texts of the clock's labels. An empty `seconds` or `marker` goes with the classic style.
struct ClockDisplay {
  std::wstring time;     // lblPANECLOCK
  std::wstring seconds;  // lblSECS
  std::wstring marker;   // lblSTYLE
  std::wstring date;     // lbl7Sept2010
  bool seconds_shown = false;
  bool marker_shown = false;
  std::vector<std::wstring> shorter_dates{};  // for where `date` has no room, the longest first
  bool operator==(const ClockDisplay&) const = default;
};

// What a date pattern becomes where it is too long, one step after the other: weekday and month
// abbreviated ("dddd" and "mmmm" as "ddd" and "mmm"), then no weekday, then no year, each with the
// separators that it needs no more. Steps that change nothing are left out; what is quoted stays.
std::vector<std::wstring> ShorterPatterns(std::wstring_view pattern);

// The shorter dates of the system's date are its figures alone, those of a pattern come from its
// shorter forms. A date pattern that means nothing shows whatever `formatter` makes of it.
ClockDisplay ReadDisplay(const ClockSettings& settings, const LocalTime& time,
                         const TimeFormatter& formatter);

}  // namespace varnel
