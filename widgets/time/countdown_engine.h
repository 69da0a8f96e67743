// The countdown: an interval of hours, minutes and seconds, counted down a second with each tick.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/settings.h"

namespace varnel {

namespace countdown_settings {
inline constexpr std::wstring_view kSection = L"frmCDNwg\\Details";
inline constexpr Setting kHours{kSection, L"Timer-Interval-hrs", L"00"};
inline constexpr Setting kMinutes{kSection, L"Timer-Interval-mins", L"02"};
inline constexpr Setting kSeconds{kSection, L"Timer-Interval-secs", L"00"};
}  // namespace countdown_settings

inline constexpr std::wstring_view kCountdownEndText = L"Time Has Now Ended";
inline constexpr std::wstring_view kCountdownEndTitle = L"Stopwatch Timer";

enum class CountdownField { kHours, kMinutes, kSeconds };

enum class CountdownTick {
  kNothing,  // not counting
  kChanged,  // the display is one second less
  kEnded,    // the time is over: announce it, then call AcknowledgeEnd
};

class CountdownEngine {
 public:
  // Starts from the stored interval. `settings` must outlive the engine.
  explicit CountdownEngine(Settings& settings);

  // The user changed a field of the interval (txtSUBHRS, txtSUBMIN, txtSUBSECS) or of the display
  // (txtHRS, txtMIN, txtSECS) to `text`: the interval takes it over, is stored, and the display
  // shows the interval again, whether counting or not. Text that begins with no number counts as 0,
  // as does a negative one; beyond 999 it is 999. More than 59 minutes or seconds count as what
  // they are.
  void Edit(CountdownField field, std::wstring_view text);

  // lblStart: starts, pauses, resumes; nothing while the display is at zero.
  void PressStart();
  // lblStop: pauses while counting, otherwise sets the display back to the interval.
  void PressStop();

  // One tick of tmrTIMER. The display rests at zero for one tick before the end. From kEnded to
  // AcknowledgeEnd nothing ends a second time, ticks and buttons have no effect.
  CountdownTick Tick();
  // The end has been announced: everything is back as after a reset.
  void AcknowledgeEnd();

  // Whether tmrTIMER is enabled, every 1000 ms.
  bool counting() const { return state_ == State::kCounting; }
  // Whether there is anything for lblStart, for lblStop to do.
  bool can_start() const { return counting() || !display_.zero(); }
  bool can_stop() const { return state_ != State::kSet; }
  // Of the display, in seconds.
  int remaining() const;
  std::wstring_view start_caption() const;
  std::wstring_view stop_caption() const;
  // At least two digits each.
  std::wstring DisplayText(CountdownField field) const;
  std::wstring IntervalText(CountdownField field) const;

 private:
  enum class State { kSet, kCounting, kPaused, kEnding };
  struct Span {
    std::array<int, 3> fields{};  // by CountdownField, each 0 to 999
    int& operator[](CountdownField field) { return fields[static_cast<std::size_t>(field)]; }
    int operator[](CountdownField field) const { return fields[static_cast<std::size_t>(field)]; }
    bool zero() const { return fields == std::array<int, 3>{}; }
  };

  Settings& settings_;
  State state_ = State::kSet;
  Span interval_;
  Span display_;
};

}  // namespace varnel
