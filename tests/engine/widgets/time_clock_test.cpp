#include <gtest/gtest.h>

#include <vector>

#include "tests/support/cases.h"
#include "tests/support/memory_settings.h"
#include "tests/support/plain_measure.h"
#include "widgets/time/clock_engine.h"
#include "widgets/time/clock_layout.h"

namespace varnel {
namespace {

// Shows which pattern it is asked for.
class EchoFormatter : public TimeFormatter {
 public:
  std::wstring Format(const LocalTime&, std::wstring_view pattern) const override {
    return L"{" + std::wstring(pattern) + L"}";
  }
};

const EchoFormatter kFormatter;

LocalTime At(int hour, int minute, int second = 0) {
  return {2010, 9, 7, 2, hour, minute, second};
}

TEST(Clock, HourAfterMidnightIsTwelve) {
  const test::Cases<int, const wchar_t*, const wchar_t*> cases = {
      {0, L"12", L"12"},  {1, L"01", L"1"},  {9, L"09", L"9"},   {11, L"11", L"11"},
      {12, L"12", L"12"}, {13, L"13", L"1"}, {22, L"22", L"10"}, {23, L"23", L"11"}};
  for (const auto& [hour, of_24, of_12] : cases) {
    EXPECT_EQ(HourText(At(hour, 0), true), of_24);
    EXPECT_EQ(HourText(At(hour, 0), false), of_12);
  }
}

TEST(Clock, ModernStyleFillsThreeLabels) {
  ClockSettings settings;
  settings.marker = false;
  ClockDisplay display = ReadDisplay(settings, At(0, 5, 9), kFormatter);
  EXPECT_EQ(display.time, L"12{:nn}");
  EXPECT_EQ(display.seconds, L"{ss}");
  EXPECT_EQ(display.marker, L"{ampm}");
  EXPECT_TRUE(display.seconds_shown);
  EXPECT_FALSE(display.marker_shown);

  settings = {.seconds = false, .hours_24 = false};
  display = ReadDisplay(settings, At(13, 5, 9), kFormatter);
  EXPECT_EQ(display.time, L"1{:nn}");
  EXPECT_FALSE(display.seconds_shown);
  EXPECT_TRUE(display.marker_shown);
}

TEST(Clock, ClassicStyleIsOneLine) {
  const test::Cases<bool, bool, const wchar_t*> cases = {{true, true, L"12{:nn:ss ampm}"},
                                                         {true, false, L"12{:nn:ss}"},
                                                         {false, true, L"12{:nn ampm}"},
                                                         {false, false, L"12{:nn}"}};
  for (const auto& [seconds, marker, text] : cases) {
    const ClockSettings settings{
        .modern = false, .seconds = seconds, .marker = marker, .hours_24 = false};
    const ClockDisplay display = ReadDisplay(settings, At(0, 30, 7), kFormatter);
    EXPECT_EQ(display.time, text);
    EXPECT_TRUE(display.seconds.empty() && display.marker.empty());
    EXPECT_FALSE(display.seconds_shown || display.marker_shown);
  }
}

TEST(Clock, DateOfTheSystemOrByPattern) {
  ClockSettings settings = LoadClockSettings(test::MemorySettings());
  EXPECT_EQ(ReadDisplay(settings, At(1, 2), kFormatter).date, L"{Long Date}");
  settings.system_date = false;
  EXPECT_EQ(ReadDisplay(settings, At(1, 2), kFormatter).date, L"{dddd, d mmmm}");
  settings.custom_date = L"?!";
  EXPECT_EQ(ReadDisplay(settings, At(1, 2), kFormatter).date, L"{?!}");
}

TEST(Clock, ADateTooLongBecomesShorterInItsOwnTerms) {
  using Patterns = std::vector<std::wstring>;
  const test::Cases<const wchar_t*, Patterns> cases = {
      {L"dddd, d mmmm", {L"ddd, d mmm", L"d mmm"}},
      {L"d mmmm yyyy", {L"d mmm yyyy", L"d mmm"}},
      {L"yyyy/mm/dd, ddd", {L"yyyy/mm/dd", L"mm/dd"}},
      {L"d.m.yy", {L"d.m"}},
      {L"dddd", {L"ddd"}},
      {L"\"dddd, \"d mmmm", {L"\"dddd, \"d mmm"}},
      {L"\\d\\d\\d d", {}},
      {L"d/m", {}},
      {L"", {}}};
  for (const auto& [pattern, shorter] : cases)
    EXPECT_EQ(ShorterPatterns(pattern), shorter) << pattern;

  ClockSettings settings;
  EXPECT_EQ(ReadDisplay(settings, At(1, 2), kFormatter).shorter_dates, Patterns{L"{Short Date}"});
  settings.system_date = false;
  const ClockDisplay display = ReadDisplay(settings, At(1, 2), kFormatter);
  const test::PlainMeasure measure;
  std::vector<std::wstring> seen;
  for (int room = measure.Measure(display.date, 16).width; room >= 0; --room) {
    const std::wstring date = DateOf(display, StripDate(display, room, 16, measure));
    EXPECT_LE(measure.Measure(date, 16).width, room);
    if (seen.empty() || seen.back() != date) seen.push_back(date);
  }
  EXPECT_EQ(seen, (Patterns{L"{dddd, d mmmm}", L"{ddd, d mmm}", L"{d mmm}", L""}));
}

TEST(Clock, SettingsSurviveTheStore) {
  test::MemorySettings store;
  EXPECT_EQ(LoadClockSettings(store), ClockSettings{});
  for (int bits = 0; bits < 32; ++bits) {
    const ClockSettings saved{.modern = (bits & 1) != 0,
                              .seconds = (bits & 2) != 0,
                              .marker = (bits & 4) != 0,
                              .hours_24 = (bits & 8) != 0,
                              .system_date = (bits & 16) != 0,
                              .custom_date = L"d/m"};
    SaveClockSettings(store, saved);
    EXPECT_EQ(LoadClockSettings(store), saved);
  }
  // The order is fixed, and so is that the style comes twice.
  using Names = std::vector<std::wstring>;
  const Names last(store.written.end() - 7, store.written.end());
  EXPECT_EQ(last, (Names{L"Style-modern", L"date-default", L"date-default-custom", L"Style-modern",
                         L"Style-secs-show", L"Style-ampm-show", L"Style-24Hour"}));
  // As other versions and hands may have left them.
  store.Write(clock_settings::kModern, L"0");
  store.Write(clock_settings::kSystemDate, L"rubbish");
  store.Write(clock_settings::kSeconds, L"rubbish");
  EXPECT_FALSE(LoadClockSettings(store).modern);
  EXPECT_TRUE(LoadClockSettings(store).system_date);
  EXPECT_FALSE(LoadClockSettings(store).seconds);
}

}  // namespace
}  // namespace varnel
