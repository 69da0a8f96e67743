#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "tests/support/cases.h"
#include "tests/support/fixed_system_colours.h"
#include "theme/contrast.h"
#include "theme/gradient.h"

namespace varnel {
namespace {

const test::FixedSystemColours kSystem;

TEST(Contrast, KnownFigures) {
  EXPECT_DOUBLE_EQ(RelativeLuminance(kBlack), 0);
  EXPECT_NEAR(RelativeLuminance(kWhite), 1, 1e-12);
  EXPECT_NEAR(RelativeLuminance(0x0000FF), 0.2126, 1e-12);  // red
  EXPECT_NEAR(ContrastRatio(kBlack, kWhite), 21, 1e-9);
  EXPECT_NEAR(ContrastRatio(0x777777, kWhite), 4.48, 0.005);  // the classic near miss
  EXPECT_NEAR(ContrastRatio(kWhite, 0x767676), 4.54, 0.005);
  EXPECT_DOUBLE_EQ(ContrastRatio(0x123456, 0x123456), 1);
}

void ExpectReadable(Colour text, Colour ground, Colour theme) {
  for (const bool large : {false, true}) {
    const Writing writing = WritingOf(text, ground, theme, large, false, kSystem);
    const Colour behind = writing.halo.value_or(Translate(ground, kSystem));
    ASSERT_GE(ContrastRatio(writing.colour, behind), large ? 3 : 4.5)
        << text << " on " << ground << " of theme " << theme;
  }
}

TEST(Halo, NoneWhereTextIsReadable) {
  EXPECT_FALSE(HaloColour(kWhite, kBlack, 0xEF5000, 4.5, kSystem));
  EXPECT_FALSE(HaloColour(kWhite, test::SystemColour(8), 0xEF5000, 4.5, kSystem));
  EXPECT_TRUE(HaloColour(kWhite, 0x777777, 0xEF5000, 4.5, kSystem));
  EXPECT_FALSE(HaloColour(kWhite, 0x777777, 0xEF5000, 3, kSystem));
}

TEST(Halo, StartsFromTheThemeAndLeadsAwayFromTheText) {
  // the default blue is dark enough as it is
  EXPECT_EQ(HaloColour(kWhite, kWhite, 0xEF5000, 4.5, kSystem), 0xEF5000);
  const auto luminance = [](Colour text, Colour theme) {
    return RelativeLuminance(*HaloColour(text, text, theme, 4.5, kSystem));
  };
  EXPECT_LT(luminance(kWhite, 0x57B6F7), RelativeLuminance(0x57B6F7));
  EXPECT_GT(luminance(kBlack, 0x202020), RelativeLuminance(0x202020));
  // black cannot stand out from a dark text that is lighter still than the theme
  EXPECT_GT(luminance(0x505050, 0x303030), RelativeLuminance(0x505050));
  // no colour reaches 21 against grey: the better end
  EXPECT_EQ(HaloColour(0x808080, 0x808080, 0x808080, 21, kSystem), kBlack);
  EXPECT_EQ(HaloColour(0x606060, 0x606060, 0x606060, 21, kSystem), kWhite);
}

TEST(Writing, KeepsItsColourGetsAHaloOrGoesToInk) {
  const Colour kPink = ColourOf({185, 79, 188});     // 4 : 1 on white
  const Colour kGold = ColourOf({213, 157, 7});      // 2.4 : 1
  const Colour kSilver = ColourOf({220, 220, 220});  // 1.4 : 1
  enum { kPlain, kHalo, kInk };
  const struct {
    Colour text, ground;
    bool large, prefer_ink;
    int kind;
  } cases[] = {{kPink, kWhite, true, true, kPlain},  // enough for large text
               {kPink, kWhite, false, false, kInk},  // a halo would only thicken it
               {kWhite, kPink, false, false, kHalo},
               {kWhite, kPink, false, true, kInk},
               {kWhite, kGold, true, false, kHalo},
               {kWhite, kGold, false, false, kInk},
               {kGold, kWhite, true, false, kInk},
               {kWhite, kSilver, true, false, kInk},
               {kBlack, kBlack, false, false, kInk},
               {kBlack, kWhite, false, true, kPlain},
               {0x606060, 0x202020, true, false, kInk},
               {0x101010, 0x646464, true, false, kInk}};  // enough, but dull
  for (const auto& test : cases) {
    const Writing writing =
        WritingOf(test.text, test.ground, kPink, test.large, test.prefer_ink, kSystem);
    const int kind = writing.halo ? kHalo : writing.colour == test.text ? kPlain : kInk;
    EXPECT_EQ(kind, test.kind) << test.text << " on " << test.ground << test.large;
  }
  // Ink is a shade of the theme, away from the ground.
  EXPECT_EQ(InkColour(kWhite, 0x800000, kSystem), 0x800000);
  EXPECT_GT(ChannelsOf(InkColour(0x202020, 0x800000, kSystem)).blue, 0x80);
}

TEST(Writing, EveryColourCanBeMadeReadable) {
  std::mt19937 random(11);
  const auto any = [&random] { return static_cast<Colour>(random() & 0xFFFFFF); };
  for (int round = 0; round < 4000; ++round) {
    ExpectReadable(any(), any(), any());
    ExpectReadable(round % 256 * 0x010101, round % 256 * 0x010101, any());
    ExpectReadable(any(), kNoColour, any());
    const Colour ground = any();
    ASSERT_GE(ContrastRatio(OutlineColour(any(), ground), ground), 3);
  }
}

TEST(Gradient, RunsFromTheFirstColourToTheSecond) {
  const std::uint32_t black = OpaquePixel(kBlack);
  const std::uint32_t white = OpaquePixel(kWhite);
  const test::Cases<double, Point, Point> cases = {{0, {0, 3}, {19, 5}},   {180, {19, 0}, {0, 9}},
                                                   {90, {7, 9}, {2, 0}},   {270, {3, 0}, {4, 9}},
                                                   {-90, {3, 0}, {4, 9}},  {45, {0, 9}, {19, 0}},
                                                   {225, {19, 0}, {0, 9}}, {720, {0, 3}, {19, 5}}};
  for (const auto& [degrees, first, last] : cases) {
    Image image(20, 10);
    FillGradient(image, kBlack, kWhite, degrees, kSystem);
    EXPECT_EQ(image.At(first.x, first.y), black) << degrees;
    EXPECT_EQ(image.At(last.x, last.y), white) << degrees;
    for (const std::uint32_t pixel : image.All()) {
      ASSERT_EQ(pixel >> 24, 0xFFu);
      ASSERT_EQ(pixel & 0xFF, pixel >> 16 & 0xFF);  // grey all the way
    }
  }
}

TEST(Gradient, EachChannelGoesItsOwnWayInEvenSteps) {
  Image image(101, 2);
  FillGradient(image, ColourOf({0, 100, 200}), ColourOf({100, 50, 200}), 0, kSystem);
  for (int x = 0; x <= 100; ++x) {
    const std::uint32_t pixel = image.At(x, 1);
    EXPECT_EQ(static_cast<int>(pixel >> 16 & 0xFF), x);
    EXPECT_NEAR(pixel >> 8 & 0xFF, 100 - x / 2.0, 0.5);
    EXPECT_EQ(pixel & 0xFF, 200u);
  }
}

TEST(Gradient, EqualColoursAndSmallOrOddInputs) {
  Image image(3, 3);
  FillGradient(image, test::SystemColour(5), kWhite, 261, kSystem);
  EXPECT_EQ(image, Image(3, 3, OpaquePixel(kWhite)));
  Image dot(1, 1);
  for (const double odd : {0.0, 1e300, std::numeric_limits<double>::quiet_NaN(),
                           std::numeric_limits<double>::infinity()}) {
    FillGradient(dot, kBlack, kWhite, odd, kSystem);
    Image none;
    FillGradient(none, kBlack, kWhite, odd, kSystem);
    EXPECT_TRUE(none.empty());
  }
}

}  // namespace
}  // namespace varnel
