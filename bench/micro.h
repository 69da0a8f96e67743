// Small timings of single steps of the program.
#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace varnel::bench {

// The seconds that one call of `step` takes, this once.
template <class Step>
double TimeOf(Step step) {
  const auto start = std::chrono::steady_clock::now();
  step();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Of at least one value.
inline double Median(std::vector<double> values) {
  std::ranges::nth_element(values, values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2));
  return values[values.size() / 2];
}

// The seconds that one call of `step` takes: the median of several stretches, each of many calls.
template <class Step>
double SecondsFor(Step step) {
  constexpr int kStretches = 7;
  constexpr double kStretch = 0.03;  // seconds
  const auto stretch = [&step](long long calls) {
    return TimeOf([&] {
      for (long long i = 0; i < calls; ++i) step();
    });
  };
  long long calls = 1;
  while (stretch(calls) < kStretch) calls *= 2;
  std::vector<double> seconds;
  for (int i = 0; i < kStretches; ++i)
    seconds.push_back(stretch(calls) / static_cast<double>(calls));
  return Median(seconds);
}

// What the first step takes in the second's time. They take turns, since the machine's pace changes
// from one second to the next.
template <class First, class Second>
double Ratio(First first, Second second, int turns = 60) {
  std::vector<double> firsts, seconds;
  for (int i = 0; i < turns; ++i) {
    firsts.push_back(TimeOf(first));
    seconds.push_back(TimeOf(second));
  }
  return Median(firsts) / Median(seconds);
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
std::vector<Probe> NotesProbes();
std::vector<Probe> PageProbes();
std::vector<Probe> BoardProbes();
// Those that need the platform; none in a native build.
std::vector<Probe> PlatformProbes();
std::vector<Probe> BoardPlatformProbes();
std::vector<Probe> FindPlatformProbes();
std::vector<Probe> NotesPlatformProbes();
std::vector<Probe> PagePlatformProbes();

}  // namespace varnel::bench
