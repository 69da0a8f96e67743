#include "widgets/time/stopwatch_engine.h"

#include "base/number_text.h"
#include "widgets/time/button_captions.h"

namespace varnel {
namespace {

// Sixtieths of a second in a tenth: the fraction runs 00, 06, ... 54.
constexpr int kStep = 6;

std::wstring AfterTick(std::wstring_view elapsed) {
  const auto number = [](std::wstring_view part) { return WholeNumber(part).value_or(0); };
  const std::size_t colon = elapsed.find(L':');
  long long minutes = number(elapsed.substr(0, colon));
  long long seconds = number(elapsed.substr(colon + 1, 2));
  long long tenths = number(elapsed.substr(elapsed.size() - 2)) / kStep + 1;
  if (tenths == 10) {
    ++seconds;
    tenths = 0;
  }
  if (seconds == 60) {
    ++minutes;
    seconds = 0;
  }
  return PaddedNumber(minutes, 2) + L":" + PaddedNumber(seconds, 2) + L"." +
         PaddedNumber(tenths * kStep, 2);
}

}  // namespace

void StopwatchEngine::Tick() {
  if (!running()) return;
  elapsed_ = AfterTick(elapsed_);
  if (!lapse_) shown_ = elapsed_;
}

void StopwatchEngine::PressLeft() {
  if (running()) {
    state_ = State::kPaused;
    return;
  }
  state_ = State::kRunning;
  lapse_ = false;
}

void StopwatchEngine::PressRight() {
  if (running()) {
    lapse_ = true;
  } else {
    state_ = State::kReset;
    elapsed_ = L"00:00.00";
  }
  shown_ = elapsed_;
}

std::wstring_view StopwatchEngine::left_caption() const {
  switch (state_) {
    case State::kRunning:
      return button_captions::kPause;
    case State::kPaused:
      return button_captions::kResume;
    case State::kReset:
      break;
  }
  return button_captions::kStart;
}

std::wstring_view StopwatchEngine::right_caption() const {
  switch (state_) {
    case State::kRunning:
      return button_captions::kLapse;
    case State::kPaused:
      return button_captions::kReset;
    case State::kReset:
      break;
  }
  return button_captions::kStop;
}

}  // namespace varnel
