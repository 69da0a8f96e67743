#include <gtest/gtest.h>

#include "tests/support/cases.h"
#include "tests/support/plain_measure.h"
#include "widgets/weather/weather_status.h"

namespace varnel {
namespace {

constexpr int kFont = 10;
constexpr int kGap = 12;
constexpr wchar_t kLong[] = L"Weather data by Open-Meteo.com";
constexpr wchar_t kShort[] = L"Open-Meteo.com";

int Width(std::wstring_view text) {
  return test::PlainMeasure().Measure(text, kFont).width;
}

WeatherStrip Chosen(const WeatherStatus& status, int room) {
  return ChooseStrip(status, room, kGap, kFont, test::PlainMeasure());
}

TEST(WeatherStatus, WordsForEveryState) {
  const test::Cases<WeatherStatus, std::wstring> kCases = {
      {WeatherStatus{}, L""},
      {{L"", true, L""}, L"Updating..."},
      {{L"", false, L"the server cannot be reached"}, L"The server cannot be reached"},
      {{L"12:01", false, L""}, L"Updated 12:01"},
      {{L"12:01", true, L"the server cannot be reached"}, L"Updated 12:01 \u00B7 updating..."},
      {{L"Sat 12:01", false, L"it broke"}, L"Updated Sat 12:01 \u00B7 it broke"},
  };
  for (auto [status, words] : kCases) {
    EXPECT_EQ(Chosen(status, 10'000), (WeatherStrip{words, L""}));
    status.live = true;
    EXPECT_EQ(Chosen(status, 10'000), (WeatherStrip{words, kLong}));
  }
}

// As the room shrinks texts become shorter, and the attribution is the last to go.
TEST(WeatherStatus, AttributionIsThereWhateverTheRoom) {
  const WeatherStatus failed{L"12:01", false, L"it broke", true};
  const std::wstring full = L"Updated 12:01 \u00B7 it broke";
  EXPECT_EQ(Chosen(failed, Width(full) + kGap + Width(kLong)), (WeatherStrip{full, kLong}));
  EXPECT_EQ(Chosen(failed, Width(full) + kGap + Width(kLong) - 1), (WeatherStrip{full, kShort}));
  for (int room = 400; room >= 0; --room) {
    const WeatherStrip strip = Chosen(failed, room);
    EXPECT_TRUE(strip.attribution == kLong || strip.attribution == kShort);
    const int between = strip.status.empty() ? 0 : kGap;
    if (room >= Width(kShort)) {
      EXPECT_LE(Width(strip.status) + between + Width(strip.attribution), room);
    }
  }
  EXPECT_EQ(Chosen(failed, Width(L"It broke") + kGap + Width(kShort)).status, L"It broke");
  const std::wstring failing = L"12:01 \u00B7 failed";
  const WeatherStatus wordy{L"12:01", false, L"the server took too long", true};
  EXPECT_EQ(Chosen(wordy, kGap + Width(failing) + Width(kShort)).status, failing);
  EXPECT_EQ(Chosen(wordy, kGap + Width(L"12:01") + Width(kShort)).status, L"12:01");
  EXPECT_EQ(Chosen(failed, 0), (WeatherStrip{L"", kShort}));
}

TEST(WeatherStatus, AloneTheStatusMayBeCutOff) {
  EXPECT_EQ(Chosen({L"12:01", false, L"it broke"}, 5), (WeatherStrip{L"12:01", L""}));
  EXPECT_EQ(Chosen({L"", false, L"it broke"}, 5), (WeatherStrip{L"It broke", L""}));
  EXPECT_EQ(Chosen({L"12:01", false, L""}, 5), (WeatherStrip{L"12:01", L""}));
}

TEST(WeatherStatus, ComplaintsBecomeReasons) {
  EXPECT_EQ(AsReason(L"The weather answer is too long."), L"the weather answer is too long");
  EXPECT_EQ(AsReason(L"it broke"), L"it broke");
  EXPECT_EQ(AsReason(L"\u00C4h"), L"\u00C4h");
  EXPECT_EQ(AsReason(L"."), L"");
  EXPECT_EQ(AsReason(L""), L"");
}

}  // namespace
}  // namespace varnel
