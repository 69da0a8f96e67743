// Holds the number texts against the platform's own conversions, which they stand in for.
#include <gtest/gtest.h>

#include <windows.h>

#include <oleauto.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "base/number_format.h"

namespace varnel {
namespace {

constexpr LCID kUsEnglish = 0x409;
constexpr int kRounds = 30000;  // each compares a value of every kind below

std::wstring Taken(BSTR text) {
  const std::wstring result(text, ::SysStringLen(text));
  ::SysFreeString(text);
  return result;
}

std::wstring PlatformGeneral(double value) {
  BSTR text = nullptr;
  EXPECT_EQ(::VarBstrFromR8(value, kUsEnglish, LOCALE_NOUSEROVERRIDE, &text), S_OK);
  return Taken(text);
}

class PlatformFormat {
 public:
  explicit PlatformFormat(const wchar_t* pattern) : pattern_(pattern) {
    int used = 0;
    EXPECT_EQ(::VarTokenizeFormatString(pattern_.data(), tokens_, sizeof tokens_, 1, 1, kUsEnglish,
                                        &used),
              S_OK);
  }
  std::wstring operator()(double value) {
    VARIANT variant;
    ::VariantInit(&variant);
    variant.vt = VT_R8;
    variant.dblVal = value;
    BSTR text = nullptr;
    EXPECT_EQ(::VarFormatFromTokens(&variant, pattern_.data(), tokens_, 0, &text, kUsEnglish),
              S_OK);
    return Taken(text);
  }

 private:
  std::wstring pattern_;
  BYTE tokens_[256];
};

// One value of each kind that rounding, carries or the exponent could go wrong with.
std::vector<double> SeededValues(std::mt19937_64& random) {
  const auto pick = [&random](std::int64_t low, std::int64_t high) {
    return std::uniform_int_distribution<std::int64_t>(low, high)(random);
  };
  const auto ten = [](std::int64_t power) { return std::pow(10.0, static_cast<double>(power)); };
  const double sign = pick(0, 1) == 0 ? 1 : -1;
  const auto whole = static_cast<double>(pick(0, 999999));
  return {
      std::bit_cast<double>(random()),                                      // any bits
      sign * (static_cast<double>(pick(0, 99999999)) * 10 + 5) / 10000,     // halves of "0.0##"
      sign * (static_cast<double>(pick(0, 99999999)) * 10 + 5) / 100000,    // halves of "0.0###"
      sign * (ten(pick(0, 16)) - static_cast<double>(pick(0, 9)) / 1000),   // carries
      sign * (ten(pick(0, 12)) - static_cast<double>(pick(0, 99)) / 1e5),   // carries
      sign * static_cast<double>(pick(0, 1LL << 62)) / ten(pick(0, 25)),    // ordinary magnitudes
      sign * (static_cast<double>(pick(1, 1LL << 50)) + 0.5) / 8,           // halves of 15 digits
      sign * static_cast<double>(pick(1, 9)) * ten(pick(-199, 199)),        // exponents
      sign * static_cast<double>(pick(1, 99999)) / 1e8,                     // tiny
      whole / static_cast<double>(pick(1, 999)),                            // quotients
      sign * static_cast<double>(pick(100000000000000, 9999999999999999)),  // 15 and 16 digits
  };
}

TEST(NumberFormatPlatform, SameTextsAsThePlatform) {
  PlatformFormat three(L"0.0##");
  PlatformFormat four(L"0.0###");
  std::mt19937_64 random(20240305);
  int compared = 0;
  for (int round = 0; round < kRounds && !HasFailure(); ++round) {
    for (const double value : SeededValues(random)) {
      // The platform under test may write "INF" or "NAN"; neither value can stand in a display.
      if (!std::isfinite(value)) continue;
      EXPECT_EQ(GeneralNumber(value), PlatformGeneral(value)) << value;
      // Beyond these one platform overruns a buffer of its own and gives anything, or ends.
      const double size = std::fabs(value);
      if (size >= 1e200 || (size < 1e-200 && size > 0)) continue;
      EXPECT_EQ(FixedNumber(value, 3), three(value)) << value;
      EXPECT_EQ(FixedNumber(value, 4), four(value)) << value;
      ++compared;
    }
  }
  EXPECT_GT(compared, 100000);
}

}  // namespace
}  // namespace varnel
