// Small timings of single steps of the program.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace varnel::bench {

// The seconds that one call of `step` takes: the median of several stretches, each of many calls.
template <class Step>
double SecondsFor(Step step) {
  using Clock = std::chrono::steady_clock;
  constexpr int kStretches = 7;
  constexpr double kStretch = 0.03;  // seconds
  const auto stretch = [&step](long long calls) {
    const auto start = Clock::now();
    for (long long i = 0; i < calls; ++i) step();
    return std::chrono::duration<double>(Clock::now() - start).count();
  };
  long long calls = 1;
  while (stretch(calls) < kStretch) calls *= 2;
  std::vector<double> seconds;
  for (int i = 0; i < kStretches; ++i)
    seconds.push_back(stretch(calls) / static_cast<double>(calls));
  std::ranges::nth_element(seconds, seconds.begin() + kStretches / 2);
  return seconds[kStretches / 2];
}

// Keeps a result from being computed away.
template <class Value>
void Keep(const Value& value) {
  asm volatile("" : : "g"(&value) : "memory");
}

// One figure: what it is called, its unit, and how it is measured.
struct Probe {
  std::string name;
  std::string unit;
  std::function<double()> measure;
};

std::vector<Probe> EngineProbes();
// Those that need the platform; none in a native build.
std::vector<Probe> PlatformProbes();

}  // namespace varnel::bench
