#include "widgets/calculator/calculator_layout.h"

#include <algorithm>
#include <span>

namespace varnel {
namespace {

// Lengths at 96 dpi.
constexpr int kLeastMargin = 2;
constexpr int kMargin = 8;
constexpr int kLeastDisplay = 15;
constexpr int kSecondaryHeight = 6;
// The least height of display and keys with the secondary line, or with a log beside or below them.
constexpr int kRoomyKeypad = 150;
// Rows of less height make way for the broad arrangement; up to the second height they do so where
// the keys are that much broader than high.
constexpr int kReadableRow = 18;
constexpr int kGoodRow = 28;
constexpr int kTooBroad = 6;
constexpr int kLeastLogHeight = 40;
constexpr int kLogAtRightFrom = 280;     // the least width with the log at the right
constexpr int kLogAtRightOfLow = 420;    // the same when there is no room for it below
constexpr int kLeastHeightWithLog = 80;  // at the right
constexpr int kMostLogWidth = 480;

struct Arrangement {
  int columns;
  int rows;
  std::span<const CalculatorKey> cells;  // row by row; a key in two cells covers both
};

using enum CalculatorKey;

constexpr CalculatorKey kTallCells[] = {
    kClear,  kClearEntry, kDelete, kDivide,    //
    kDigit7, kDigit8,     kDigit9, kMultiply,  //
    kDigit4, kDigit5,     kDigit6, kSubtract,  //
    kDigit1, kDigit2,     kDigit3, kAdd,       //
    kSign,   kDigit0,     kPoint,  kEquals,
};
constexpr CalculatorKey kBroadCells[] = {
    kDigit7, kDigit8, kDigit9, kDigit0, kDivide,   kMultiply, kClear,       //
    kDigit4, kDigit5, kDigit6, kPoint,  kSubtract, kAdd,      kClearEntry,  //
    kDigit1, kDigit2, kDigit3, kSign,   kEquals,   kEquals,   kDelete,
};
constexpr Arrangement kTall{4, 5, kTallCells};
constexpr Arrangement kBroad{7, 3, kBroadCells};

class Builder {
 public:
  Builder(Size panel, int dpi) : dpi_(dpi) {
    const int side = std::min(panel.width, panel.height);
    const int margin = std::clamp(side / 20, Px(kLeastMargin), Px(kMargin));
    gap_ = margin / 2;
    rest_ = Inset({0, 0, panel.width, panel.height}, margin);
  }

  CalculatorLayout Build(bool with_log) {
    if (with_log) PlaceLog();
    PlaceDisplay();
    PlaceKeys(BroadServesBetter() ? kBroad : kTall);
    return layout_;
  }

 private:
  int Px(int pixels_at_96) const { return Scaled(pixels_at_96, dpi_); }

  Rect TakeTop(int height) {
    Rect top = rest_;
    top.bottom = std::min(top.top + height, rest_.bottom);
    rest_.top = std::min(top.bottom + gap_, rest_.bottom);
    return top;
  }

  void PlaceLog() {
    const bool low = rest_.height() < Px(kRoomyKeypad);
    const bool broad = rest_.width() >= Px(low ? kLogAtRightOfLow : kLogAtRightFrom) &&
                       rest_.width() * 4 >= rest_.height() * 5 &&
                       rest_.height() >= Px(kLeastHeightWithLog);
    if (broad) {
      layout_.log = rest_;
      layout_.log.left = rest_.right - std::min(rest_.width() * 2 / 5, Px(kMostLogWidth));
      rest_.right = layout_.log.left - 2 * gap_;
      return;
    }
    const int spare = rest_.height() - Px(kRoomyKeypad) - 2 * gap_;
    if (spare < Px(kLeastLogHeight)) return;
    layout_.log = rest_;
    layout_.log.top = rest_.bottom - std::min(spare, rest_.height() * 3 / 10);
    rest_.bottom = layout_.log.top - 2 * gap_;
  }

  void PlaceDisplay() {
    const bool roomy = rest_.height() >= Px(kRoomyKeypad) || !layout_.log.empty();
    const int line_height = roomy ? Px(kSecondaryHeight) : 0;
    layout_.box = TakeTop(std::max(rest_.height() / 5, Px(kLeastDisplay)) + line_height);
    Rect inner = {layout_.box.left + 2 * gap_, layout_.box.top, layout_.box.right - 2 * gap_,
                  layout_.box.bottom};
    if (roomy) {
      inner.bottom -= line_height;
      layout_.secondary = {inner.left, inner.bottom, inner.right, layout_.box.bottom};
    }
    layout_.indicator = layout_.number = inner;
    layout_.indicator.right = inner.left + std::min(inner.height() * 2 / 3, inner.width() / 6);
    layout_.number.left = layout_.indicator.right + gap_;
  }

  Rect Cell(const Arrangement& keys, int index) const {
    const auto edge = [this](int start, int length, int cell, int cells) {
      return start + (length + gap_) * cell / cells;
    };
    const int column = index % keys.columns;
    const int row = index / keys.columns;
    return {edge(rest_.left, rest_.width(), column, keys.columns),
            edge(rest_.top, rest_.height(), row, keys.rows),
            edge(rest_.left, rest_.width(), column + 1, keys.columns) - gap_,
            edge(rest_.top, rest_.height(), row + 1, keys.rows) - gap_};
  }

  bool BroadServesBetter() const {
    const Rect tall = Cell(kTall, 0);
    const Rect broad = Cell(kBroad, 0);
    const bool low = tall.height() < Px(kReadableRow) ||
                     (tall.height() < Px(kGoodRow) && tall.width() > kTooBroad * tall.height());
    return low && std::min(broad.width(), broad.height()) * 4 > tall.height() * 5;
  }

  void PlaceKeys(const Arrangement& keys) {
    int index = 0;
    for (const CalculatorKey key : keys.cells) {
      const Rect cell = Cell(keys, index++);
      Rect& place = layout_.keys[static_cast<std::size_t>(key)];
      if (place.empty()) place = cell;
      place.right = cell.right;
    }
  }

  int dpi_;
  int gap_ = 0;
  Rect rest_;  // what of the panel is still free
  CalculatorLayout layout_;
};

}  // namespace

CalculatorLayout LayOutCalculator(Size panel, int dpi, bool with_log) {
  return Builder(panel, dpi).Build(with_log);
}

std::vector<CalculatorKey> ReadingOrder(const CalculatorLayout& layout) {
  std::vector<CalculatorKey> keys;
  for (std::size_t i = 0; i < kCalculatorKeyCount; ++i) {
    keys.push_back(static_cast<CalculatorKey>(i));
  }
  std::ranges::stable_sort(keys, {}, [&layout](CalculatorKey key) {
    return std::pair(layout.KeyPlace(key).top, layout.KeyPlace(key).left);
  });
  return keys;
}

}  // namespace varnel
