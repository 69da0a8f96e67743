// Where the labels, the keys and the log of the calculator stand on its panel.
#pragma once

#include <array>
#include <vector>

#include "base/geometry.h"
#include "widgets/calculator/calculator_keys.h"

namespace varnel {

// In pixels of the panel; what is left out is empty.
struct CalculatorLayout {
  Rect box;                                    // painted round the three that follow
  Rect number;                                 // `lbl01234567890`
  Rect indicator;                              // `lblDISPLAYFUNC`
  Rect secondary;                              // `lblSUB`
  std::array<Rect, kCalculatorKeyCount> keys;  // at the number of their CalculatorKey
  Rect log;                                    // `lvwFILES`
  const Rect& KeyPlace(CalculatorKey key) const { return keys[static_cast<std::size_t>(key)]; }
};

// Fills a panel of `panel` pixels at `dpi`: the display on top, with the secondary line, the keys
// in five rows of four, the log under them or at their right when the panel is broad. Margins are 8
// px at 96 dpi, less on a tiny panel. When room is short the log is left out first, then the
// secondary line. Keys that would be low stand in three rows of seven where that makes them larger.
// Nothing overlaps, and every key has room from a panel of 150 x 50 px at 96 dpi on; on a smaller
// one some may be empty.
CalculatorLayout LayOutCalculator(Size panel, int dpi, bool with_log);

// The keys from left to right, row by row.
std::vector<CalculatorKey> ReadingOrder(const CalculatorLayout& layout);

}  // namespace varnel
