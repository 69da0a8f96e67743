#include "base/resample.h"

#include <gtest/gtest.h>

#include <random>

#include "base/canvas.h"

namespace varnel {
namespace {

Image Noise(int width, int height) {
  Image image(width, height);
  std::mt19937 random(9);
  for (std::uint32_t& pixel : image.All()) {
    pixel = MixPixels(0, 0xFF000000 | random(), random() % 256);
  }
  return image;
}

TEST(Resample, LeavesWhatIsNotScaledAndKeepsPlainAreasPlain) {
  const Image noise = Noise(40, 30);
  EXPECT_EQ(Resampled(noise, {40, 30}), noise);
  for (const Size size : {Size{1, 1}, {7, 60}, {200, 13}, {97, 81}}) {
    EXPECT_EQ(Resampled(Image(40, 30, 0xFF3377AA), size),
              Image(size.width, size.height, 0xFF3377AA));
    const Image scaled = Resampled(noise, size);
    for (const std::uint32_t pixel : scaled.All()) {
      const std::uint32_t most = pixel >> 24;
      EXPECT_TRUE((pixel & 0xFF) <= most && (pixel >> 8 & 0xFF) <= most &&
                  (pixel >> 16 & 0xFF) <= most);
    }
  }
}

TEST(Resample, ShowsAPartAsInTheWhole) {
  const Image noise = Noise(90, 70);
  const AxisMap across({{2, 0}, {20, 45}, {20, 50}, {41, 90}}), down({{0, 0}, {50, 70}});
  Image whole(44, 50, 0xFFFFFFFF);
  Resample(noise, across, down, whole, {0, 0, 44, 50});
  Image parts(44, 50, 0xFFFFFFFF);
  for (int y = 0; y < 50; y += 7) {
    for (int x = 0; x < 44; x += 5) Resample(noise, across, down, parts, {x, y, x + 5, y + 7});
  }
  EXPECT_EQ(parts, whole);
  for (const int x : {0, 1, 41, 43}) EXPECT_EQ(whole.At(x, 20), 0U) << x;
}

TEST(Resample, KeepsEveryPartOfAnAxisToItself) {
  Image kept(100, 10);
  kept.Fill({50, 0, 100, 10}, 0xFF000000);
  for (const int border : {3, 20, 50, 130}) {
    const AxisMap across({{0, 0}, {border, 50}, {border + 33, 100}}), down({{0, 0}, {10, 10}});
    Image shown(border + 33, 10);
    Resample(kept, across, down, shown, {0, 0, shown.width(), 10});
    for (int x = 0; x < shown.width(); ++x) {
      EXPECT_EQ(shown.At(x, 5), x < border ? 0U : 0xFF000000U) << border << ' ' << x;
    }
  }
}

TEST(AxisMap, LeadsThereAndBack) {
  const AxisMap axis({{10, 0}, {10, 40}, {60, 140}, {90, 260}});
  for (double shown = 0; shown < 120; shown += 0.75) {
    EXPECT_NEAR(axis.Shown(axis.Kept(shown)), shown, 1e-9);
  }
  EXPECT_EQ(axis.Kept(10), 40);
  EXPECT_EQ(axis.Kept(75), 200);
  EXPECT_EQ(AxisMap().Kept(7.5), 7.5);
  EXPECT_EQ(AxisMap(std::vector<AxisMap::Stop>{{3, 3}}).Shown(7.5), 7.5);
  // What lies between two shown parts is shown as their border.
  EXPECT_EQ(AxisMap({{0, 0}, {10, 10}, {10, 30}, {20, 40}}).Shown(22), 10);
}

}  // namespace
}  // namespace varnel
