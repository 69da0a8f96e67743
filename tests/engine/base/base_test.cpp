#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "base/geometry.h"
#include "base/number_text.h"
#include "base/settings.h"
#include "base/text.h"
#include "tests/support/cases.h"
#include "tests/support/memory_settings.h"

namespace varnel {
namespace {

TEST(Text, Utf8RoundTripsAndSurvivesDamage) {
  const std::wstring text = L"K\u00f6ln \u20ac \U0001F600 \u0080 \uE000 \U0010FFFF end";
  EXPECT_EQ(WideFromUtf8(Utf8FromWide(text)), text);
  EXPECT_EQ(WideFromUtf8("a\xFF"
                         "b"),
            L"a\uFFFD"
            L"b");
  EXPECT_EQ(WideFromUtf8("\xE2\x82"), L"\uFFFD\uFFFD");             // cut off
  EXPECT_EQ(WideFromUtf8("\xF4\x90\x80\x80").size(), 4u);           // beyond the last character
  EXPECT_EQ(WideFromUtf8("\xC0\xAF"), L"\uFFFD\uFFFD");             // overlong
  EXPECT_EQ(WideFromUtf8("\xED\xA0\x80").substr(0, 1), L"\uFFFD");  // a lone surrogate
  EXPECT_EQ(Utf8FromWide(std::wstring(1, static_cast<wchar_t>(0xD801))), "\xEF\xBF\xBD");
}

TEST(Text, TrimsBlanksOnlyAndComparesEndings) {
  EXPECT_EQ(Trim(L"  a b\t "), L"a b\t");
  EXPECT_EQ(Trim(L"   "), L"");
  EXPECT_TRUE(EndsWithIgnoreCase(L"Sound.WAV", L".wav"));
  EXPECT_FALSE(EndsWithIgnoreCase(L"wav", L".wav"));
}

TEST(Numbers, LeadingNumberReadsWhatItCan) {
  const test::Cases<const wchar_t*, double> cases = {
      {L"1.05", 1.05}, {L"  1.05 beta", 1.05}, {L"-3x", -3}, {L"True", 0},
      {L"", 0},        {L".5.5", .5},          {L"-", 0},    {L"1e5", 1},
      {L"7.", 7}};
  for (const auto& [text, value] : cases) EXPECT_EQ(LeadingNumber(text), value) << text;
  EXPECT_TRUE(std::isfinite(LeadingNumber(std::wstring(5000, L'9'))));
}

TEST(Numbers, WholeNumberTakesNothingElse) {
  EXPECT_EQ(WholeNumber(L" -12 "), -12);
  for (const wchar_t* text : {L"", L"1.5", L"1-", L"--1", L"99999999999999999999", L"0x10"}) {
    EXPECT_FALSE(WholeNumber(text)) << text;
  }
  EXPECT_EQ(PaddedNumber(5, 2), L"05");
  EXPECT_EQ(PaddedNumber(123, 2), L"123");
  EXPECT_EQ(PaddedNumber(-5, 2), L"-05");
}

TEST(Numbers, HalvesGoToTheEvenNeighbour) {
  EXPECT_EQ(RoundHalfEven(0.5), 0);
  EXPECT_EQ(RoundHalfEven(1.5), 2);
  EXPECT_EQ(RoundHalfEven(-7.5), -8);
  EXPECT_EQ(RoundHalfEven(-2.5), -2);
  EXPECT_EQ(RoundHalfEven(-0.4), 0);
  EXPECT_EQ(RoundHalfEven(1e300), std::numeric_limits<long long>::max());
  EXPECT_EQ(RoundHalfEven(std::nan("")), 0);
}

TEST(Geometry, TwipsAndPixelsAtEveryDpi) {
  EXPECT_EQ(PixelsFromTwips(5900, 96), 393);
  EXPECT_EQ(PixelsFromTwips(2400, 144), 240);
  EXPECT_EQ(TwipsFromPixels(-10, 96), -150);
  EXPECT_EQ(PixelsFromTwips(1500, 0), 100);  // a senseless resolution counts as 96
  EXPECT_EQ(TwipsFromPixels(std::numeric_limits<int>::max(), 96), std::numeric_limits<int>::max());
  EXPECT_EQ(Inset({0, 0, 10, 4}, 3), (Rect{3, 2, 7, 2}));
  EXPECT_EQ(Within({5, 6, 50, 60}, {1, 2, 3, 4}), (Rect{6, 8, 8, 10}));
}

TEST(Geometry, GrowsNotIntoNeighbours) {
  const Rect box{10, 10, 20, 20};
  const Rect beside[] = {box, {20, 10, 30, 20}, {10, 22, 20, 30}, {0, 0, 3, 40}};
  EXPECT_EQ(Grown(box, 5, beside), (Rect{7, 5, 20, 21}));
  const Rect close[] = {box, {23, 10, 33, 20}};
  EXPECT_LE(Grown(box, 3, close).right, Grown(close[1], 3, close).left);
  const Rect around[] = {{0, 0, 8, 30}, {0, 0, 30, 9}};
  EXPECT_EQ(Grown(box, 5, around), (Rect{9, 10, 25, 25}));
  EXPECT_EQ(Grown(box, 5, {}), (Rect{5, 5, 25, 25}));
}

TEST(TypedSettings, GarbageReadsAsTheFallback) {
  constexpr Setting kNumber{L"s", L"number", L"44"};
  constexpr Setting kFlag{L"s", L"flag", L"1"};
  test::MemorySettings settings;
  for (const wchar_t* garbage : {L"", L"abc", L"1.5", L"-9", L"999999999999", L"NaN"}) {
    settings.Write(kNumber, garbage);
    EXPECT_EQ(ReadNumber(settings, kNumber, 0, 255), 44) << garbage;
  }
  settings.Write(kFlag, L"false");
  EXPECT_FALSE(ReadFlag(settings, kFlag));
  settings.Write(kFlag, L"maybe");
  EXPECT_TRUE(ReadFlag(settings, kFlag));
  settings.Write(kFlag, L"True");
  EXPECT_FALSE(ReadCheck(settings, kFlag));  // a check box is "1" and nothing else
}

}  // namespace
}  // namespace varnel
