#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "tests/support/boxes.h"
#include "tests/support/plain_measure.h"
#include "widgets/time/clock_layout.h"

namespace varnel {
namespace {

constexpr std::wstring_view kDate = L"Wednesday, September 28, 2016";

ClockDisplay Modern() {
  return {L"12:58", L"48", L"AM", std::wstring(kDate), true, true};
}

ClockDisplay Classic() {
  return {L"12:58:48 AM", L"", L"", std::wstring(kDate), false, false};
}

std::vector<Rect> Shown(const ClockLayout& layout) {
  std::vector<Rect> boxes;
  for (const LabelPlace& place : {layout.time, layout.seconds, layout.marker, layout.date}) {
    if (place.shown()) boxes.push_back(place.box);
  }
  return boxes;
}

Rect Bounds(const ClockLayout& layout) {
  Rect bounds = layout.time.box;
  for (const Rect& box : Shown(layout)) {
    bounds = {std::min(bounds.left, box.left), std::min(bounds.top, box.top),
              std::max(bounds.right, box.right), std::max(bounds.bottom, box.bottom)};
  }
  return bounds;
}

// Whatever the display, the panel and its resolution.
void CheckLayout(Size panel, int dpi, const ClockDisplay& display, const ClockLayout& layout) {
  const test::PlainMeasure measure;
  const Rect area = Inset({0, 0, panel.width, panel.height}, Scaled(8, dpi));
  ASSERT_TRUE(layout.time.shown());
  const std::wstring_view texts[] = {display.time, display.seconds, display.marker, display.date};
  const LabelPlace* all[] = {&layout.time, &layout.seconds, &layout.marker, &layout.date};
  for (int i = 0; i < 4; ++i) {
    if (!all[i]->shown()) continue;
    const TextExtent needed = measure.Measure(texts[i], all[i]->font_height);
    EXPECT_GE(all[i]->box.width(), needed.width);
    EXPECT_GE(all[i]->box.height(), needed.height);
  }
  test::ExpectApart(Shown(layout), area);
  const Rect bounds = Bounds(layout);
  EXPECT_NEAR(bounds.left - area.left, area.right - bounds.right, 1);
  EXPECT_NEAR(bounds.top - area.top, area.bottom - bounds.bottom, 1);
  const bool bounded = layout.time.font_height == Scaled(960, dpi);
  const int share = display.time.size() == 4 ? 70 : 85;  // room is kept for hours of two digits
  EXPECT_TRUE(bounded || bounds.width() * 100 >= area.width() * share ||
              bounds.height() * 100 >= area.height() * share);
  if (layout.date.shown()) {
    ClockLayout row = layout;
    row.date = {};
    const bool beside = layout.date.box.left >= Bounds(row).right;
    EXPECT_TRUE(beside || layout.date.box.top >= Bounds(row).bottom);
    const auto middle = [beside](const Rect& box) {
      return beside ? (box.top + box.bottom) / 2 : (box.left + box.right) / 2;
    };
    EXPECT_NEAR(middle(layout.date.box), middle(Bounds(row)), 1);
  }
  if (layout.seconds.shown() && layout.marker.shown()) {
    const bool below = layout.seconds.box.top >= layout.time.box.bottom;
    EXPECT_TRUE(below || layout.seconds.box.left > layout.time.box.right);
    EXPECT_TRUE(below ? layout.marker.box.left > layout.seconds.box.right
                      : layout.seconds.box.left == layout.marker.box.left &&
                            layout.seconds.box.bottom <= layout.marker.box.top);
  }
}

TEST(ClockLayout, EveryPanelAtEveryResolution) {
  std::vector<ClockDisplay> displays{Modern(), Classic(), Modern(), Modern(), Modern(), Modern()};
  displays[2].seconds_shown = false;
  displays[3].marker_shown = false;
  displays[4].date.clear();
  displays[5].time = L"1:11";
  for (const int dpi : {96, 144, 192}) {
    for (const int width : {160, 200, 240, 393, 500, 801, 1280, 1920, 2560, 3840}) {
      for (const int height : {60, 75, 107, 160, 231, 300, 683, 1080, 2160}) {
        for (const ClockDisplay& display : displays) {
          SCOPED_TRACE(testing::Message() << &display - displays.data() << " in " << width << " x "
                                          << height << " at " << dpi);
          const Size panel{width, height};
          CheckLayout(panel, dpi, display, LayOutClock(panel, dpi, display, test::PlainMeasure()));
        }
      }
    }
  }
}

// What is left as a panel of one shape shrinks: never a part of lower rank without those above.
TEST(ClockLayout, LeavesOutByRank) {
  std::size_t before = 4;
  for (int height = 400; height >= 20; --height) {
    const ClockLayout layout =
        LayOutClock({height * 2, height}, 96, Modern(), test::PlainMeasure());
    const std::size_t now = Shown(layout).size();
    EXPECT_LE(now, before) << height;
    EXPECT_EQ(layout.date.shown(), now == 4) << height;
    EXPECT_EQ(layout.seconds.shown(), now >= 3) << height;
    EXPECT_EQ(layout.marker.shown(), now >= 2) << height;
    before = now;
  }
  EXPECT_EQ(before, 1u);
}

TEST(ClockLayout, UsualSizesShowEverything) {
  const test::PlainMeasure measure;
  for (const int dpi : {96, 144, 192}) {
    const Size usual{Scaled(393, dpi), Scaled(183, dpi)};
    EXPECT_EQ(Shown(LayOutClock(usual, dpi, Modern(), measure)).size(), 4u);
    EXPECT_EQ(Shown(LayOutClock(usual, dpi, Classic(), measure)).size(), 2u);
  }
  // The smallest widget keeps the time, seconds and marker.
  const ClockLayout small = LayOutClock({160, 59}, 96, Modern(), measure);
  EXPECT_EQ(Shown(small).size(), 3u);
  EXPECT_FALSE(small.date.shown());
}

TEST(ClockLayout, TallAndBroadPanelsUseTheirRoom) {
  const test::PlainMeasure measure;
  const ClockLayout tall = LayOutClock({160, 298}, 96, Modern(), measure);
  EXPECT_GE(tall.seconds.box.top, tall.time.box.bottom);
  EXPECT_GT(tall.marker.box.left, tall.seconds.box.right);
  const ClockLayout broad = LayOutClock({800, 72}, 96, Modern(), measure);
  EXPECT_GT(broad.date.box.left, broad.seconds.box.right);
  // Elsewhere the date leaves a fifth of the width free.
  const ClockLayout usual = LayOutClock({393, 183}, 96, Modern(), measure);
  EXPECT_LE(usual.date.box.width() * 5, 393 * 4);
}

TEST(ClockLayout, StandsStillWhileTheTimePasses) {
  const test::PlainMeasure measure;
  const auto lay_out = [&](std::wstring_view time, std::wstring_view seconds) {
    const ClockDisplay display{
        std::wstring(time), std::wstring(seconds), L"AM", L"May 1", true, true};
    return LayOutClock({300, 300}, 96, display, measure);
  };
  const ClockLayout wide = lay_out(L"08:58", L"48");
  EXPECT_EQ(lay_out(L"11:11", L"11"), wide);
  const ClockLayout one_digit = lay_out(L"9:58", L"48");
  EXPECT_EQ(one_digit.time.font_height, wide.time.font_height);
  EXPECT_LT(one_digit.time.box.width(), wide.time.box.width());

  ClockDisplay later = Modern();
  later.time = L"11:07";
  EXPECT_EQ(ShapeOf(later), ShapeOf(Modern()));
  later.marker = L"PM";
  EXPECT_NE(ShapeOf(later), ShapeOf(Modern()));
}

TEST(ClockLayout, SurvivesSenselessInput) {
  const test::PlainMeasure measure;
  for (const Size panel : {Size{0, 0}, Size{-50, 30}, Size{16, 16}, Size{10000, 1}}) {
    EXPECT_TRUE(Shown(LayOutClock(panel, 96, Modern(), measure)).empty());
  }
  ClockDisplay display = Modern();
  display.date = std::wstring(250, L'x');  // could only be shown unreadably small
  const ClockLayout layout = LayOutClock({393, 183}, 96, display, measure);
  EXPECT_FALSE(layout.date.shown());
  CheckLayout({393, 183}, 96, display, layout);
  EXPECT_TRUE(LayOutClock({393, 183}, 0, Modern(), measure).time.shown());
}

}  // namespace
}  // namespace varnel
