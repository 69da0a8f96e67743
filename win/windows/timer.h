// A repeating timer that belongs to a window and never fires after it was stopped, nor again while
// its own handler is still running.
#pragma once

#include <windows.h>

#include <functional>

#include "win/windows/window.h"

namespace varnel {

class Timer {
 public:
  // `interval` in milliseconds, 10 at the least for the system to keep it. The timer is off until
  // started; `owner` must outlive it and be created before Start.
  Timer(Window& owner, int interval, std::function<void()> handler);
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;
  ~Timer();

  // Without effect while the owner has no window.
  void Start();
  // Starts anew with another interval, also one that is running.
  void Restart(int interval);
  void Stop();
  bool enabled() const { return enabled_; }
  UINT_PTR id() const { return reinterpret_cast<UINT_PTR>(this); }

 private:
  friend class Window;
  void Tick();

  Window& owner_;
  int interval_;
  std::function<void()> handler_;
  bool enabled_ = false;
  bool running_ = false;
};

}  // namespace varnel
