// The stopwatch: minutes, seconds and sixtieths counted in the shown text itself, a tenth of a
// second with each tick.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

class StopwatchEngine {
 public:
  // One tick of tmrSTOPWATCH; without effect while not running. Ticks are the only time base.
  void Tick();
  // lblStartfrmSTWwg: starts, pauses, resumes.
  void PressLeft();
  // lblStopfrmSTWwg: holds the shown time of this moment while running, otherwise resets.
  void PressRight();

  // Whether tmrSTOPWATCH is enabled.
  bool running() const { return state_ == State::kRunning; }
  // Whether there is anything for lblStopfrmSTWwg to do.
  bool begun() const { return state_ != State::kReset; }
  // The shown time is that of a lapse and not the count's.
  bool lapse_held() const { return lapse_ && state_ != State::kReset; }
  std::wstring_view left_caption() const;
  std::wstring_view right_caption() const;
  // What the panel shows, "00:00.00" at first; stands still after a lapse although the count runs.
  const std::wstring& shown() const { return shown_; }

 private:
  enum class State { kReset, kRunning, kPaused };

  State state_ = State::kReset;
  bool lapse_ = false;
  std::wstring elapsed_ = L"00:00.00";
  std::wstring shown_ = elapsed_;
};

}  // namespace varnel
