#include "tests/rig/wait.h"

#include <windows.h>

namespace varnel::rig {

bool WaitUntil(const std::function<bool()>& reached, int deadline) {
  using Clock = std::chrono::steady_clock;
  const auto end = Clock::now() + std::chrono::milliseconds(deadline);
  while (!reached()) {
    if (Clock::now() >= end) return false;
    ::Sleep(10);
  }
  return true;
}

}  // namespace varnel::rig
