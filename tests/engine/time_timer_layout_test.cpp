#include <gtest/gtest.h>

#include <vector>

#include "tests/support/plain_measure.h"
#include "widgets/time/timer_layout.h"

namespace varnel {
namespace {

bool Overlap(const Rect& a, const Rect& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// Every box that is there lies on the panel and on none of the others.
void CheckBoxes(Size panel, const std::vector<Rect>& boxes) {
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    if (boxes[i].empty()) continue;
    EXPECT_TRUE(boxes[i].left >= 0 && boxes[i].top >= 0) << i;
    EXPECT_TRUE(boxes[i].right <= panel.width && boxes[i].bottom <= panel.height) << i;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(!boxes[j].empty() && Overlap(boxes[i], boxes[j])) << i << " on " << j;
    }
  }
}

TEST(TimerLayout, NothingLiesOnAnythingElse) {
  const test::PlainMeasure measure;
  for (const int dpi : {96, 144, 192}) {
    for (const Size at_96 : {Size{158, 58}, {240, 90}, {391, 183}, {500, 302}, {1280, 720}}) {
      const Size panel{Scaled(at_96.width, dpi), Scaled(at_96.height, dpi)};
      SCOPED_TRACE(testing::Message() << panel.width << " x " << panel.height << " at " << dpi);
      for (const std::wstring_view text : {L"00:00.00", L"128:34.10"}) {
        const StopwatchLayout layout = LayOutStopwatch(panel, dpi, text, measure);
        CheckBoxes(panel, {layout.display, layout.buttons.start, layout.buttons.stop});
        EXPECT_GE(layout.font_height, Scaled(16, dpi));
      }
      for (const std::wstring_view digits : {L"00", L"128"}) {
        const CountdownLayout layout = LayOutCountdown(panel, dpi, digits, measure);
        std::vector<Rect> boxes{layout.buttons.start, layout.buttons.stop, layout.interval_label};
        for (const auto& more : {layout.fields, layout.interval_fields, layout.interval_units}) {
          boxes.insert(boxes.end(), more.begin(), more.end());
        }
        boxes.insert(boxes.end(), layout.separators.begin(), layout.separators.end());
        CheckBoxes(panel, boxes);
        EXPECT_GE(layout.font_height, Scaled(16, dpi));
      }
    }
  }
}

TEST(TimerLayout, IntervalGrowsWithThePanelAndGoesBeforeTheDisplay) {
  const test::PlainMeasure measure;
  const auto interval = [&](Size panel) {
    return LayOutCountdown(panel, 96, L"00", measure).interval_font_height;
  };
  EXPECT_EQ(interval({158, 58}), 0);
  EXPECT_EQ(interval({391, 183}), 12);
  EXPECT_GE(interval({500, 302}), 17);
  EXPECT_EQ(interval({1900, 1000}), 28);
}

}  // namespace
}  // namespace varnel
