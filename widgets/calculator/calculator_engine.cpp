#include "widgets/calculator/calculator_engine.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "base/number_format.h"
#include "base/number_text.h"
#include "widgets/calculator/calculation_log.h"

namespace varnel {
namespace {

constexpr int kResultDecimals = 3;  // the format "0.0##"
constexpr int kSignDecimals = 4;    // the format "0.0###"

struct Operation {
  CalculatorKey key;
  std::wstring_view name;
  wchar_t log_sign;
  // Not finite where the calculation fails.
  double (*calculate)(double first, double cur);
};

constexpr Operation kOperations[] = {
    {CalculatorKey::kAdd, L"ADD", L'+', [](double first, double cur) { return cur + first; }},
    {CalculatorKey::kSubtract, L"SUBTRACT", L'-',
     [](double first, double cur) { return first - cur; }},
    {CalculatorKey::kMultiply, L"MULTIPLY", L'*',
     [](double first, double cur) { return cur * first; }},
    {CalculatorKey::kDivide, L"DIVIDE", L'/', [](double first, double cur) { return first / cur; }},
};

const Operation* OperationNamed(std::wstring_view name) {
  const auto found = std::ranges::find(kOperations, name, &Operation::name);
  return found == std::end(kOperations) ? nullptr : found;
}

}  // namespace

std::wstring CalculatorEngine::Press(CalculatorKey key) {
  switch (key) {
    case CalculatorKey::kPoint:
      PressPoint();
      return {};
    case CalculatorKey::kSign:
      FormatDisplay(-1, kSignDecimals);
      return {};
    case CalculatorKey::kAdd:
    case CalculatorKey::kSubtract:
    case CalculatorKey::kMultiply:
    case CalculatorKey::kDivide:
      return PressOperator(key);
    case CalculatorKey::kEquals:
      return PressEquals();
    case CalculatorKey::kClear:
      state_.PointPosition = 0;
      [[fallthrough]];
    case CalculatorKey::kClearEntry:
      display_ = L"0";
      indicator_.clear();
      return {};
    case CalculatorKey::kDelete:
      if (!display_.empty()) display_.pop_back();
      indicator_.clear();
      return {};
    default:
      PressDigit(static_cast<int>(key) - static_cast<int>(CalculatorKey::kDigit0));
      return {};
  }
}

void CalculatorEngine::PressDigit(int digit) {
  const std::wstring typed = NumberText(digit);
  if (state_.StartNewNumber) {
    display_ = typed;
  } else if (digit != 0) {
    if (const auto value = LeadingDouble(display_ + typed)) display_ = GeneralNumber(*value);
  } else if (const auto value = LeadingDouble(display_)) {
    display_ = *value == 0 ? L"0" : display_ + typed;
  }
  BeginNumber();
}

void CalculatorEngine::PressPoint() {
  if (state_.StartNewNumber) {
    display_ = L"0.";
    state_.StartNewNumber = false;
    return;
  }
  const std::size_t found = display_.find(L'.');
  state_.PointPosition = found == std::wstring::npos ? 0 : static_cast<double>(found + 1);
  if (state_.PointPosition == 0) display_.push_back(L'.');
}

std::wstring CalculatorEngine::PressOperator(CalculatorKey key) {
  std::wstring line;
  if (state_.OperandEntered) line = PressEquals();
  const auto& operation = *std::ranges::find(kOperations, key, &Operation::key);
  state_.PendingOperation = operation.name;
  state_.FirstOperand = LeadingDouble(display_).value_or(state_.FirstOperand);
  state_.StartNewNumber = true;
  state_.PointPosition = 0;
  const bool copies_face = key == CalculatorKey::kMultiply || key == CalculatorKey::kDivide;
  indicator_ = copies_face ? std::wstring(KeyFace(key)) : std::wstring(1, operation.log_sign);
  return line;
}

std::wstring CalculatorEngine::PressEquals() {
  std::wstring line;
  if (const Operation* const operation = OperationNamed(state_.PendingOperation)) {
    const double cur = LeadingDouble(display_).value_or(0);
    const double result = operation->calculate(state_.FirstOperand, cur);
    if (std::isfinite(result)) display_ = GeneralNumber(result);
    if (const auto shown = LeadingDouble(display_)) {
      line = CalculationLine(state_.FirstOperand, operation->log_sign, cur,
                             FixedNumber(*shown, kResultDecimals));
    }
  }
  state_.PendingOperation = {};
  FormatDisplay(1, kResultDecimals);
  indicator_.clear();
  state_.StartNewNumber = true;
  state_.OperandEntered = false;
  return line;
}

void CalculatorEngine::FormatDisplay(double factor, int most_decimals) {
  if (const auto value = LeadingDouble(display_)) {
    display_ = FixedNumber(factor * *value, most_decimals);
  }
}

void CalculatorEngine::BeginNumber() {
  if (state_.StartNewNumber) state_.OperandEntered = true;
  state_.StartNewNumber = false;
}

void CalculatorEngine::Recall(std::wstring_view log_line) {
  if (const auto text = RecalledText(log_line)) display_ = *text;
}

void CalculatorEngine::Enter(double number) {
  display_ = GeneralNumber(number);
  BeginNumber();
}

}  // namespace varnel
