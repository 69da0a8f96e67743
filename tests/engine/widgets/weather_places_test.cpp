#include "widgets/weather/places.h"

#include <gtest/gtest.h>

#include "tests/support/cases.h"
#include "tests/support/memory_settings.h"
#include "widgets/weather/feed_address.h"
#include "widgets/weather/type_ahead.h"
#include "widgets/weather/weather_glyphs.h"
#include "widgets/weather/weather_settings.h"

namespace varnel {
namespace {

using Names = std::vector<std::wstring>;

constexpr std::wstring_view kPlaces =
    L"11|Lagos|Nigeria\r\n"
    L"12|Niamey|Niger\n"
    L" \"13\"|\"Bathgate\"|\"United Kingdom\" \n"
    L"14|Bath|United Kingdom\n"
    L"15|London|United Kingdom\n"
    L"16|Londonderry|United Kingdom\n"
    L"17|Twin|Canada\n18|Twin|Canada\n"
    L"|No Code|Canada\n19||Canada\n20|No Area|\n21|No Area\n22\n\n"
    L"23|Last|Canada|and more";

TEST(Places, FieldsAreCountedFromOne) {
  EXPECT_EQ(Field(L"a|b||d", 1, L'|'), L"a");
  EXPECT_EQ(Field(L"a|b||d", 3, L'|'), L"");
  EXPECT_EQ(Field(L"a|b||d", 4, L'|'), L"d");
  EXPECT_EQ(Field(L"a|b||d", 5, L'|'), L"");
  EXPECT_EQ(Field(L"a|b", 0, L'|'), L"");
  EXPECT_EQ(Field(L"", 1, L'|'), L"");
}

TEST(Places, AreaNamesInTheirOrder) {
  EXPECT_EQ(AreaNames(L"Wales\r\n\r\n  \n \"Alba\" \n\"\"\nChad"),
            (Names{L"Wales", L"Alba", L"Chad"}));
  EXPECT_EQ(AreaNames(L""), Names());
}

TEST(Places, CitiesOfEveryAreaWithinTheChosenOne) {
  EXPECT_EQ(CityNames(kPlaces, L"Nigeria"), (Names{L"Lagos", L"Niamey"}));
  EXPECT_EQ(CityNames(kPlaces, L"Niger"), (Names{L"Niamey"}));
  EXPECT_EQ(CityNames(kPlaces, L"The United Kingdom too"),
            (Names{L"Bathgate", L"Bath", L"London", L"Londonderry"}));
  EXPECT_EQ(CityNames(kPlaces, L"Canada"), (Names{L"Twin", L"Twin", L"Last"}));
  EXPECT_EQ(CityNames(kPlaces, L"united kingdom"), Names());
  EXPECT_EQ(CityNames(kPlaces, L""), Names());
}

TEST(Places, TheFirstLineWithinTheChosenNamesIsThePlace) {
  const test::Cases<const wchar_t*, const wchar_t*, const wchar_t*> cases = {
      {L"United Kingdom", L"London", L"15"},
      {L"United Kingdom", L"Londonderry", L"15"},  // the shorter name stands above
      {L"United Kingdom", L"Bathgate", L"13"},     // the longer one does
      {L"United Kingdom", L"Bath", L"14"},
      {L"United Kingdom", L"Greater London area", L"15"},
      {L"Canada", L"Twin", L"17"},
      {L"Nigeria", L"Niamey", L"12"},
      {L"Niger", L"Lagos", L""},
      {L"United Kingdom", L"london", L""},
      {L"United Kingdom", L"", L""},
      {L"Canada", L"No Code No Area", L""}};
  for (const auto& [area, city, code] : cases) {
    const auto place = ResolvePlace(kPlaces, area, city);
    EXPECT_EQ(place ? place->code : L"", code) << area << city;
  }
  EXPECT_EQ(ResolvePlace(kPlaces, L"United Kingdom", L"Bathgate"),
            (WeatherPlace{L"13", L"Bathgate", L"United Kingdom"}));
  EXPECT_FALSE(ResolvePlace(L"", L"United Kingdom", L"London"));
}

TEST(Places, CoordinatesMustBeOnTheGlobe) {
  constexpr std::wstring_view kList =
      L"1|51.5085|-0.1257\r\n12|-90|180\n2|90.1|0\n3|1|-180.5\n4||\n5|1e3|0\n6|1.2.3|4\n7|-|.\n"
      L"8|0|0&x=1\n9|12";
  EXPECT_EQ(CoordinatesOf(kList, L"1"), (Coordinates{L"51.5085", L"-0.1257"}));
  EXPECT_EQ(CoordinatesOf(kList, L"12"), (Coordinates{L"-90", L"180"}));
  for (const wchar_t* code : {L"2", L"3", L"4", L"5", L"6", L"7", L"8", L"9", L"99", L"", L"1|5"}) {
    EXPECT_FALSE(CoordinatesOf(kList, code)) << code;
  }
}

TEST(TypeAhead, AccentsAndCaseDoNotMatter) {
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"S\u00C3O Paulo", L"sao paulo"},
      {L"\u0141\u00F3d\u017A", L"lodz"},
      {L"Stra\u00DFe \u00C6r\u00F8", L"strasse aero"},
      {L"A\u030Angstro\u0308m", L"angstrom"},
      {L"Guinea-Bissau", L"guinea bissau"},
      {L"St. John's", L"st johns"},
      {L"\u0218\u021B \u1EA0\u1EF9", L"st ay"},
      {L"\u0130zm\u0131r", L"izmir"},
      {L"\u6771\u4EAC 3\u00D74", L"\u6771\u4EAC 3\u00D74"}};
  for (const auto& [text, folded] : cases) EXPECT_EQ(FoldForSearch(text), folded);
}

TEST(TypeAhead, BeginningsBeforeLaterWords) {
  const Names items = {L"East London", L"Londonderry", L"London", L"Z\u00FCrich"};
  EXPECT_EQ(TypeAheadMatch(items, L"lond"), 1u);
  EXPECT_EQ(TypeAheadMatch(items, L"LONDON"), 2u);  // a whole name is never a longer one
  EXPECT_EQ(TypeAheadMatch(items, L"zur"), 3u);
  EXPECT_EQ(TypeAheadMatch(Names{L"New York", L"East London"}, L"l\u00F4n"), 1u);
  EXPECT_EQ(TypeAheadMatch(items, L"ondon"), std::nullopt);
  EXPECT_EQ(TypeAheadMatch(items, L""), std::nullopt);
  EXPECT_EQ(TypeAheadMatch({}, L"a"), std::nullopt);
}

TEST(TypeAhead, OffersTheRestOfAnItemWhileTheUserTypes) {
  const Names items = {L"East London", L"Londonderry", L"London", L"Z\u00FCrich", L"St. John's"};
  using Offer = std::optional<Completion>;
  EXPECT_EQ(CompleteTyped(items, L"l", L""), (Offer{{1, 1}}));
  EXPECT_EQ(CompleteTyped(items, L"LON", L"LO"), (Offer{{1, 3}}));
  EXPECT_EQ(CompleteTyped(items, L"london", L"londo"), (Offer{{2, 6}}));
  EXPECT_EQ(CompleteTyped(items, L"zur", L"zu"), (Offer{{3, 3}}));
  EXPECT_EQ(CompleteTyped(items, L"st jo", L"st j"), (Offer{{4, 6}}));
  // Typing over what stood there is no deleting; taking away is, and so is what changes nothing.
  EXPECT_EQ(CompleteTyped(items, L"e", L"London"), (Offer{{0, 1}}));
  EXPECT_EQ(CompleteTyped(items, L"Lo", L"Lon"), std::nullopt);
  EXPECT_EQ(CompleteTyped(items, L"Lon", L"Lon"), std::nullopt);
  EXPECT_EQ(CompleteTyped(items, L"", L"L"), std::nullopt);
  // A later word is found when the choice is made, but not offered.
  EXPECT_EQ(CompleteTyped(Names{L"New York"}, L"yo", L"y"), std::nullopt);
}

TEST(WeatherAddress, EndpointPathAndCode) {
  const wchar_t* full =
      L"http://feed.example/wxdata/weather/rss/local/UKXX 0085?lngCM_ven=LWO&lngCM_cat=rss";
  for (const wchar_t* endpoint : {L"feed.example", L" http://feed.example/ ", L"feed.example//"}) {
    EXPECT_EQ(FeedAddress(endpoint, L"UKXX 0085"), full);
  }
  EXPECT_EQ(FeedAddress(L"https://h:8080", L"1").rfind(L"https://h:8080/wxdata/", 0), 0u);
}

TEST(WeatherAddress, LiveForecastOfAPoint) {
  const test::MemorySettings settings;
  EXPECT_EQ(LiveAddress(settings.Read(kLiveWeatherAddress), {L"51.5085", L"-0.1257"}),
            L"https://api.open-meteo.com/v1/forecast?latitude=51.5085&longitude=-0.1257"
            L"&current=temperature_2m,weather_code,is_day"
            L"&daily=weather_code,temperature_2m_max,temperature_2m_min"
            L"&temperature_unit=fahrenheit&timezone=auto&forecast_days=3");
}

TEST(WeatherGlyphs, EveryNumberHasAPictureOfTheFont) {
  for (int icon = -1; icon <= 100; ++icon) {
    EXPECT_GE(WeatherGlyph(icon), 0xE000) << icon;
    EXPECT_LE(WeatherGlyph(icon), 0xE015) << icon;
  }
  const wchar_t not_available = WeatherGlyph(-1);
  for (int icon : {25, 44, 48, 99}) EXPECT_EQ(WeatherGlyph(icon), not_available) << icon;
  EXPECT_EQ(WeatherGlyph(0), WeatherGlyph(27));  // both are cloudy nights
  for (int icon : {0, 3, 5, 9, 13, 19, 24, 26, 28, 31, 32}) {
    EXPECT_NE(WeatherGlyph(icon), not_available) << icon;
  }
}

}  // namespace
}  // namespace varnel
