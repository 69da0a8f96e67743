// Weather codes of the World Meteorological Organization, as forecasts give them, in the feed's
// words and pictures.
#pragma once

#include <string_view>

namespace varnel {

// One kind of weather. All words are free of commas, which would end a field of the feed.
struct WeatherKind {
  int code;       // WMO 4677, the codes that forecasts use
  int day_image;  // the feed's image number
  int night_image;
  std::wstring_view words;        // the condition, by day where that matters
  std::wstring_view night_words;  // empty where they are the same
  std::wstring_view forecast;     // words from which the feed reader tells the right picture
};

// Any code that forecasts do not use gives the kind "not available", which has no words.
const WeatherKind& WeatherKindOf(int code);

}  // namespace varnel
