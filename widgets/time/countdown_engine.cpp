#include "widgets/time/countdown_engine.h"

#include <algorithm>

#include "base/number_text.h"
#include "widgets/time/button_captions.h"

namespace varnel {
namespace {

constexpr int kMostInField = 999;

constexpr struct {
  CountdownField field;
  const Setting& setting;
} kStored[] = {{CountdownField::kHours, countdown_settings::kHours},
               {CountdownField::kMinutes, countdown_settings::kMinutes},
               {CountdownField::kSeconds, countdown_settings::kSeconds}};

int FieldNumber(std::wstring_view text) {
  return static_cast<int>(RoundHalfEven(std::clamp<double>(LeadingNumber(text), 0, kMostInField)));
}

std::wstring FieldText(int value) {
  return PaddedNumber(value, 2);
}

}  // namespace

CountdownEngine::CountdownEngine(Settings& settings) : settings_(settings) {
  for (const auto& [field, setting] : kStored) {
    interval_[field] = FieldNumber(settings.Read(setting));
  }
  display_ = interval_;
}

void CountdownEngine::Edit(CountdownField edited, std::wstring_view text) {
  interval_[edited] = FieldNumber(text);
  for (const auto& [field, setting] : kStored) settings_.Write(setting, IntervalText(field));
  display_ = interval_;
}

void CountdownEngine::PressStart() {
  if (state_ == State::kEnding || display_.zero()) return;
  state_ = counting() ? State::kPaused : State::kCounting;
}

void CountdownEngine::PressStop() {
  if (state_ == State::kEnding) return;
  if (counting()) {
    state_ = State::kPaused;
  } else {
    state_ = State::kSet;
    display_ = interval_;
  }
}

CountdownTick CountdownEngine::Tick() {
  if (!counting()) return CountdownTick::kNothing;
  if (display_.zero()) {
    state_ = State::kEnding;
    return CountdownTick::kEnded;
  }
  int& hours = display_[CountdownField::kHours];
  int& minutes = display_[CountdownField::kMinutes];
  int& seconds = display_[CountdownField::kSeconds];
  if (seconds == 0) {
    seconds = 60;
    if (minutes == 0 && hours > 0) {
      --hours;
      minutes = 59;
    } else {
      --minutes;
    }
  }
  --seconds;
  return CountdownTick::kChanged;
}

void CountdownEngine::AcknowledgeEnd() {
  if (state_ != State::kEnding) return;
  state_ = State::kSet;
  display_ = interval_;
}

int CountdownEngine::remaining() const {
  return (display_.fields[0] * 60 + display_.fields[1]) * 60 + display_.fields[2];
}

std::wstring_view CountdownEngine::start_caption() const {
  switch (state_) {
    case State::kCounting:
    case State::kEnding:
      return button_captions::kPause;
    case State::kPaused:
      return button_captions::kResume;
    case State::kSet:
      break;
  }
  return button_captions::kStart;
}

std::wstring_view CountdownEngine::stop_caption() const {
  return state_ == State::kPaused ? button_captions::kReset : button_captions::kStop;
}

std::wstring CountdownEngine::DisplayText(CountdownField field) const {
  return FieldText(display_[field]);
}

std::wstring CountdownEngine::IntervalText(CountdownField field) const {
  return FieldText(interval_[field]);
}

}  // namespace varnel
