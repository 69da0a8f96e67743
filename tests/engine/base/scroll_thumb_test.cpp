#include "base/scroll_thumb.h"

#include <gtest/gtest.h>

#include "tests/support/cases.h"

namespace varnel {
namespace {

constexpr Rect kTrack{10, 20, 18, 220};
constexpr int kLeast = 24;

TEST(ScrollThumb, LiesInTheTrackAsThePageLiesInTheList) {
  const test::Cases<ScrollRange, Rect> cases = {
      {{0, 10, 40}, {10, 20, 18, 70}},       // a quarter of the track
      {{30, 10, 40}, {10, 170, 18, 220}},    // the end
      {{15, 10, 40}, {10, 95, 18, 145}},     // halfway
      {{0, 10, 100'000}, {10, 20, 18, 44}},  // never shorter than can be seized
      {{99'990, 10, 100'000}, {10, 196, 18, 220}},
      {{500, 10, 40}, {10, 170, 18, 220}},  // beyond the end
      {{-5, 10, 40}, {10, 20, 18, 70}},
      {{0, 40, 40}, {}},  // nothing to scroll
      {{0, 0, 40}, {}},
      {{0, 10, 0}, {}},
  };
  for (const auto& [range, thumb] : cases) {
    EXPECT_EQ(ThumbIn(kTrack, range, kLeast), thumb) << range.first;
  }
  EXPECT_EQ(ThumbIn({0, 0, 8, 12}, {3, 1, 9}, kLeast), (Rect{0, 0, 8, 12}));
  EXPECT_EQ(ThumbIn({0, 0, 8, 0}, {0, 1, 9}, kLeast), Rect{});
}

TEST(ScrollThumb, DragReachesEveryEndAndAgreesWithThePlace) {
  for (const int count : {11, 40, 999, 2'000'000'000}) {
    ScrollRange range{0, 10, count};
    EXPECT_EQ(FirstAtThumb(kTrack, range, kLeast, -999), 0);
    EXPECT_EQ(FirstAtThumb(kTrack, range, kLeast, 999), count - 10);
    for (int top = kTrack.top; top < 190; ++top) {
      range.first = FirstAtThumb(kTrack, range, kLeast, top);
      // Where every item has a place of its own the thumb follows the mouse to the pixel.
      if (count >= 999) EXPECT_NEAR(ThumbIn(kTrack, range, kLeast).top, std::min(top, 196), 1);
    }
  }
  EXPECT_EQ(FirstAtThumb({0, 0, 8, 12}, {3, 1, 9}, kLeast, 6), 0);
  EXPECT_EQ(FirstAtThumb(kTrack, {0, 10, 5}, kLeast, 60), 0);
}

}  // namespace
}  // namespace varnel
