#include <gtest/gtest.h>

#include <vector>

#include "tests/support/boxes.h"
#include "tests/support/plain_measure.h"
#include "widgets/time/timer_layout.h"

namespace varnel {
namespace {

TEST(TimerLayout, NothingLiesOnAnythingElse) {
  const test::PlainMeasure measure;
  for (const int dpi : {96, 144, 192}) {
    for (const Size at_96 : {Size{158, 58}, {240, 90}, {391, 183}, {500, 302}, {1280, 720}}) {
      const Size panel{Scaled(at_96.width, dpi), Scaled(at_96.height, dpi)};
      const Rect area = RectAt({0, 0}, panel);
      SCOPED_TRACE(testing::Message() << panel.width << " x " << panel.height << " at " << dpi);
      for (const std::wstring_view text : {L"00:00.00", L"128:34.10"}) {
        const StopwatchLayout layout = LayOutStopwatch(panel, dpi, text, measure);
        test::ExpectApart({layout.display, layout.buttons.start, layout.buttons.stop}, area);
        EXPECT_GE(layout.font_height, Scaled(16, dpi));
      }
      for (const std::wstring_view digits : {L"00", L"128"}) {
        const CountdownLayout layout = LayOutCountdown(panel, dpi, digits, measure);
        std::vector<Rect> boxes{layout.buttons.start, layout.buttons.stop, layout.interval_label};
        for (const auto& more : {layout.fields, layout.interval_fields, layout.interval_units}) {
          boxes.insert(boxes.end(), more.begin(), more.end());
        }
        boxes.insert(boxes.end(), layout.separators.begin(), layout.separators.end());
        test::ExpectApart(boxes, area);
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
