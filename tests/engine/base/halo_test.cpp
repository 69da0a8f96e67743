#include "base/halo.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace varnel {
namespace {

TEST(Raster, NothingOutsideIsTouched) {
  Image image(4, 3, 7);
  EXPECT_EQ(image.At(-1, 0), 0u);
  EXPECT_EQ(image.At(4, 2), 0u);
  EXPECT_TRUE(image.Row(3).empty());
  EXPECT_TRUE(image.Row(-1).empty());
  image.Set(4, 0, 9);
  image.Set(0, -1, 9);
  EXPECT_EQ(image, Image(4, 3, 7));
  image.Fill({-5, 2, 2, 99}, 1);
  EXPECT_EQ(std::count(image.All().begin(), image.All().end(), 1u), 2);
  image.Fill({3, 3, 1, 1}, 5);  // inside out
  EXPECT_EQ(std::count(image.All().begin(), image.All().end(), 5u), 0);
  const int bad[][2] = {{0, 5}, {5, 0}, {-1, 5}, {16385, 1}, {16384, 16384}};
  for (const auto& [width, height] : bad) EXPECT_TRUE(Mask(width, height).empty()) << width;
}

TEST(Raster, PixelsTurnTheColourRound) {
  EXPECT_EQ(OpaquePixel(0x112233), 0xFF332211u);
  EXPECT_EQ(OpaquePixel(-1), 0xFFFFFFFFu);
}

double DistanceToInk(const Mask& text, int x, int y) {
  double nearest = std::numeric_limits<double>::infinity();
  for (int row = 0; row < text.height(); ++row) {
    for (int column = 0; column < text.width(); ++column) {
      if (text.At(column, row) == 255) {
        nearest = std::min(nearest, std::hypot(column - x, row - y));
      }
    }
  }
  return nearest;
}

TEST(HaloMask, IsWholeWithinTheRadiusAndFadesBeyond) {
  std::mt19937 random(3);
  const HaloShape shapes[] = {{0, 0}, {1, 0}, {1.5, 1}, {2.25, 2.5}, {6, 3}, {12, 4.5}};
  for (const HaloShape& shape : shapes) {
    Mask text(61, 47);
    for (int dot = 0; dot < 12; ++dot) {
      text.Set(static_cast<int>(random() % 61), static_cast<int>(random() % 47), 255);
    }
    const Mask halo = HaloMask(text, shape);
    for (int y = 0; y < 47; ++y) {
      for (int x = 0; x < 61; ++x) {
        constexpr double kGrain = 1 / 16.0;
        const double beyond = DistanceToInk(text, x, y) - shape.radius;
        const int strength = halo.At(x, y);
        ASSERT_TRUE(beyond > -kGrain || strength == 255) << x << ',' << y;
        ASSERT_TRUE(beyond < shape.softness + kGrain || strength == 0) << x << ',' << y;
        if (shape.softness < 1 || beyond <= 0 || beyond >= shape.softness) continue;
        const double share = beyond / shape.softness;
        const double expected = 255 * (1 - share * share * (3 - 2 * share));
        ASSERT_NEAR(strength, expected, 1 + 255 * 1.5 * kGrain / shape.softness);
      }
    }
  }
}

// A smooth disc's halo is a larger smooth disc, whatever the fraction of a pixel its edge lies at.
TEST(HaloMask, SmoothEdgesGiveASmoothRim) {
  const HaloShape shape{3, 2};
  for (const double radius : {8.0, 8.3, 8.5, 8.8}) {
    Mask disc(40, 40);
    for (int y = 0; y < 40; ++y) {
      for (int x = 0; x < 40; ++x) {
        const double covered = radius + 0.5 - std::hypot(x - 20, y - 20);
        disc.Set(x, y, static_cast<std::uint8_t>(std::lround(255 * std::clamp(covered, 0.0, 1.0))));
      }
    }
    const Mask halo = HaloMask(disc, shape);
    for (int y = 0; y < 40; ++y) {
      for (int x = 0; x < 40; ++x) {
        const double beyond = std::hypot(x - 20, y - 20) - (radius - 0.5) - shape.radius;
        const double share = std::clamp(beyond / shape.softness, 0.0, 1.0);
        const double expected = 255 * (1 - share * share * (3 - 2 * share));
        ASSERT_NEAR(halo.At(x, y), expected, 255 * 0.25) << x << ',' << y << ' ' << radius;
      }
    }
  }
}

TEST(HaloMask, FaintSpecksAndOddShapes) {
  Mask specks(9, 9);
  specks.Set(4, 4, 15);
  EXPECT_EQ(HaloMask(specks, {3, 1}), Mask(9, 9));
  specks.Set(4, 4, 16);
  EXPECT_EQ(HaloMask(specks, {3, 1}).At(4, 6), 255);
  EXPECT_TRUE(HaloMask(Mask(), {3, 1}).empty());
  const double nan = std::numeric_limits<double>::quiet_NaN();
  for (const HaloShape& odd : {HaloShape{nan, nan}, HaloShape{-4, -1}, HaloShape{1e300, 1e300}}) {
    const Mask halo = HaloMask(Mask(5, 5, 255), odd);
    EXPECT_EQ(halo, Mask(5, 5, 255));
  }
  EXPECT_EQ(HaloMargin({1.25, 1.5}), 3);
  EXPECT_EQ(HaloMargin({1e300, nan}), 32);
}

TEST(CompositeText, LaysTextOverHaloOverGround) {
  Image pixels(3, 1, 0x80FFFFFF);
  Mask text(3, 1);
  text.Set(0, 0, 255);
  Mask halo(3, 1);
  halo.Set(0, 0, 255);
  halo.Set(1, 0, 128);
  CompositeText(pixels, {0, 0}, text, halo, 0xFF102030, 0xFF000000);
  EXPECT_EQ(pixels.At(0, 0), 0x80102030u);  // the opacity is the ground's
  EXPECT_EQ(pixels.At(1, 0), 0x807F7F7Fu);
  EXPECT_EQ(pixels.At(2, 0), 0x80FFFFFFu);
}

TEST(CompositeText, LeavesOutWhatLiesOutside) {
  constexpr int kFar = std::numeric_limits<int>::max();
  const Point corners[] = {{-2, -2}, {3, 3}, {kFar, kFar}, {-kFar - 1, -kFar - 1}, {0, kFar}};
  for (const Point corner : corners) {
    Image pixels(5, 5);
    CompositeText(pixels, corner, Mask(4, 4, 255), Mask(), 0xFFFFFF, 0);
    for (int y = 0; y < 5; ++y) {
      for (int x = 0; x < 5; ++x) {
        const long long across = x - static_cast<long long>(corner.x);
        const long long down = y - static_cast<long long>(corner.y);
        const bool inside = across >= 0 && across < 4 && down >= 0 && down < 4;
        ASSERT_EQ(pixels.At(x, y), inside ? 0xFFFFFFu : 0u) << corner.x << ',' << corner.y;
      }
    }
  }
}

}  // namespace
}  // namespace varnel
