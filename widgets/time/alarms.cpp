#include "widgets/time/alarms.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

std::wstring TimeText(int hour, int minute, int second) {
  std::wstring text = L"00:00:00";
  const auto put = [&text](std::size_t at, int number) {
    text[at] = static_cast<wchar_t>(L'0' + number / 10);
    text[at + 1] = static_cast<wchar_t>(L'0' + number % 10);
  };
  put(0, hour);
  put(3, minute);
  put(6, second);
  return text;
}

// Takes one or two digits from the front of `text`.
std::optional<int> TakeNumber(std::wstring_view& text) {
  int value = 0;
  std::size_t digits = 0;
  while (digits < 2 && digits < text.size() && IsDigit(text[digits])) {
    value = value * 10 + static_cast<int>(text[digits++] - L'0');
  }
  text.remove_prefix(digits);
  return digits == 0 ? std::nullopt : std::optional(value);
}

// The hour of the day meant by `hour` and what stands after the time; nothing when it means none.
std::optional<int> HourOfDay(int hour, std::wstring_view marker) {
  const bool am = EqualsIgnoreCase(marker, L"am") || EqualsIgnoreCase(marker, L"a");
  const bool pm = EqualsIgnoreCase(marker, L"pm") || EqualsIgnoreCase(marker, L"p");
  if (!am && !pm && !marker.empty()) return std::nullopt;
  if (hour > (am ? 12 : 23)) return std::nullopt;
  if (am && hour == 12) return 0;
  return pm && hour < 12 ? hour + 12 : hour;
}

// `text`, which has no outer blanks, as a time of day.
std::optional<std::wstring> TimeOfDay(std::wstring_view text) {
  int numbers[3] = {};  // hour, minute, second
  int count = 0;
  const std::size_t first = text.find_first_of(L":.");
  const wchar_t separator = first == std::wstring_view::npos ? L':' : text[first];
  for (bool more = true; more && count < 3; ++count) {
    const auto number = TakeNumber(text);
    if (!number) return std::nullopt;
    numbers[count] = *number;
    more = count < 2 && text.starts_with(separator);
    if (more) text.remove_prefix(1);
  }
  const auto hour = HourOfDay(numbers[0], Trim(text));
  const bool hour_alone = count == 1 && text.empty();
  if (!hour || hour_alone || numbers[1] > 59 || numbers[2] > 59) return std::nullopt;
  return TimeText(*hour, numbers[1], numbers[2]);
}

std::wstring PresetName(std::wstring_view name, int preset) {
  return std::wstring(name) + NumberText(preset);
}

}  // namespace

AlarmPresets LoadAlarmPresets(const Settings& settings) {
  using namespace alarm_settings;
  AlarmPresets presets;
  for (int i = 0; i < kAlarmPresets; ++i) {
    const std::wstring use = settings.Read(kSection, PresetName(kPresetUse, i), L"");
    const AlarmPreset unsaved;
    // An empty time reads like a missing one; that the switch was saved tells them apart.
    const std::wstring_view no_time = use.empty() ? std::wstring_view(unsaved.time) : L"";
    presets[i] = {.use = LeadingNumber(use) == 1,
                  .time = settings.Read(kSection, PresetName(kPresetTime, i), no_time),
                  .message = ReadLongText(settings, kSection, PresetName(kPresetMessage, i))};
  }
  return presets;
}

void SaveAlarmPresets(Settings& settings, const AlarmPresets& presets) {
  using namespace alarm_settings;
  for (int i = 0; i < kAlarmPresets; ++i) {
    settings.Write(kSection, PresetName(kPresetUse, i), presets[i].use ? L"1" : L"0");
    settings.Write(kSection, PresetName(kPresetTime, i), presets[i].time);
    WriteLongText(settings, kSection, PresetName(kPresetMessage, i), presets[i].message);
  }
}

AlarmSound LoadAlarmSound(const Settings& settings) {
  return {.bell = ReadFlag(settings, alarm_settings::kType),
          .file = settings.Read(alarm_settings::kOtherSound)};
}

void SaveAlarmSound(Settings& settings, const AlarmSound& sound) {
  WriteFlag(settings, alarm_settings::kType, sound.bell);
  settings.Write(alarm_settings::kOtherSound, sound.file);
}

std::wstring AlarmTimeText(std::wstring_view text) {
  std::wstring trimmed = Trim(text);
  return TimeOfDay(trimmed).value_or(std::move(trimmed));
}

std::vector<AlarmRing> AlarmRefresh(const AlarmPresets& presets, const LocalTime& time) {
  const std::wstring now = TimeText(time.hour, time.minute, time.second);
  std::vector<AlarmRing> rings;
  for (const AlarmPreset& preset : presets) {
    if (!preset.use) continue;
    const std::wstring set = AlarmTimeText(preset.time);
    if (set.empty()) break;
    if (set.find(now) != std::wstring::npos) rings.push_back({preset.message, set});
  }
  return rings;
}

std::optional<AlarmRing> NextAlarm(const AlarmPresets& presets, const LocalTime& time) {
  const std::wstring now = TimeText(time.hour, time.minute, time.second);
  // What is over for today comes after all that is not.
  const auto turn = [&now](const std::wstring& at) { return std::pair(at <= now, at); };
  std::optional<AlarmRing> next;
  for (const AlarmPreset& preset : presets) {
    if (!preset.use) continue;
    const std::wstring set = AlarmTimeText(preset.time);
    if (set.empty()) break;
    for (std::size_t i = 0; i + now.size() <= set.size(); ++i) {
      const std::wstring at = set.substr(i, now.size());
      if (TimeOfDay(at) != at || (next && turn(next->time) <= turn(at))) continue;
      next = {preset.message, at};
    }
  }
  return next;
}

bool IsAlarmTime(std::wstring_view text) {
  return TimeOfDay(Trim(text)).has_value();
}

bool UnreadAlarms::Add(const AlarmRing& ring) {
  if (std::ranges::find(rings_, ring) != rings_.end()) return false;
  rings_.insert(rings_.begin(), ring);
  return true;
}

std::wstring UnreadAlarms::EarlierText() const {
  std::wstring text;
  for (std::size_t i = 1; i < rings_.size(); ++i) {
    if (i > 1) text += L"\r\n";
    text += rings_[i].time + L"  " + rings_[i].message;
  }
  return text;
}

std::vector<std::wstring> QuarterHours() {
  std::vector<std::wstring> times;
  for (int minute = 0; minute < 24 * 60; minute += 15) {
    times.push_back(TimeText(minute / 60, minute % 60, 0));
  }
  return times;
}

}  // namespace varnel
