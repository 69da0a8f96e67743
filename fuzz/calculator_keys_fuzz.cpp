// Presses a key for each byte below 0x80; a byte above takes some bytes after it as a text that is
// pasted or recalled. Whatever comes, display, state and log lines must fit together.
#include <algorithm>
#include <cmath>
#include <string>

#include "base/number_format.h"
#include "fuzz/require.h"
#include "widgets/calculator/calculation_log.h"
#include "widgets/calculator/calculator_engine.h"
#include "widgets/calculator/pasted_number.h"

using namespace varnel;

namespace {

void PressAndCheck(CalculatorEngine& engine, CalculatorKey key) {
  const CalculatorState before = engine.state();
  const std::wstring display = engine.display();
  const std::wstring line = engine.Press(key);
  const CalculatorState& after = engine.state();
  const bool equals = key == CalculatorKey::kEquals;
  const bool operation = key >= CalculatorKey::kAdd && key <= CalculatorKey::kDivide;

  Require(after.PendingOperation == L"" || after.PendingOperation == L"ADD" ||
          after.PendingOperation == L"SUBTRACT" || after.PendingOperation == L"MULTIPLY" ||
          after.PendingOperation == L"DIVIDE");
  Require(std::isfinite(after.FirstOperand));
  Require(!after.OperandEntered || !after.StartNewNumber);
  Require(after.PendingOperation == before.PendingOperation || equals || operation);
  Require(engine.display().size() <= std::max<std::size_t>(display.size() + 1, 315));
  if (equals || operation) {
    Require(after.StartNewNumber && !after.OperandEntered);
    Require(after.PendingOperation.empty() == equals && engine.indicator().empty() == equals);
  }
  if (operation) {
    const auto shown = LeadingDouble(engine.display());
    Require(!shown || after.FirstOperand == *shown);
    Require(after.PointPosition == 0);
  }
  if (!line.empty()) {
    Require((equals || (operation && before.OperandEntered)) && !before.PendingOperation.empty());
    Require(RecalledText(line) == engine.display());
  }
}

void Paste(CalculatorEngine& engine, const std::wstring& text) {
  const auto number = ParsePastedNumber(text);
  if (!number) return;
  Require(std::isfinite(*number));
  engine.Enter(*number);
  Require(ParsePastedNumber(engine.display()) == LeadingDouble(engine.display()));
  Require(!engine.state().StartNewNumber);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  CalculatorEngine engine;
  for (std::size_t at = 0; at < size;) {
    const std::uint8_t byte = data[at++];
    if (byte < 0x80) {
      PressAndCheck(engine, static_cast<CalculatorKey>(byte % kCalculatorKeyCount));
      continue;
    }
    const std::size_t length = std::min<std::size_t>(byte & 0x3F, size - at);
    const std::wstring text(data + at, data + at + length);
    at += length;
    if ((byte & 0x40) != 0) {
      engine.Recall(text);
    } else {
      Paste(engine, text);
    }
  }
  return 0;
}
