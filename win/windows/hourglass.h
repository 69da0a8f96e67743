// The pointer that says that something takes its time.
#pragma once

#include <windows.h>

namespace varnel {

// Shows the hourglass pointer for the length of a scope.
class HourglassPointer {
 public:
  HourglassPointer() : former_(::SetCursor(::LoadCursorW(nullptr, MAKEINTRESOURCEW(32514)))) {}
  HourglassPointer(const HourglassPointer&) = delete;
  HourglassPointer& operator=(const HourglassPointer&) = delete;
  ~HourglassPointer() { ::SetCursor(former_); }

 private:
  HCURSOR former_;
};

}  // namespace varnel
