#include "widgets/calculator/calculator_layout.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/boxes.h"

namespace varnel {
namespace {

using test::Inside;

constexpr int kDpis[] = {96, 120, 192, 240};

void CheckAt(Size panel, int dpi, bool with_log) {
  SCOPED_TRACE(::testing::Message() << panel.width << " x " << panel.height << " at " << dpi);
  const CalculatorLayout layout = LayOutCalculator(panel, dpi, with_log);
  std::vector<Rect> boxes = {layout.number, layout.indicator, layout.secondary, layout.log};
  boxes.insert(boxes.end(), layout.keys.begin(), layout.keys.end());
  test::ExpectApart(boxes, Inset({0, 0, panel.width, panel.height}, Scaled(2, dpi)));
  ASSERT_TRUE(Inside(layout.number, layout.box) && Inside(layout.indicator, layout.box));
  ASSERT_FALSE(layout.number.empty() || layout.indicator.empty());
  for (const Rect& key : layout.keys) {
    ASSERT_GE(key.width(), Scaled(17, dpi));
    ASSERT_GE(key.height(), Scaled(8, dpi));
  }
  ASSERT_GT(layout.number.width(), panel.width / 3);
  ASSERT_TRUE(with_log || layout.log.empty());
  ASSERT_TRUE(layout.log.empty() || !layout.secondary.empty());  // the log is the first to go
  if (!layout.log.empty()) {
    ASSERT_GE(layout.log.width(), Scaled(100, dpi));
    ASSERT_GE(layout.log.height(), Scaled(40, dpi));
  }
}

TEST(CalculatorLayout, HoldsFromTheSmallestPanelToTheLargestScreen) {
  for (const int dpi : kDpis) {
    for (int width = 150; width <= 3840; width += width < 600 ? 11 : 211) {
      for (int height = 50; height <= 2160; height += height < 400 ? 7 : 173) {
        const Size panel = {Scaled(width, dpi), Scaled(height, dpi)};
        CheckAt(panel, dpi, false);
        CheckAt(panel, dpi, true);
        if (HasFailure()) return;
      }
    }
  }
}

TEST(CalculatorLayout, KeysStandInTheirRows) {
  const CalculatorLayout tall = LayOutCalculator({391, 182}, 96, true);
  const auto key = [](const CalculatorLayout& layout, int digit) {
    return layout.KeyPlace(DigitKey(digit));
  };
  EXPECT_EQ(key(tall, 7).top, key(tall, 9).top);
  EXPECT_EQ(key(tall, 7).left, key(tall, 1).left);
  EXPECT_LT(tall.KeyPlace(CalculatorKey::kClear).top, key(tall, 7).top);
  EXPECT_GT(tall.KeyPlace(CalculatorKey::kEquals).top, key(tall, 3).top);
  EXPECT_EQ(tall.KeyPlace(CalculatorKey::kEquals).right,
            tall.KeyPlace(CalculatorKey::kDivide).right);

  const CalculatorLayout broad = LayOutCalculator({158, 58}, 96, true);
  EXPECT_EQ(key(broad, 7).top, key(broad, 0).top);
  EXPECT_GT(broad.KeyPlace(CalculatorKey::kEquals).width(), 2 * key(broad, 1).width());
}

TEST(CalculatorLayout, TheLogFindsRoom) {
  const CalculatorLayout beside = LayOutCalculator({391, 182}, 96, true);
  EXPECT_EQ(beside.log.top, beside.box.top);
  EXPECT_EQ(beside.log.left - beside.box.right, 8);
  const CalculatorLayout below = LayOutCalculator({254, 233}, 96, true);
  EXPECT_EQ(below.log.left, below.box.left);
  EXPECT_EQ(below.log.top - below.KeyPlace(CalculatorKey::kEquals).bottom, 8);
  EXPECT_TRUE(LayOutCalculator({254, 182}, 96, true).log.empty());
  EXPECT_TRUE(LayOutCalculator({391, 182}, 96, false).log.empty());
  EXPECT_TRUE(LayOutCalculator({391, 120}, 96, true).secondary.empty());
  EXPECT_FALSE(LayOutCalculator({800, 120}, 96, true).log.empty());
}

TEST(CalculatorLayout, AnyPanelIsSurvived) {
  for (const int width : {-5, 0, 1, 3, 20, 100000}) {
    for (const int height : {-5, 0, 1, 3, 20, 100000}) {
      for (const Rect& key : LayOutCalculator({width, height}, 0, true).keys) {
        EXPECT_TRUE(key.empty() || Inside(key, {0, 0, width, height}));
      }
    }
  }
}

}  // namespace
}  // namespace varnel
