#include "widgets/weather/weather_feed.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/cases.h"
#include "tests/support/weather_samples.h"
#include "widgets/weather/entities.h"
#include "widgets/weather/feed_text.h"

namespace varnel {
namespace {

using test::FeedSample;
using test::FeedText;

struct Reading {
  WeatherData data;
  WeatherLabels labels;
};

Reading Read(const std::wstring& raw, bool fahrenheit = false, double earlier = 0) {
  Reading reading;
  reading.data.TemperatureF = earlier;
  reading.labels = DataFileRead(NormaliseFeed(raw), fahrenheit, reading.data).value();
  return reading;
}

Reading ReadSample(const FeedSample& sample, bool fahrenheit = false, double earlier = 0) {
  return Read(FeedText(sample), fahrenheit, earlier);
}

// Reads the usual feed with that in one of its fields.
Reading ReadWith(std::wstring FeedSample::*field, const std::wstring& text, bool fahrenheit = false,
                 double earlier = 0) {
  FeedSample sample;
  sample.*field = text;
  return ReadSample(sample, fahrenheit, earlier);
}

TEST(FeedFields, EveryCommaAndLineEndEndsAField) {
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"", L""},
      {L"a", L"a\r\n"},
      {L"London, United Kingdom", L"London\r\nUnited Kingdom\r\n"},
      {L"a\r\nb\rc\nd", L"a\r\nb\r\nc\r\nd\r\n"},
      {L"a,\r\nb", L"a\r\n\r\nb\r\n"},
      {L"a\r\n", L"a\r\n"},
      {L"\n\r", L"\r\n\r\n"},
      {L"   a b  ,\tc", L"a b  \r\n\tc\r\n"},
      {L" \"quoted\",\"\",\"", L"quoted\r\n\r\n\"\r\n"},
      {L"\"\"twice\"\"", L"\"twice\"\r\n"},
      {L"\"a,b\"", L"\"a\r\nb\"\r\n"},
      {L"<a b=\"c\">", L"<a b=\"c\">\r\n"},
  };
  for (const auto& [response, text] : cases) EXPECT_EQ(NormaliseFeed(response), text);
}

TEST(FeedFields, NothingIsReadBeyondTheLimit) {
  const std::wstring longest(kMostFeedText, L',');
  EXPECT_EQ(NormaliseFeed(longest).size(), 2 * kMostFeedText);
  EXPECT_EQ(NormaliseFeed(longest + L"more"), NormaliseFeed(longest));
}

TEST(WeatherFeed, AWholeReading) {
  const Reading reading = ReadSample({});
  EXPECT_EQ(reading.data.LocationTitle, L"London, United Kingdom");
  EXPECT_EQ(reading.data.ConditionText, L"Mostly Cloudy");
  EXPECT_EQ(reading.data.TemperatureF, 50);
  EXPECT_EQ(reading.labels.txtCURRENT.rfind(L"Current Weather Conditions In London", 0), 0u);
  EXPECT_LE(reading.labels.txtCURRENT.size(), 1000u);
  EXPECT_EQ(reading.labels.location, L"London, United Kingdom");
  EXPECT_EQ(reading.labels.symbol, 28);
  EXPECT_EQ(reading.labels.temperature, L"10C");
  EXPECT_EQ(reading.labels.condition, L"Mostly Cloudy");
  EXPECT_EQ(reading.labels.txtFINALNOW, L"London, United Kingdom\r\n\r\nMostly Cloudy\r\n\r\n50");
  const auto& days = reading.labels.forecast;
  EXPECT_EQ(days[0].date, L"Sat");
  EXPECT_EQ(days[0].temps, L"72/55");
  EXPECT_EQ(days[0].icon, 28);
  EXPECT_EQ(days[1].date, L"Sun");
  EXPECT_EQ(days[1].icon, 3);
  EXPECT_EQ(days[2].temps, L"64/49");
  EXPECT_EQ(days[2].icon, 19);
  EXPECT_EQ(ReadSample({}, true).labels.temperature, L"50F ");
}

TEST(WeatherFeed, AnEmptyTextChangesNothing) {
  WeatherData data{L"title", L"words", L"block", 41};
  EXPECT_FALSE(DataFileRead(L"", true, data));
  EXPECT_EQ(data.LocationTitle, L"title");
  EXPECT_EQ(data.TemperatureF, 41);
}

TEST(WeatherFeed, OnlyAWholeTemperatureAboveZeroIsTakenOver) {
  const test::Cases<const wchar_t*, double, const wchar_t*> cases = {
      {L"1", 1, L"1F "},          {L"0", 59, L"59F "},   {L"-4", 59, L"59F "},
      {L"57.5", 59, L"59F "},     {L"N/A", 59, L"59F "}, {L"101", 101, L"101F "},
      {L"57\u00B0", 59, L"59F "}, {L"", 59, L"-"}};
  for (const auto& [temperature, kept, label] : cases) {
    const Reading reading = ReadWith(&FeedSample::temperature, temperature, true, 59);
    EXPECT_EQ(reading.data.TemperatureF, kept) << temperature;
    EXPECT_EQ(reading.labels.temperature, label) << temperature;
  }
  const Reading cold = ReadWith(&FeedSample::temperature, L"-4", false, 50);
  EXPECT_EQ(cold.labels.temperature, L"10C");
  EXPECT_TRUE(cold.labels.txtFINALNOW.ends_with(L"\r\n\r\n-4"));
}

TEST(WeatherFeed, AMissingTemperatureIsTold) {
  const std::wstring raw = test::With<std::wstring>(FeedText(), L", and 50 &deg; F.", L".");
  const Reading reading = Read(raw, false, 50);
  EXPECT_EQ(reading.labels.temperature, L"-");
  EXPECT_EQ(reading.labels.txtFINALNOW,
            L"London, United Kingdom\r\n\r\nMostly Cloudy.\r\n\r\nNo Temp");
}

TEST(WeatherFeed, ConditionFixUpsInTheirOrder) {
  const test::Cases<const wchar_t*, const wchar_t*, const wchar_t*, int> cases = {
      {L"", L"28.gif", L"None", 28},
      {L"Fair", L"44.gif", L"No Description", 25},
      {L"Fair", L"25.gif", L"None", 25},
      {L"", L"44.gif", L"No Description", 25},
      {L"No Description", L"27.gif", L"Partly Cloudy", 0},
      {L"No Description", L"29.gif", L"No Description", 27},
      {L"Fair", L"27.gif", L"Fair", 0},
      {L"25.gif 44.gif", L"27.gif", L"Partly Cloudy", 0}};
  for (const auto& [condition, image, shown, icon] : cases) {
    FeedSample sample;
    sample.condition = condition;
    sample.image = std::wstring(L"http://feed.example/icons/") + image;
    const Reading reading = ReadSample(sample);
    EXPECT_EQ(reading.labels.condition, shown) << condition << image;
    EXPECT_EQ(reading.data.ConditionText, shown);
    EXPECT_EQ(reading.labels.symbol, icon) << image;
  }
}

TEST(WeatherFeed, TheIconIsTheNumberOfTheImagesFile) {
  const test::Cases<const wchar_t*, int> cases = {
      {L"http://h/31/4.gif", 3},   {L"4.gif", 3},       {L"c:\\a/b\\32.gif", 32},
      {L"http://h/a\\17.gif", 17}, {L"/x/123.gif", 12}, {L"/x/na.gif", 25},
      {L"/x/-1.gif", 25},          {L"", 25},           {L"/x/", 25},
      {L"/x/99.gif", 99}};
  for (const auto& [image, icon] : cases) {
    EXPECT_EQ(ReadWith(&FeedSample::image, image).labels.symbol, icon) << image;
  }
}

TEST(WeatherFeed, IconsAreReducedInOneStep) {
  const int expected[48] = {0,  1,  1,  3,  3,  5,  5,  5,  5,  9,  5,  9,  12, 13, 13, 13,
                            13, 17, 5,  19, 19, 19, 19, 23, 24, 25, 26, 0,  28, 27, 28, 31,
                            32, 27, 28, 35, 32, 3,  3,  9,  40, 13, 13, 13, 25, 9,  13, 3};
  for (int code = 0; code < 48; ++code) EXPECT_EQ(ReducedIcon(code), expected[code]) << code;
  EXPECT_EQ(ReducedIcon(99), 99);
}

TEST(WeatherFeed, TheLocationLabelHasTwoFields) {
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"New York, New York", L"New York, New York"},
      {L"Kralendijk, Bonaire, Saba", L"Kralendijk, Bonaire"},
      {L"Nowhere", L"Nowhere, "},
      {L"A,B", L"A, B"}};
  for (const auto& [title, label] : cases) {
    EXPECT_EQ(ReadWith(&FeedSample::title, title).labels.location, label);
  }
}

TEST(WeatherFeed, MissingMarkersLeaveTheirSlicesEmpty) {
  const Reading junk = Read(L"<html><body>Not found, sorry</body></html>", false, 50);
  EXPECT_EQ(junk.labels.condition, L"None");
  EXPECT_EQ(junk.labels.temperature, L"-");
  EXPECT_EQ(junk.labels.symbol, kIconNotAvailable);
  EXPECT_EQ(junk.labels.forecast[0].temps, L"");
  EXPECT_EQ(junk.data.TemperatureF, 50);

  using test::With;
  for (const wchar_t* marker : {L"]]></title>\n    <link>http://feed.example/now", L"<description>",
                                L"</description>", L"/>", L"For more details", L"---"}) {
    const Reading reading = Read(With<std::wstring>(FeedText(), marker, L""), true, 50);
    EXPECT_FALSE(reading.labels.condition.empty()) << marker;
  }
}

TEST(WeatherFeed, OnlyAWholeFeedIsTaken) {
  const auto complaint = [](const std::wstring& raw) {
    return FeedComplaint(NormaliseFeed(WithSections(raw)));
  };
  const std::wstring whole = FeedText();
  const std::size_t begun = whole.find(L"CDATA[Current");
  const std::size_t current_end = whole.find(L"</description>", begun);
  const std::size_t forecast_end = whole.rfind(L"</description>");
  for (std::size_t length = 0; length <= whole.size(); length += 10) {
    EXPECT_EQ(complaint(whole.substr(0, length)).empty(), length >= forecast_end + 14) << length;
  }
  EXPECT_EQ(complaint(L"<html>"), L"the answer holds no weather");
  EXPECT_EQ(complaint(whole.substr(0, forecast_end)), L"the answer was cut short");
  EXPECT_EQ(complaint(whole.substr(0, current_end + 14) + L"</item></channel></rss>"), L"");
  for (const wchar_t* end :
       {L"</description>\n  </item>\n  <item>", L"<description><![CDATA[<img"}) {
    EXPECT_EQ(complaint(test::With<std::wstring>(whole, end, L"")), L"the answer was cut short");
  }
}

TEST(WeatherFeed, ATemperatureThatNeverCameIsNotShown) {
  for (const wchar_t* temperature : {L"0", L"-4", L"N/A"}) {
    EXPECT_EQ(ReadWith(&FeedSample::temperature, temperature).labels.temperature, L"-");
  }
}

TEST(WeatherFeed, EntitiesMayStandForSections) {
  FeedSample sample;
  sample.title = L"Wei\u00DFenburg & M\u00FCnster, C\u00F4te d'Ivoire";
  sample.condition = L"Sun & Wind";
  const WeatherLabels sections = ReadSample(sample).labels;
  std::wstring raw = FeedText(sample);
  for (const wchar_t* element : {L"title>", L"description>"}) {
    const std::wstring open = std::wstring(element) + L"<![CDATA[";
    for (std::size_t at = raw.find(open); at != raw.npos; at = raw.find(open, at)) {
      const std::size_t start = at + open.size();
      const std::size_t end = raw.find(L"]]>", start);
      std::wstring escaped;
      for (const wchar_t unit : raw.substr(start, end - start)) {
        if (unit < 0x80 && unit != L'<' && unit != L'>' && unit != L'&') {
          escaped.push_back(unit);
        } else {
          escaped += L"&#" + std::to_wstring(static_cast<int>(unit)) + L";";
        }
      }
      raw.replace(start - 9, end + 3 - (start - 9), escaped);
    }
  }
  ASSERT_EQ(raw.find(L"CDATA"), raw.npos);
  const WeatherLabels shown = Read(WithSections(raw)).labels;
  EXPECT_EQ(shown.location, L"Wei\u00DFenburg & M\u00FCnster, C\u00F4te d'Ivoire");
  EXPECT_EQ(shown.condition, L"Sun & Wind");
  EXPECT_EQ(shown.txtFINALNOW, sections.txtFINALNOW);
  EXPECT_EQ(shown.forecast[2].temps, L"64/49");

  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"a &amp;&lt;&gt;&quot;&apos;&nbsp;&deg; b", L"a &<>\"' \u00B0 b"},
      {L"&#xFC;&#252;&#x1F327;", L"\u00FC\u00FC\U0001F327"},
      {L"&amp;amp; &#13;&#0;", L"&amp;   "},
      {L"& &; &eacute; &#; &#x; &#xD800; &#x110000; &#99999999999; &amp",
       L"& &; &eacute; &#; &#x; &#xD800; &#x110000; &#99999999999; &amp"}};
  for (const auto& [text, plain] : cases) EXPECT_EQ(WithoutEntities(text), plain);
}

TEST(FeedFields, AResponseSaysThatItIsUtf8) {
  for (const char* yes : {"\xEF\xBB\xBFx", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
                          "<?xml version='1.0' encoding = 'utf-8' standalone='no'?>"}) {
    EXPECT_TRUE(DeclaresUtf8(yes)) << yes;
  }
  for (const char* no : {"", "<?xml version=\"1.0\"?>", "<?xml encoding=\"ISO-8859-1\"?>",
                         "<?xml ?> encoding=\"utf-8\"", "<?xml encoding=utf-8?>", "encoding"}) {
    EXPECT_FALSE(DeclaresUtf8(no)) << no;
  }
}

TEST(WeatherFeed, AnItemEndsAfterAThousandCharacters) {
  const Reading reading = ReadWith(&FeedSample::condition, std::wstring(900, L'x'));
  EXPECT_EQ(reading.labels.txtCURRENT.size(), 1000u);
  EXPECT_EQ(reading.data.DescriptionBlock, L"");
  EXPECT_EQ(reading.labels.condition, L"None");
}

TEST(WeatherFeed, CelsiusIsCutToHundredthsAndRoundedToTenths) {
  const test::Cases<double, double> cases = {{50, 10},   {33, 0.6},   {32, 0},    {31, -0.6},
                                             {212, 100}, {-40, -40},  {1, -17.2}, {100, 37.8},
                                             {34, 1.1},  {32.09, 0.1}};
  for (const auto& [f, c] : cases) EXPECT_DOUBLE_EQ(FahrenheitToCelsius(f), c) << f;
  EXPECT_EQ(TemperatureLabel(33, false), L"1C");
  EXPECT_EQ(TemperatureLabel(31, false), L"-1C");
  EXPECT_EQ(TemperatureLabel(31.9, false), L"0C");
  EXPECT_EQ(TemperatureLabel(5, true), L"5F ");
}

TEST(Forecast, WordsAreSearchedInTheirOrder) {
  const test::Cases<int, std::vector<const wchar_t*>> cases = {
      {3, {L"Scattered Thunderstorms", L"Isolated Storms"}},
      {5, {L"Snow Showers"}},
      {9, {L"Rain / Snow", L"Thundershowers", L"Sunny then Showers"}},
      {19, {L"Cloudy", L"Mist"}},
      {24, {L"Windy"}},
      {25, {L"Haze", L""}},
      {28, {L"Mostly Sunny", L"PARTLY CLOUDY", L"Fair and Windy"}},
      {31, {L"Clear", L"Mostly Clear"}},
      {32, {L"Sunny"}}};
  for (const auto& [icon, forecasts] : cases) {
    for (const wchar_t* words : forecasts) {
      EXPECT_EQ(ForecastIcon(test::EntryText({L"Sat", words, L"72", L"55"})), icon) << words;
    }
  }
  EXPECT_EQ(ForecastIcon(L"Rain before the colon: / High 72&"), 25);
  EXPECT_EQ(ForecastIcon(L"Sat: Low 40 after a clear night"), 31);
  EXPECT_EQ(ForecastIcon(L"Sat:High"), 25);
}

TEST(Forecast, TemperaturesOfAnEntry) {
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"Sat: Fair / High 72&deg; F / Low 55&deg; F", L"72/55"},
      {L"Sat: Fair / High  72 &deg; F / Low -5 &deg; F", L"72/-5"},
      {L"Sat: Fair / High 72 AM &deg; F / Low PM 55&deg; F", L"72/5"},
      {L"Sat: Fair / High 72 PM &deg; F / Low 55&deg; F", L"72/55"},
      {L"Sat: Fair / Low 55&deg; F / High 72&deg; F", L"72/"},
      {L"Sat: Fair / Low 55&deg; F", L"/55"},
      {L"Sat: Fair / High 72", L"/"},
      {L"High", L"/"},
      {L"", L"/"}};
  for (const auto& [entry, temps] : cases) EXPECT_EQ(ForecastTemps(entry), temps) << entry;
}

TEST(Forecast, SlotsAreFilledInTurn) {
  FeedSample sample;
  sample.days = {{L"Tonight", L"Clear", L"null", L"40"}, {L" Sun ", L"Rain", L"null", L"null"}};
  const auto slots = ReadSample(sample).labels.forecast;
  EXPECT_EQ(slots[0].temps, L"/40");
  EXPECT_EQ(slots[1].date, L"Sun");
  EXPECT_EQ(slots[1].temps, L"/");
  EXPECT_EQ(slots[2].date, L"");
  EXPECT_EQ(slots[2].temps, L"");
  EXPECT_EQ(slots[2].icon, kIconNotAvailable);
  EXPECT_EQ(ForecastDay(L"\r\nMon: Rain"), L"Mon");
  EXPECT_EQ(ForecastDay(L"no colon"), L"");
}

}  // namespace
}  // namespace varnel
