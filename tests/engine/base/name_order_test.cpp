#include "base/name_order.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

namespace varnel {
namespace {

TEST(NameOrder, NumbersCountAsNumbersAndCaseDoesNot) {
  const std::vector<std::wstring> ordered = {L"",
                                             L"0",
                                             L"1",
                                             L"01",
                                             L"2",
                                             L"10",
                                             L"99999999999999999998",
                                             L"99999999999999999999",
                                             L"100000000000000000000",
                                             L"_1",
                                             L"a",
                                             L"A0",
                                             L"a1",
                                             L"A01",
                                             L"a1b",
                                             L"a2",
                                             L"A10",
                                             L"a b",
                                             L"ab",
                                             L"B 1.1",
                                             L"b 1.2",
                                             L"b 1.10",
                                             L"\u00e4",
                                             L"\u00d6"};
  std::vector<std::wstring> sorted = ordered;
  std::shuffle(sorted.begin(), sorted.end(), std::mt19937(4));
  std::ranges::sort(sorted, [](const auto& left, const auto& right) {
    return CompareNaturally(left, right) < 0;
  });
  EXPECT_EQ(sorted, ordered);
  EXPECT_TRUE(CompareNaturally(L"A", L"a") < 0) << "no two names are equal";
  EXPECT_TRUE(CompareNames(L"\u0410\u0451\u03a9x10", L"\u0430\u0401\u03c9X10") == 0);
  EXPECT_TRUE(CompareNames(L"x10", L"x2") < 0);
}

// Any sort needs an order that does not contradict itself.
TEST(NameOrder, IsAnOrder) {
  std::mt19937 random(9);
  const std::wstring units = L"0012aAbB .\u00c4\u00e4";
  std::vector<std::wstring> names(60);
  for (auto& name : names) {
    for (auto i = random() % 6; i > 0; --i) name += units[random() % units.size()];
  }
  for (const auto& a : names) {
    for (const auto& b : names) {
      const auto order = CompareNaturally(a, b);
      ASSERT_EQ(order == 0, a == b);
      ASSERT_EQ(order<0, CompareNaturally(b, a)> 0);
      for (const auto& c : names) {
        const bool chain = order < 0 && CompareNaturally(b, c) < 0;
        ASSERT_TRUE(!chain || CompareNaturally(a, c) < 0);
      }
    }
  }
}

}  // namespace
}  // namespace varnel
