// The keys of the calculator, what stands on them, and what the keyboard does.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "frame/command_key.h"

namespace varnel {

enum class CalculatorKey {
  kDigit0,  // the ten digits stand together and in order
  kDigit1,
  kDigit2,
  kDigit3,
  kDigit4,
  kDigit5,
  kDigit6,
  kDigit7,
  kDigit8,
  kDigit9,
  kPoint,
  kSign,
  kAdd,
  kSubtract,
  kMultiply,
  kDivide,
  kEquals,
  kClear,
  kClearEntry,
  kDelete,
};
inline constexpr std::size_t kCalculatorKeyCount = 20;

// The key of a digit from 0 to 9.
constexpr CalculatorKey DigitKey(int digit) {
  return static_cast<CalculatorKey>(digit);
}

// The text on the key, and its name for those who cannot see it.
std::wstring_view KeyFace(CalculatorKey key);
std::wstring_view KeyName(CalculatorKey key);

// The key that a key of the keyboard presses; nothing for the others.
std::optional<CalculatorKey> KeyFor(const CommandKey& pressed);

}  // namespace varnel
