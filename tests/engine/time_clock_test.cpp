#include <gtest/gtest.h>

#include <vector>

#include "tests/support/cases.h"
#include "tests/support/memory_settings.h"
#include "tests/support/plain_formatter.h"
#include "widgets/time/clock_engine.h"

namespace varnel {
namespace {

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
  ClockDisplay display = ReadDisplay(settings, At(0, 5, 9), test::PlainFormatter());
  EXPECT_EQ(display.time, L"12:05");
  EXPECT_EQ(display.seconds, L"09");
  EXPECT_EQ(display.marker, L"AM");
  EXPECT_TRUE(display.seconds_shown);
  EXPECT_FALSE(display.marker_shown);

  settings = {.seconds = false, .hours_24 = false};
  display = ReadDisplay(settings, At(13, 5, 9), test::PlainFormatter());
  EXPECT_EQ(display.time, L"1:05");
  EXPECT_EQ(display.marker, L"PM");
  EXPECT_FALSE(display.seconds_shown);
  EXPECT_TRUE(display.marker_shown);
}

TEST(Clock, ClassicStyleIsOneLine) {
  const test::Cases<bool, bool, const wchar_t*> cases = {{true, true, L"12:30:07 AM"},
                                                         {true, false, L"12:30:07"},
                                                         {false, true, L"12:30 AM"},
                                                         {false, false, L"12:30"}};
  for (const auto& [seconds, marker, text] : cases) {
    const ClockSettings settings{
        .modern = false, .seconds = seconds, .marker = marker, .hours_24 = false};
    const ClockDisplay display = ReadDisplay(settings, At(0, 30, 7), test::PlainFormatter());
    EXPECT_EQ(display.time, text);
    EXPECT_TRUE(display.seconds.empty() && display.marker.empty());
    EXPECT_FALSE(display.seconds_shown || display.marker_shown);
  }
}

TEST(Clock, DateOfTheSystemOrByPattern) {
  const test::PlainFormatter formatter;
  ClockSettings settings = LoadClockSettings(test::MemorySettings());
  EXPECT_EQ(ReadDisplay(settings, At(1, 2), formatter).date, L"Tuesday, September 7, 2010");
  settings.system_date = false;
  EXPECT_EQ(ReadDisplay(settings, At(1, 2), formatter).date, L"Tuesday, 7 September");
  settings.custom_date = L"?!";
  EXPECT_EQ(ReadDisplay(settings, At(1, 2), formatter).date, L"?!");
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
  const std::wstring section = L"frmCLKpr\\Details";
  for (const wchar_t* name : {L"Style-modern", L"Style-secs-show", L"Style-ampm-show",
                              L"Style-24Hour", L"date-default", L"date-default-custom"}) {
    EXPECT_TRUE(store.values.contains({section, name})) << name;
  }
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
