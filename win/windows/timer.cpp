#include "win/windows/timer.h"

#include <algorithm>
#include <utility>

namespace varnel {

Timer::Timer(Window& owner, int interval, std::function<void()> handler)
    : owner_(owner), interval_(interval), handler_(std::move(handler)) {
  owner_.timers_.push_back(this);
}

Timer::~Timer() {
  Stop();
  std::erase(owner_.timers_, this);
}

void Timer::Start() {
  if (!owner_.handle()) return;
  enabled_ = ::SetTimer(owner_.handle(), id(), interval_, nullptr) != 0;
}

void Timer::Restart(int interval) {
  interval_ = interval;
  Start();
}

void Timer::Stop() {
  if (std::exchange(enabled_, false)) ::KillTimer(owner_.handle(), id());
}

void Timer::Tick() {
  if (!enabled_ || running_) return;
  running_ = true;
  struct Reset {
    bool& flag;
    ~Reset() { flag = false; }
  } reset{running_};
  handler_();
}

}  // namespace varnel
