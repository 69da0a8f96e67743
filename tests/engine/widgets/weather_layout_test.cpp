#include <gtest/gtest.h>

#include <vector>

#include "tests/support/boxes.h"
#include "tests/support/plain_measure.h"
#include "widgets/weather/weather_layout.h"

namespace varnel {
namespace {

WeatherLabels Usual() {
  WeatherLabels labels;
  labels.location = L"London, United Kingdom";
  labels.temperature = L"57F ";
  labels.condition = L"Partly Cloudy";
  labels.forecast = {{{L"Sat", 28, L"72/55"}, {L"Sun", 9, L"68/51"}, {L"Mon", 19, L"100/-4"}}};
  return labels;
}

std::vector<Rect> Shown(const WeatherLayout& layout) {
  std::vector<LabelPlace> places{layout.location, layout.symbol, layout.temperature,
                                 layout.condition};
  for (const ForecastPlace& day : layout.forecast) {
    places.insert(places.end(), {day.date, day.icon, day.temps});
  }
  std::vector<Rect> boxes;
  for (const LabelPlace& place : places) {
    if (place.shown()) boxes.push_back(place.box);
  }
  return boxes;
}

void CheckText(const LabelPlace& place, const std::wstring& text, int least, int dpi) {
  if (!place.shown()) return;
  EXPECT_LE(test::PlainMeasure().Measure(text, place.font_height).width, place.box.width()) << text;
  EXPECT_GE(place.font_height, Scaled(least, dpi)) << text;
}

// Whatever the panel and its resolution.
void CheckLayout(Size panel, int dpi, const WeatherLabels& labels, const WeatherLayout& layout) {
  const Rect area = Inset({0, 0, panel.width, panel.height}, Scaled(4, dpi));
  test::ExpectApart(Shown(layout), area);
  CheckText(layout.location, labels.location, 11, dpi);
  CheckText(layout.temperature, labels.temperature, 18, dpi);
  CheckText(layout.condition, labels.condition, 11, dpi);
  for (std::size_t i = 0; i < 3; ++i) {
    const ForecastPlace& day = layout.forecast[i];
    EXPECT_EQ(day.date.shown(), !layout.pfrFORECAST.empty());
    if (layout.pfrFORECAST.empty()) continue;
    CheckText(day.date, labels.forecast[i].date, 10, dpi);
    CheckText(day.temps, labels.forecast[i].temps, 10, dpi);
    for (const LabelPlace& place : {day.date, day.icon, day.temps}) {
      EXPECT_TRUE(test::Inside(place.box, layout.pfrFORECAST));
    }
  }
}

TEST(WeatherLayout, EveryPanelAtEveryResolution) {
  WeatherLabels long_words = Usual();
  long_words.location = L"Kingstown, Saint Vincent and the Grenadines";
  long_words.condition = L"Thunderstorm with Heavy Hail at -22F (-30C)";
  WeatherLabels unknown;
  unknown.location = L"London, United Kingdom";
  unknown.temperature = L"-";
  for (const WeatherLabels& labels : {Usual(), long_words, unknown}) {
    for (const int dpi : {96, 144, 192}) {
      for (const int width : {158, 200, 240, 391, 500, 801, 1280, 1920, 3840}) {
        for (const int height : {57, 75, 107, 160, 181, 300, 683, 1080, 2160}) {
          SCOPED_TRACE(testing::Message() << width << " x " << height << " at " << dpi);
          const Size panel{Scaled(width, dpi), Scaled(height, dpi)};
          const WeatherLayout layout = LayOutWeather(panel, dpi, labels, test::PlainMeasure());
          EXPECT_TRUE(layout.symbol.shown() && layout.temperature.shown());
          CheckLayout(panel, dpi, labels, layout);
        }
      }
    }
  }
}

TEST(WeatherLayout, UsualSizesShowEverything) {
  for (const Size panel : {Size{391, 181}, Size{328, 183}, Size{498, 300}, Size{240, 300}}) {
    EXPECT_EQ(Shown(LayOutWeather(panel, 96, Usual(), test::PlainMeasure())).size(), 13u);
  }
}

// What is left as a panel becomes lower: never a part of lower rank without those above.
TEST(WeatherLayout, LeavesOutByRank) {
  std::size_t before = 13;
  bool seen[14] = {};
  for (int height = 300; height >= 30; --height) {
    const WeatherLayout layout = LayOutWeather({600, height}, 96, Usual(), test::PlainMeasure());
    const std::size_t now = Shown(layout).size();
    EXPECT_LE(now, before) << height;
    EXPECT_EQ(layout.forecast[0].date.shown(), now == 13) << height;
    EXPECT_EQ(layout.condition.shown(), now >= 4) << height;
    EXPECT_EQ(layout.location.shown(), now >= 3) << height;
    seen[now] = true;
    before = now;
  }
  EXPECT_TRUE(seen[13] && seen[4] && seen[3] && seen[2]);
}

// From top to bottom, with flat days where that leaves more room, but beside on a very broad panel.
TEST(WeatherLayout, CardGoesWhereThereIsMoreRoom) {
  const struct {
    Size panel;
    bool flat;
    bool beside;
  } cases[] = {{{240, 300}, false, false}, {{391, 181}, true, false}, {{900, 160}, true, true}};
  for (const auto& [panel, flat, beside] : cases) {
    const WeatherLayout layout = LayOutWeather(panel, 96, Usual(), test::PlainMeasure());
    EXPECT_LE(layout.location.box.bottom, layout.temperature.box.top);
    EXPECT_LE(layout.temperature.box.bottom, layout.condition.box.top);
    EXPECT_EQ(layout.condition.box.bottom <= layout.pfrFORECAST.top, !beside);
    EXPECT_EQ(layout.temperature.box.right <= layout.pfrFORECAST.left, beside);
    const auto& [date, icon, temps] = layout.forecast[0];
    EXPECT_EQ(date.box.top == temps.box.top, flat);
    EXPECT_EQ(date.box.top == layout.forecast[2].date.box.top, !beside);
  }
}

TEST(WeatherLayout, SurvivesSenselessInput) {
  const test::PlainMeasure measure;
  for (const Size panel : {Size{0, 0}, Size{-50, 30}, Size{16, 16}, Size{10000, 1}}) {
    EXPECT_TRUE(Shown(LayOutWeather(panel, 96, Usual(), measure)).empty());
  }
  WeatherLabels labels = Usual();
  labels.location = std::wstring(400, L'x');
  labels.forecast[1].temps = std::wstring(900, L'9');
  const WeatherLayout layout = LayOutWeather({391, 181}, 96, labels, measure);
  EXPECT_FALSE(layout.location.shown() || layout.forecast[1].temps.shown());
  EXPECT_TRUE(layout.condition.shown());
  CheckLayout({391, 181}, 96, labels, layout);
  EXPECT_TRUE(LayOutWeather({391, 181}, 0, Usual(), measure).symbol.shown());
}

}  // namespace
}  // namespace varnel
