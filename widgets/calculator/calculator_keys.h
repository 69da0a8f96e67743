// The keys of the calculator, what stands on them, and what the keyboard does.
#pragma once

#include <cstddef>
#include <string_view>

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

// Shift state bits, as the keyboard handler gets them.
inline constexpr int kShiftHeld = 1;
inline constexpr int kCtrlHeld = 2;
inline constexpr int kAltHeld = 4;

enum class StrokeAction {
  kNone,
  kPress,           // press the key that goes with it
  kDeleteSelected,  // `DeleteSelected`
  kOpenMenu,        // the widget's menu, as from the title bar
  kFrame,           // the widget frame handles the stroke
  kCopyDisplay,     // the display to the clipboard
  kPasteNumber,     // a number from the clipboard to the display
};

struct KeyStroke {
  StrokeAction action = StrokeAction::kNone;
  CalculatorKey key{};  // for kPress
  bool operator==(const KeyStroke&) const = default;
};

// What pressing the key with the virtual key code does while exactly the modifiers of `shift_state`
// are held.
KeyStroke StrokeFor(int virtual_key, int shift_state);

}  // namespace varnel
