#include "base/number_format.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <string>

#include "tests/support/cases.h"

namespace varnel {
namespace {

constexpr double kLargest = std::numeric_limits<double>::max();

TEST(NumberFormat, GeneralConversion) {
  const test::Cases<double, const wchar_t*> cases = {
      {0, L"0"},
      {-0.0, L"0"},
      {0.1 + 0.2, L"0.3"},
      {-2.5, L"-2.5"},
      {100, L"100"},
      {0.0001, L"0.0001"},
      {0.00001, L"1E-05"},
      {1.23456789012346e-5, L"1.23456789012346E-05"},
      {1.0 / 3, L"0.333333333333333"},
      {999999999999999, L"999999999999999"},
      {999999999999999.5, L"1E+15"},
      {100000000000000.5, L"100000000000001"},  // a half, away from zero
      {-100000000000001.5, L"-100000000000002"},
      {1234567890123456, L"1.23456789012346E+15"},
      {-1e100, L"-1E+100"},
      {5e-324, L"4.94065645841247E-324"},
      {kLargest, L"1.79769313486232E+308"},
      {std::numeric_limits<double>::infinity(), L"0"},
      {std::nan(""), L"0"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(GeneralNumber(value), text);
}

TEST(NumberFormat, FixedDecimals) {
  const test::Cases<double, int, const wchar_t*> cases = {
      {0, 3, L"0.0"},
      {-0.0, 3, L"0.0"},
      {21, 3, L"21.0"},
      {2.4, 3, L"2.4"},
      {1.0005, 3, L"1.001"},
      {-0.123456, 4, L"-0.1235"},
      {0.0005, 3, L"0.001"},
      {0.00049999, 3, L"0.0"},
      {-0.0001, 3, L"-0.0"},
      {0.9995, 3, L"1.0"},
      {99999.99995, 4, L"100000.0"},
      {0.05, 1, L"0.1"},
      {1e-300, 4, L"0.0"},
      {1234567890123456, 3, L"1234567890123460.0"},
      {-1.5e20, 3, L"-150000000000000000000.0"}};
  for (const auto& [value, most_decimals, text] : cases) {
    EXPECT_EQ(FixedNumber(value, most_decimals), text);
  }
  EXPECT_EQ(FixedNumber(kLargest, 3), L"179769313486232" + std::wstring(294, L'0') + L".0");
}

TEST(NumberFormat, LeadingDoubleReadsExponents) {
  const test::Cases<const wchar_t*, double> cases = {{L"  -3x", -3},
                                                     {L"+.5.5", .5},
                                                     {L"7.", 7},
                                                     {L"1E+15", 1e15},
                                                     {L"1e5", 1e5},
                                                     {L"1E", 1},
                                                     {L"1E+", 1},
                                                     {L"1E+-5", 1},
                                                     {L"1,234", 1},
                                                     {L"1E+15.5", 1e15},
                                                     {L"-1.5E-05 or so", -1.5e-5}};
  for (const auto& [text, value] : cases) EXPECT_EQ(LeadingDouble(text), value) << text;
  for (const wchar_t* text : {L"", L"   ", L"-", L".", L"abc", L"inf", L"nan", L"+-5", L"--5",
                              L"E5", L"1E-999999999999", L"0E+999999999999"}) {
    EXPECT_EQ(LeadingDouble(text), 0) << text;
  }
}

TEST(NumberFormat, LeadingDoubleAtTheEndsOfTheRange) {
  const std::wstring zeros(400, L'0');
  for (const std::wstring& text :
       {std::wstring(L"1E+309"), L"-1" + zeros, std::wstring(L"0.001E+999"),
        std::wstring(L"1.79769313486232E+308")}) {  // the largest, rounded up
    EXPECT_FALSE(LeadingDouble(text)) << text;
  }
  EXPECT_EQ(LeadingDouble(L"0." + zeros + L"1"), 0);
  EXPECT_EQ(LeadingDouble(L"0." + zeros + L"1E+10"), 0);
  EXPECT_EQ(LeadingDouble(L"0." + zeros + L"1E+401"), 1);
  EXPECT_EQ(LeadingDouble(L"1" + zeros + L"E-400"), 1);
  EXPECT_EQ(LeadingDouble(zeros + L"12"), 12);
  EXPECT_EQ(LeadingDouble(L"5E-324"), 5e-324);
}

TEST(NumberFormat, ReadingBackChangesNothingMore) {
  std::mt19937_64 random(7);
  for (int i = 0; i < 100000; ++i) {
    const auto value = std::bit_cast<double>(random());
    if (!std::isfinite(value)) continue;
    const std::wstring text = GeneralNumber(value);
    const auto read = LeadingDouble(text);
    if (!read) {
      EXPECT_GT(std::fabs(value), 1.79769313486231e308) << value;
      continue;
    }
    EXPECT_LE(std::fabs(*read - value), std::fabs(value) * 5.1e-15 + 5e-324) << value;
    EXPECT_EQ(GeneralNumber(*read), text);
  }
}

}  // namespace
}  // namespace varnel
