// What the probes that work the program from outside share.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace varnel::bench {

inline double Milliseconds() {
  LARGE_INTEGER ticks = {}, frequency = {};
  ::QueryPerformanceCounter(&ticks);
  ::QueryPerformanceFrequency(&frequency);
  return 1000.0 * static_cast<double>(ticks.QuadPart) / static_cast<double>(frequency.QuadPart);
}

// Prints one figure; `times` in milliseconds, at least one.
inline void PrintMedian(const char* name, std::vector<double> times) {
  std::ranges::sort(times);
  std::printf("%s\t%.1f\tms\n", name, times[times.size() / 2]);
}

}  // namespace varnel::bench
