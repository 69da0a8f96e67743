#include "widgets/calculator/calculator_engine.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <functional>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/number_format.h"
#include "tests/support/cases.h"

namespace varnel {
namespace {

// A key sequence in a line: digits, point and operators as they look, "s" sign, "C" clear, "E"
// clear entry, "d" delete.
constexpr std::wstring_view kKeyLetters = L"0123456789.s+-*/=CEd";

struct Calculator {
  CalculatorEngine engine;
  std::vector<std::wstring> log;
  Calculator& Press(std::wstring_view keys) {
    for (const wchar_t letter : keys) {
      const auto key = static_cast<CalculatorKey>(kKeyLetters.find(letter));
      if (const std::wstring line = engine.Press(key); !line.empty()) log.push_back(line);
    }
    return *this;
  }
};

using Lines = std::vector<std::wstring>;

TEST(CalculatorEngine, KeysGiveDisplayAndLog) {
  const test::Cases<const wchar_t*, const wchar_t*, Lines> cases = {
      {L"", L"0", {}},
      {L"2+3*4=", L"20.0", {L"2 + 3 = 5.0", L"5 * 4 = 20.0"}},
      {L"1/3=", L"0.333", {L"1 / 3 = 0.333"}},
      {L"12/5=", L"2.4", {L"12 / 5 = 2.4"}},
      {L"7*3=", L"21.0", {L"7 * 3 = 21.0"}},
      {L"2-5=", L"-3.0", {L"2 - 5 = -3.0"}},
      {L"5=", L"5.0", {}},
      {L"2+3==", L"5.0", {L"2 + 3 = 5.0"}},  // equals does not repeat
      {L"007", L"7", {}},                    // leading zeros go
      {L"0.0", L"0", {}},                    // and the point with them
      {L"1.05", L"1.05", {}},
      {L"1.0500", L"1.0500", {}},  // zeros after a point survive
      {L"1..5", L"1.5", {}},
      {L"5+.", L"0.", {}},
      {L"2.5s", L"-2.5", {}},
      {L"5=0.s", L"0.0", {}},
      {L"2.5ss", L"2.5", {}},
      {L"5+C3=", L"8.0", {L"5 + 3 = 8.0"}},  // a pending operation survives both clear keys
      {L"5+E3=", L"8.0", {L"5 + 3 = 8.0"}},
      {L"12/0=", L"0.0", {L"12 / 0 = 0.0"}},  // the division is skipped
      {L"0/0=", L"0.0", {L"0 / 0 = 0.0"}},
      {L"4/2d=", L"0.0", {L"4 / 0 = 0.0"}},  // an empty display reads as 0
      {L"12d3", L"13", {}},
      {L"d", L"", {}},
      {L"dd7", L"7", {}},
      {L"5+-3=", L"2.0", {L"5 - 3 = 2.0"}},  // the last operator counts
      {L"5+=", L"10.0", {L"5 + 5 = 10.0"}},
      {L"2+.5*4=", L"2.0", {L"0.5 * 4 = 2.0"}},  // a point does not make an operand
      {L"9+1=5", L"5", {L"9 + 1 = 10.0"}},
      {L"123456789012345", L"123456789012345", {}},
      {L"1234567890123456", L"1.23456789012346E+15", {}},
      {L"12345678901234567", L"1.23456789012346E+157", {}},  // the exponent is text too
      {L"12345678901234567.2", L"1.23456789012346E+157", {}},
  };
  for (const auto& [keys, display, log] : cases) {
    Calculator run;
    run.Press(keys);
    EXPECT_EQ(run.engine.display(), display) << keys;
    EXPECT_EQ(run.log, log) << keys;
  }
}

TEST(CalculatorEngine, WhatIsTooLargeIsSkipped) {
  const std::wstring huge = L"1" + std::wstring(308, L'0');
  Calculator run;
  run.Press(huge).Press(L"0");  // a zero more, and the display can no longer be read
  EXPECT_EQ(run.engine.display(), huge + L"0");
  run.Press(L"0");
  EXPECT_EQ(run.engine.display(), huge + L"0");
  run.Press(L"7");
  EXPECT_EQ(run.engine.display(), huge + L"0");
  run.Press(L"s+");
  EXPECT_EQ(run.engine.state().FirstOperand, 0);
  EXPECT_TRUE(run.log.empty());

  Calculator kept;
  kept.Press(L"5+");
  kept.engine.Recall(L"1 = 1E+999");
  kept.Press(L"*");
  EXPECT_EQ(kept.engine.state().FirstOperand, 5);

  Calculator product;
  product.Press(huge).Press(L"*").Press(huge).Press(L"=");  // the result is not taken
  EXPECT_EQ(product.log, Lines{L"1E+308 * 1E+308 = " + huge + L".0"});
  EXPECT_EQ(product.engine.display(), huge + L".0");
}

TEST(CalculatorEngine, RecallChangesTheDisplayAlone) {
  Calculator run;
  run.Press(L"9+");
  const CalculatorState before = run.engine.state();
  run.engine.Recall(L"7 * 3 = 21.0");
  EXPECT_EQ(run.engine.display(), L"21.0");
  EXPECT_EQ(run.engine.state(), before);
  run.engine.Recall(L"no result");
  run.engine.Recall(L"");
  EXPECT_EQ(run.engine.display(), L"21.0");
  run.engine.Recall(L"1 = 2 = 3");
  EXPECT_EQ(run.engine.display(), L"2 = 3");
  run.Press(L"=");
  EXPECT_EQ(run.log, Lines{L"9 + 2 = 11.0"});
}

TEST(CalculatorEngine, AnEnteredNumberCountsAsTyped) {
  Calculator run;
  run.Press(L"2+");
  run.engine.Enter(1234.5);
  EXPECT_EQ(run.engine.display(), L"1234.5");
  run.Press(L"6*");
  EXPECT_EQ(run.log, Lines{L"2 + 1234.56 = 1236.56"});
}

// The rules as lists of statements, of which one that fails is skipped.
class Model {
 public:
  std::wstring display = L"0";
  std::wstring indicator;
  CalculatorState own;
  Lines log;

  void Press(wchar_t key) {
    if (key >= L'0' && key <= L'9') Digit(key);
    if (key == L'.') Point();
    if (key == L's') Try([&] { display = FixedNumber(-Shown(), 4); });
    if (key == L'=') Equals();
    if (key == L'C') own.PointPosition = 0;
    if (key == L'C' || key == L'E') display = L"0";
    if (key == L'd') display = display.substr(0, display.empty() ? 0 : display.size() - 1);
    if (key == L'C' || key == L'E' || key == L'd') indicator = L"";
    if (key == L'+') Operator(L"ADD", L"+");
    if (key == L'-') Operator(L"SUBTRACT", L"-");
    if (key == L'*') Operator(L"MULTIPLY", L"\u00D7");
    if (key == L'/') Operator(L"DIVIDE", L"\u00F7");
  }

 private:
  static void Try(const std::function<void()>& statement) {
    try {
      statement();
    } catch (const std::range_error&) {
    }
  }
  static double Checked(double value) {
    if (!std::isfinite(value)) throw std::range_error("overflow");
    return value;
  }
  static double Read(const std::wstring& text) {
    return Checked(std::strtod(std::string(text.begin(), text.end()).c_str(), nullptr));
  }
  double Shown() const { return Read(display); }

  void Digit(wchar_t digit) {
    if (own.StartNewNumber) {
      display = digit;
    } else if (digit != L'0') {
      Try([&] { display = GeneralNumber(Read(display + digit)); });
    } else {
      Try([&] { display = Shown() == 0 ? L"0" : display + L"0"; });
    }
    if (own.StartNewNumber) own.OperandEntered = true;
    own.StartNewNumber = false;
  }
  void Point() {
    if (own.StartNewNumber) {
      display = L"0.";
      own.StartNewNumber = false;
    } else {
      own.PointPosition = static_cast<double>(display.find(L'.') + 1);  // 0 when there is none
      if (own.PointPosition == 0) display += L".";
    }
  }
  void Operator(std::wstring_view name, std::wstring_view symbol) {
    if (own.OperandEntered) Equals();
    own.PendingOperation = name;
    Try([&] { own.FirstOperand = Shown(); });
    own.StartNewNumber = true;
    own.PointPosition = 0;
    indicator = symbol;
  }
  void Equals() {
    double cur = 0;
    std::wstring line;
    Try([&] { cur = Shown(); });
    const std::wstring_view pending = own.PendingOperation;
    const double first = own.FirstOperand;
    if (!pending.empty()) {
      Try([&] {
        const double result = pending == L"ADD"        ? cur + first
                              : pending == L"SUBTRACT" ? first - cur
                              : pending == L"MULTIPLY" ? cur * first
                              : cur == 0               ? std::nan("")
                                                       : first / cur;
        display = GeneralNumber(Checked(result));
      });
      const std::wstring sign = pending == L"ADD"        ? L" + "
                                : pending == L"SUBTRACT" ? L" - "
                                : pending == L"MULTIPLY" ? L" * "
                                                         : L" / ";
      Try([&] {
        line = GeneralNumber(first) + sign + GeneralNumber(cur) + L" = " + FixedNumber(Shown(), 3);
      });
      if (!line.empty()) log.push_back(line);
    }
    own.PendingOperation = L"";
    Try([&] { display = FixedNumber(Shown(), 3); });
    indicator = L"";
    own.StartNewNumber = true;
    own.OperandEntered = false;
  }
};

TEST(CalculatorEngine, SeededSequencesFollowTheRules) {
  // Chances that make long numbers, long chains and overflow common.
  constexpr std::wstring_view kLikely[] = {kKeyLetters, L"0123456789.=+", L"9999*=0..ssdd",
                                           L"1234567890123456789+-*/", L"000000009.d"};
  std::mt19937 random(411);
  const auto below = [&random](std::size_t count) { return random() % count; };
  for (int sequence = 0; sequence < 100000; ++sequence) {
    const std::wstring_view letters = kLikely[below(std::size(kLikely))];
    Calculator run;
    Model model;
    std::wstring keys;
    const std::size_t length = 1 + below(sequence % 1000 == 0 ? 700 : 16);
    for (std::size_t i = 0; i < length; ++i) {
      keys.push_back(letters[below(letters.size())]);
      run.Press(keys.substr(i));
      model.Press(keys.back());
      ASSERT_EQ(run.engine.display(), model.display) << keys;
      ASSERT_EQ(run.engine.indicator(), model.indicator) << keys;
      ASSERT_EQ(run.engine.state(), model.own) << keys;
      ASSERT_EQ(run.log.size(), model.log.size()) << keys;
    }
    ASSERT_EQ(run.log, model.log) << keys;
  }
}

}  // namespace
}  // namespace varnel
