#include "widgets/calculator/calculator_keys.h"

#include <algorithm>
#include <iterator>

namespace varnel {
namespace {

constexpr std::uint16_t kMinusKey = 0xBD;
constexpr std::uint16_t kBackslashKey = 0xDC;

struct Stroke {
  CommandKey key;
  CalculatorKey pressed;
};

// Beside the digits. The period key, the numeric keypad and Backspace have no row on purpose.
constexpr Stroke kStrokes[] = {
    {Plain(kKeyPlus), CalculatorKey::kPoint},       {Shift(kKeyPlus), CalculatorKey::kAdd},
    {Shift('8'), CalculatorKey::kMultiply},         {Plain(kMinusKey), CalculatorKey::kSubtract},
    {Plain(kBackslashKey), CalculatorKey::kDivide}, {Plain(kKeyEnter), CalculatorKey::kEquals},
    {Plain('='), CalculatorKey::kEquals},           {Plain(kKeyDelete), CalculatorKey::kDelete}};

constexpr std::wstring_view kFaces[] = {
    L"0", L"1",      L"2", L"3",      L"4",      L"5",      L"6", L"7", L"8",  L"9",
    L".", L"\u00B1", L"+", L"\u2212", L"\u00D7", L"\u00F7", L"=", L"C", L"CE", L"Del"};
constexpr std::wstring_view kNames[] = {
    L"0",        L"1",      L"2",      L"3",     L"4",           L"5",     L"6",
    L"7",        L"8",      L"9",      L"Point", L"Change sign", L"Add",   L"Subtract",
    L"Multiply", L"Divide", L"Equals", L"Clear", L"Clear entry", L"Delete"};
static_assert(std::size(kFaces) == kCalculatorKeyCount);
static_assert(std::size(kNames) == kCalculatorKeyCount);

}  // namespace

std::wstring_view KeyFace(CalculatorKey key) {
  return kFaces[static_cast<std::size_t>(key)];
}

std::wstring_view KeyName(CalculatorKey key) {
  return kNames[static_cast<std::size_t>(key)];
}

std::optional<CalculatorKey> KeyFor(const CommandKey& pressed) {
  if (pressed.held == 0 && pressed.code >= '0' && pressed.code <= '9') {
    return DigitKey(pressed.code - '0');
  }
  const auto stroke = std::ranges::find(kStrokes, pressed, &Stroke::key);
  return stroke == std::end(kStrokes) ? std::nullopt : std::optional(stroke->pressed);
}

}  // namespace varnel
