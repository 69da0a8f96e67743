// The six alarms: what is set, what is stored, and what rings at a moment.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/settings.h"
#include "base/wall_clock.h"

namespace varnel {

inline constexpr int kAlarmPresets = 6;

namespace alarm_settings {
inline constexpr std::wstring_view kSection = L"frmCLKas\\Details";
// The number of the preset, 0 to 5, follows each of these three names.
inline constexpr std::wstring_view kPresetUse = L"Alarm Preset Use_";
inline constexpr std::wstring_view kPresetTime = L"Alarm Preset Time_";
inline constexpr std::wstring_view kPresetMessage = L"Alarm Preset Message_";
inline constexpr Setting kType{kSection, L"Alarm Type", L"True"};
inline constexpr Setting kOtherSound{kSection, L"Alarm Other Sound", L""};
}  // namespace alarm_settings

struct AlarmPreset {
  bool use = false;                 // chkSET
  std::wstring time = L"00:00:00";  // cboTIME, as the user wrote it
  std::wstring message;             // txtMESSAGE
  bool operator==(const AlarmPreset&) const = default;
};

using AlarmPresets = std::array<AlarmPreset, kAlarmPresets>;

// Messages may be as long as WriteLongText can store.
//
// A preset that was never saved is as a new AlarmPreset. A time that was saved empty stays empty.
AlarmPresets LoadAlarmPresets(const Settings& settings);
void SaveAlarmPresets(Settings& settings, const AlarmPresets& presets);

// What an alarm plays.
struct AlarmSound {
  bool bell = true;   // the built-in bell; otherwise `file`
  std::wstring file;  // a path, or empty: then nothing is heard
  bool operator==(const AlarmSound&) const = default;
};

AlarmSound LoadAlarmSound(const Settings& settings);
void SaveAlarmSound(Settings& settings, const AlarmSound& sound);

// A preset's time as "hh:nn:ss". Hours, minutes and, if wanted, seconds of one or two digits are
// understood, separated by ":" or ".", with "am" or "pm" (any case, also "a" or "p") after them or
// without; an hour alone needs one of these. Other texts come back without their outer blanks.
std::wstring AlarmTimeText(std::wstring_view text);

// Whether the text is understood as one time of day.
bool IsAlarmTime(std::wstring_view text);

struct AlarmRing {
  std::wstring message;  // lablMESSAGE
  std::wstring time;     // lablALARMC
  bool operator==(const AlarmRing&) const = default;
};

// What rings at `time`, in the order of the presets, so that the last one is what the one popup
// shows in the end. A preset rings when its time text holds the time of day; one that is in use
// with an empty time hides all that follow. Asked again in the same second, the answer is the same.
std::vector<AlarmRing> AlarmRefresh(const AlarmPresets& presets, const LocalTime& time);

// The first that will ring after `time`, today or else tomorrow; of several at one time the first
// preset. Its time is the one of day at which it rings, "hh:nn:ss".
std::optional<AlarmRing> NextAlarm(const AlarmPresets& presets, const LocalTime& time);

// What has rung and was not put away yet, so that an alarm stays readable when the next one comes.
class UnreadAlarms {
 public:
  // Puts a ring before all others. False when it is there already, for it rings on every tick of
  // its second; it stays where it is.
  bool Add(const AlarmRing& ring);
  void Clear() { rings_.clear(); }
  const AlarmRing& newest() const { return rings_.front(); }  // not while empty
  // The others, the later first, one a line (CR LF between them): the time, two blanks, the
  // message.
  std::wstring EarlierText() const;

 private:
  std::vector<AlarmRing> rings_;  // the newest first
};

// The 96 quarter hours from "00:00:00" to "23:45:00".
std::vector<std::wstring> QuarterHours();

}  // namespace varnel
