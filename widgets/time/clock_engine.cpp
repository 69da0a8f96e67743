#include "widgets/time/clock_engine.h"

#include "base/number_text.h"

namespace varnel {

ClockSettings LoadClockSettings(const Settings& settings) {
  using namespace clock_settings;
  return {.modern = ReadFlag(settings, kModern),
          .seconds = ReadCheck(settings, kSeconds),
          .marker = ReadCheck(settings, kMarker),
          .hours_24 = ReadCheck(settings, kHours24),
          .system_date = ReadFlag(settings, kSystemDate),
          .custom_date = settings.Read(kCustomDate)};
}

void SaveClockSettings(Settings& settings, const ClockSettings& values) {
  using namespace clock_settings;
  // The order is fixed, and so is that the style is written once more after the dates.
  WriteFlag(settings, kModern, values.modern);
  WriteFlag(settings, kSystemDate, values.system_date);
  settings.Write(kCustomDate, values.custom_date);
  WriteFlag(settings, kModern, values.modern);
  WriteCheck(settings, kSeconds, values.seconds);
  WriteCheck(settings, kMarker, values.marker);
  WriteCheck(settings, kHours24, values.hours_24);
}

std::wstring HourText(const LocalTime& time, bool hours_24) {
  if (hours_24) return PaddedNumber(time.hour == 0 ? 12 : time.hour, 2);
  const int hour = time.hour > 12 ? time.hour - 12 : time.hour;
  return NumberText(hour == 0 ? 12 : hour);
}

ClockDisplay ReadDisplay(const ClockSettings& settings, const LocalTime& time,
                         const TimeFormatter& formatter) {
  ClockDisplay display;
  const std::wstring hour = HourText(time, settings.hours_24);
  if (settings.modern) {
    display.time = hour + formatter.Format(time, L":nn");
    display.seconds = formatter.Format(time, L"ss");
    display.marker = formatter.Format(time, L"ampm");
    display.seconds_shown = settings.seconds;
    display.marker_shown = settings.marker;
  } else {
    const std::wstring_view pattern = settings.seconds && settings.marker ? L":nn:ss ampm"
                                      : settings.seconds                  ? L":nn:ss"
                                      : settings.marker                   ? L":nn ampm"
                                                                          : L":nn";
    display.time = hour + formatter.Format(time, pattern);
  }
  display.date = formatter.Format(
      time, settings.system_date ? std::wstring_view(L"Long Date") : settings.custom_date);
  display.short_date = formatter.Format(time, L"Short Date");
  return display;
}

}  // namespace varnel
