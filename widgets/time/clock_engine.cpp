#include "widgets/time/clock_engine.h"

#include <algorithm>
#include <initializer_list>

#include "base/number_text.h"

namespace varnel {
namespace {

bool IsLetter(wchar_t unit) {
  return (unit >= L'a' && unit <= L'z') || (unit >= L'A' && unit <= L'Z');
}

// A date pattern in parts: runs of one letter, and what stands between them, with what is quoted.
std::vector<std::wstring> PartsOf(std::wstring_view pattern) {
  std::vector<std::wstring> parts;
  bool quoted = false;
  bool escaped = false;
  for (const wchar_t unit : pattern) {
    const bool letter = !quoted && !escaped && IsLetter(unit);
    const bool joins =
        !parts.empty() && (letter ? parts.back().back() == unit : !IsLetter(parts.back().front()));
    if (unit == L'"' && !escaped) quoted = !quoted;
    escaped = !escaped && unit == L'\\';
    if (joins) {
      parts.back().push_back(unit);
    } else {
      parts.emplace_back(1, unit);
    }
  }
  return parts;
}

// Without the parts of those names, and without the separator behind each, or before the last one.
void Drop(std::vector<std::wstring>& parts, std::initializer_list<std::wstring_view> names) {
  for (std::size_t at = 0; at < parts.size();) {
    if (std::ranges::find(names, parts[at]) == names.end()) {
      ++at;
      continue;
    }
    const bool last = at + 1 == parts.size();
    const bool separated = !last && !IsLetter(parts[at + 1].front());
    const std::size_t first = last && at > 0 && !IsLetter(parts[at - 1].front()) ? at - 1 : at;
    const auto begin = parts.begin() + static_cast<std::ptrdiff_t>(first);
    parts.erase(begin, parts.begin() + static_cast<std::ptrdiff_t>(at + (separated ? 2 : 1)));
    at = first;
  }
}

}  // namespace

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

std::vector<std::wstring> ShorterPatterns(std::wstring_view pattern) {
  std::vector<std::wstring> shorter;
  std::vector<std::wstring> parts = PartsOf(pattern);
  std::wstring before(pattern);
  const auto keep = [&] {
    std::wstring now;
    for (const std::wstring& part : parts) now += part;
    if (now != before && !now.empty()) shorter.push_back(now);
    before = now;
  };
  for (std::wstring& part : parts) {
    if (part == L"dddd" || part == L"mmmm") part.pop_back();
  }
  keep();
  Drop(parts, {L"ddd"});
  keep();
  Drop(parts, {L"yyyy", L"yy"});
  keep();
  return shorter;
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
  if (settings.system_date) {
    display.shorter_dates = {formatter.Format(time, L"Short Date")};
  } else {
    for (const std::wstring& pattern : ShorterPatterns(settings.custom_date)) {
      display.shorter_dates.push_back(formatter.Format(time, pattern));
    }
  }
  return display;
}

}  // namespace varnel
