// Waiting for a state of the program instead of for a length of time.
#pragma once

#include <chrono>
#include <functional>

namespace varnel::rig {

// How long a state may take to come about before a scene gives it up, in milliseconds.
inline constexpr int kPatience = 20'000;

// Asks `reached` every 10 ms until it is true or `deadline` (milliseconds from now) has passed.
// Asks at least once, and gives the last answer.
bool WaitUntil(const std::function<bool()>& reached, int deadline = kPatience);

// Reads until `wanted` comes. Gives what was read last, so that a failing comparison shows it.
template <class Read, class Value>
auto WaitFor(Read read, const Value& wanted, int deadline = kPatience) {
  auto value = read();
  if (value != wanted) WaitUntil([&] { return (value = read()) == wanted; }, deadline);
  return value;
}

// Reads until the value has stayed the same for `still` milliseconds (or `deadline` has passed),
// and gives it.
template <class Read>
auto WaitUntilStill(Read read, int still = 200, int deadline = kPatience) {
  using Clock = std::chrono::steady_clock;
  auto value = read();
  auto since = Clock::now();
  WaitUntil(
      [&] {
        auto next = read();
        const auto now = Clock::now();
        if (!(next == value)) since = now;
        value = std::move(next);
        return now - since >= std::chrono::milliseconds(still);
      },
      deadline);
  return value;
}

}  // namespace varnel::rig
