#include "widgets/weather/live_source.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/cases.h"
#include "tests/support/weather_samples.h"
#include "widgets/weather/feed_text.h"
#include "widgets/weather/weather_feed.h"

namespace varnel {
namespace {

using test::LiveAnswer;

const WeatherPlace kLondon = {L"2643743", L"London", L"United Kingdom"};

std::string Changed(const std::string& part, const std::string& by) {
  EXPECT_NE(LiveAnswer().find(part), std::string::npos) << part;
  return test::With(LiveAnswer(), part, by);
}

WeatherLabels Shown(const std::string& answer, bool fahrenheit = false,
                    const WeatherPlace& place = kLondon) {
  const LiveFeed feed = FeedFromLiveAnswer(answer, place, fahrenheit);
  EXPECT_EQ(feed.complaint, L"");
  WeatherData data{L"", L"", L"", 59};
  return DataFileRead(NormaliseFeed(feed.text), fahrenheit, data).value_or(WeatherLabels{});
}

TEST(LiveSource, AnAnswerReadsAsAFeed) {
  const WeatherLabels labels = Shown(LiveAnswer());
  EXPECT_EQ(labels.location, L"London, United Kingdom");
  EXPECT_EQ(labels.condition, L"Partly Cloudy");
  EXPECT_EQ(labels.temperature, L"14C");
  EXPECT_EQ(labels.symbol, 28);
  const auto& days = labels.forecast;
  EXPECT_EQ(days[0].date + days[1].date + days[2].date, L"SatSunMon");
  EXPECT_EQ(days[0].temps, L"15/7");
  EXPECT_EQ(days[1].temps, L"10/0");
  EXPECT_EQ(days[2].temps, L"5/-20");
  EXPECT_EQ(days[0].icon, 28);
  EXPECT_EQ(days[1].icon, 9);
  EXPECT_EQ(days[2].icon, 19);

  const WeatherLabels american = Shown(LiveAnswer(), true);
  EXPECT_EQ(american.temperature, L"57F ");
  EXPECT_EQ(american.forecast[2].temps, L"41/-4");
}

TEST(LiveSource, ColdThatTheFeedCannotCarryIsSaid) {
  const test::Cases<const char*, const wchar_t*, const wchar_t*> cases = {
      {"1", L"1F ", L"Partly Cloudy"},
      {"0.6", L"1F ", L"Partly Cloudy"},
      {"0.4", L"-", L"Partly Cloudy at 0F (-18C)"},
      {"-13", L"-", L"Partly Cloudy at -13F (-25C)"}};
  for (const auto& [degrees, label, words] : cases) {
    const WeatherLabels labels = Shown(Changed("57.3", degrees), true);
    EXPECT_EQ(labels.temperature, label) << degrees;
    EXPECT_EQ(labels.condition, words) << degrees;
  }
}

TEST(LiveSource, NightHasItsOwnWordsAndPicture) {
  const std::string clear = test::With<std::string>(Changed("\"is_day\":1", "\"is_day\":0"),
                                                    "\"weather_code\":2", "\"weather_code\":0");
  EXPECT_EQ(Shown(clear).condition, L"Clear");
  EXPECT_EQ(Shown(clear).symbol, 31);
}

TEST(LiveSource, EveryCodeShowsWordsAndTheRightPictures) {
  const test::Cases<std::vector<int>, int, int> groups = {{{0}, 32, 32},
                                                          {{1, 2}, 28, 28},
                                                          {{3}, 26, 19},
                                                          {{45, 48}, 19, 19},
                                                          {{51, 53, 55, 61, 80, 81}, 9, 9},
                                                          {{63}, 12, 9},
                                                          {{65, 82}, 40, 9},
                                                          {{56, 57, 66, 67}, 5, 9},
                                                          {{71, 73, 75, 77, 85, 86}, 13, 5},
                                                          {{95, 96, 99}, 3, 3}};
  for (const auto& [codes, icon, forecast_icon] : groups) {
    for (const int code : codes) {
      const std::string text = "\"weather_code\":" + std::to_string(code);
      const std::string answer = test::With<std::string>(
          Changed("\"weather_code\":2", text), "[1,61,3]", "[" + std::to_string(code) + ",0,0]");
      const WeatherLabels labels = Shown(answer);
      EXPECT_NE(labels.condition, L"No Description") << code;
      EXPECT_EQ(labels.symbol, icon) << code;
      EXPECT_EQ(labels.forecast[0].icon, forecast_icon) << code;
    }
  }
  const WeatherLabels unknown = Shown(Changed("\"weather_code\":2", "\"weather_code\":42"));
  EXPECT_EQ(unknown.condition, L"No Description");
  EXPECT_EQ(unknown.symbol, kIconNotAvailable);
}

TEST(LiveSource, NullsOfADayAreLeftOut) {
  const std::string answer =
      test::With<std::string>(Changed("[59.2,", "[null,"), "[1,61,3]", "[null,61,3]");
  EXPECT_EQ(Shown(answer).forecast[0].temps, L"/7");
  EXPECT_EQ(Shown(answer).forecast[0].icon, kIconNotAvailable);
}

TEST(LiveSource, PlaceNamesCannotBreakTheFeed) {
  const WeatherLabels labels =
      Shown(LiveAnswer(), false, {L"1", L"A]]></title><b>&\r\n\"B\"", std::wstring(5000, L'c')});
  EXPECT_EQ(labels.location.rfind(L"A    /title  b", 0), 0u);
  EXPECT_EQ(labels.condition, L"Partly Cloudy");
  EXPECT_EQ(labels.forecast[2].date, L"Mon");
}

TEST(LiveSource, WhatIsWrongIsSaidInPlainWords) {
  const test::Cases<std::string, const wchar_t*> cases = {
      {"", L"The weather answer cannot be read."},
      {"<html>", L"The weather answer cannot be read."},
      {Changed("57.3", "NaN"), L"The weather answer cannot be read."},
      {Changed("57.3", "1e999"), L"The weather answer cannot be read."},
      {Changed("57.3", "\xFF"), L"The weather answer cannot be read."},
      {LiveAnswer().substr(0, 600), L"The weather answer cannot be read."},
      {std::string(60000, '['), L"The weather answer cannot be read."},
      {std::string(30000, '[') + std::string(30000, ']'),
       L"The weather answer lacks \"current_units\"."},
      {std::string(70000, ' '), L"The weather answer is too long."},
      {"null", L"The weather answer lacks \"current_units\"."},
      {R"({"error":true,"reason":"Latitude must be\nin range <-90 to 90>"})",
       L"The weather service says: Latitude must be in range  -90 to 90"},
      {Changed("\"current\":", "\"now\":"), L"The weather answer lacks \"current\"."},
      {Changed("57.3,", "null,"), L"The weather answer has a wrong value in \"temperature_2m\"."},
      {Changed("57.3,", "1e300,"), L"The weather answer has a wrong value in \"temperature_2m\"."},
      {Changed("57.3,", "\"57\","), L"The weather answer has a wrong value in \"temperature_2m\"."},
      {Changed("\"temperature_2m\":\"°F\"", "\"temperature_2m\":\"°C\""),
       L"The weather answer has another unit in \"temperature_2m\"."},
      {Changed("\"weather_code\":2", "\"weather_code\":-1"),
       L"The weather answer has a wrong value in \"weather_code\"."},
      {Changed("\"is_day\":1", "\"is_day\":true"),
       L"The weather answer has a wrong value in \"is_day\"."},
      {Changed("[1,61,3]", "[1,61]"), L"The weather answer has too few days in \"weather_code\"."},
      {Changed("[1,61,3]", "{}"), L"The weather answer has too few days in \"weather_code\"."},
      {Changed("2026-11-22", "2026-13-22"), L"The weather answer has a wrong date in \"time\"."},
      {Changed("2026-11-22", "2026-02-30"), L"The weather answer has a wrong date in \"time\"."},
      {Changed("\"2026-11-22\"", "20261122"), L"The weather answer has a wrong value in \"time\"."},
      {Changed("32.0", "[]"), L"The weather answer has a wrong value in \"temperature_2m_min\"."},
  };
  for (const auto& [answer, complaint] : cases) {
    const LiveFeed feed = FeedFromLiveAnswer(answer, kLondon, false);
    EXPECT_EQ(feed.complaint, complaint);
    EXPECT_EQ(feed.text, L"");
  }
  const LiveFeed scolded =
      FeedFromLiveAnswer(R"({"reason":")" + std::string(9000, 'x') + "\"}", kLondon, false);
  EXPECT_LT(scolded.complaint.size(), 200u);
}

}  // namespace
}  // namespace varnel
