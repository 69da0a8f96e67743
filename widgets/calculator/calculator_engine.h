// The arithmetic of the calculator: what each key makes of the display and of the pending
// operation.
#pragma once

#include <string>
#include <string_view>

#include "widgets/calculator/calculator_keys.h"

namespace varnel {

struct CalculatorState {
  // Where "." stands in the display, from 1, as the point key last found it; 0 when it found none.
  double PointPosition = 0;
  // The left operand, taken from the display when an operator key is pressed.
  double FirstOperand = 0;
  // "ADD", "SUBTRACT", "MULTIPLY", "DIVIDE" or empty.
  std::wstring_view PendingOperation;
  // The next digit replaces the display instead of extending it.
  bool StartNewNumber = false;
  // A digit was typed since an operator key, so another one completes the pending operation first.
  bool OperandEntered = false;
  bool operator==(const CalculatorState&) const = default;
};

// A step that fails is skipped and the key goes on with the next: a division by zero, a result that
// is too large, and every step that would read the display while it holds a number too large to be
// read. The display is read with LeadingDouble; an empty one reads as 0. The secondary line
// (`lblSUB`) is no output: every key that fills it empties it again before it is done.
class CalculatorEngine {
 public:
  const std::wstring& display() const { return display_; }      // `lbl01234567890`
  const std::wstring& indicator() const { return indicator_; }  // `lblDISPLAYFUNC`
  const CalculatorState& state() const { return state_; }

  // Presses a key. Gives the line to be logged when that completed a calculation, else nothing (an
  // empty text); an operator key completes the one before it.
  std::wstring Press(CalculatorKey key);

  // Puts the result part of a log line into the display and leaves all else; a line without result
  // changes nothing.
  void Recall(std::wstring_view log_line);

  // Puts a finite number into the display as if its digits had been typed as a new number.
  void Enter(double number);

 private:
  void PressDigit(int digit);
  void PressPoint();
  std::wstring PressOperator(CalculatorKey key);
  std::wstring PressEquals();
  void FormatDisplay(double factor, int most_decimals);
  void BeginNumber();

  std::wstring display_ = L"0";
  std::wstring indicator_;
  CalculatorState state_;
};

}  // namespace varnel
