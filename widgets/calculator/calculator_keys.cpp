#include "widgets/calculator/calculator_keys.h"

#include <iterator>

namespace varnel {
namespace {

constexpr int kAnyState = -1;

// A run of virtual key codes; where they press keys, the codes count up from `key`.
struct StrokeRow {
  int first;
  int last;
  int shift_state;
  StrokeAction action;
  CalculatorKey key = CalculatorKey::kDigit0;
};

// The period key, the numeric keypad and Backspace have no row on purpose.
constexpr StrokeRow kStrokes[] = {
    {48, 57, 0, StrokeAction::kPress, CalculatorKey::kDigit0},
    {187, 187, 0, StrokeAction::kPress, CalculatorKey::kPoint},  // "=" and "+"
    {187, 187, kShiftHeld, StrokeAction::kPress, CalculatorKey::kAdd},
    {56, 56, kShiftHeld, StrokeAction::kPress, CalculatorKey::kMultiply},  // "8"
    {189, 189, 0, StrokeAction::kPress, CalculatorKey::kSubtract},         // "-"
    {220, 220, 0, StrokeAction::kPress, CalculatorKey::kDivide},           // the backslash
    {13, 13, 0, StrokeAction::kPress, CalculatorKey::kEquals},             // Enter
    {61, 61, 0, StrokeAction::kPress, CalculatorKey::kEquals},
    {46, 46, 0, StrokeAction::kPress, CalculatorKey::kDelete},  // Delete
    {46, 46, kCtrlHeld, StrokeAction::kDeleteSelected},
    {93, 93, kAnyState, StrokeAction::kOpenMenu},  // Applications
    {37, 40, kCtrlHeld, StrokeAction::kFrame},     // the arrows
    {'C', 'C', kCtrlHeld, StrokeAction::kCopyDisplay},
    {'V', 'V', kCtrlHeld, StrokeAction::kPasteNumber},
};

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

KeyStroke StrokeFor(int virtual_key, int shift_state) {
  for (const StrokeRow& row : kStrokes) {
    if (virtual_key < row.first || virtual_key > row.last) continue;
    if (row.shift_state != kAnyState && row.shift_state != shift_state) continue;
    const int steps = row.action == StrokeAction::kPress ? virtual_key - row.first : 0;
    return {row.action, static_cast<CalculatorKey>(static_cast<int>(row.key) + steps)};
  }
  return {};
}

}  // namespace varnel
