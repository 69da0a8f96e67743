// The system's clock and its texts for dates and times.
#pragma once

#include "base/wall_clock.h"

namespace varnel {

class SystemClock : public WallClock {
 public:
  LocalTime Now() const override;
};

// Formats with the user's own language and forms through the platform's formatting facility.
class SystemTimeFormatter : public TimeFormatter {
 public:
  std::wstring Format(const LocalTime& time, std::wstring_view pattern) const override;
};

}  // namespace varnel
