// Where the weather's labels stand: location, symbol and temperature, condition, and below them, or
// beside them on a very broad panel, the forecast on a card of its own, one group as large as the
// panel allows.
#pragma once

#include <array>

#include "base/geometry.h"
#include "base/label_place.h"
#include "base/text_measure.h"
#include "widgets/weather/weather_feed.h"

namespace varnel {

struct ForecastPlace {
  LabelPlace date;   // lblFOREDATE
  LabelPlace icon;   // lblFOREICON
  LabelPlace temps;  // lblFORETEMP
  bool operator==(const ForecastPlace&) const = default;
};

struct WeatherLayout {
  LabelPlace location;  // lblWeatherCountry
  LabelPlace symbol;    // lblWeathersymbol
  LabelPlace temperature;
  LabelPlace condition;                   // lblDESC
  Rect pfrFORECAST;                       // the card; empty when there is no forecast on it
  std::array<ForecastPlace, 3> forecast;  // one below the other on a card beside, else side by side
  bool operator==(const WeatherLayout&) const = default;
};

// Lays out what `labels` say on a panel of `panel` pixels at `dpi`. Nothing comes nearer to an edge
// than 8 px (at 96 dpi; half of it on low panels), overlaps or is cut off: what would be too small
// to read is left out, the forecast first, then the condition, then the location; a panel too small
// for symbol and temperature shows nothing. Empty texts take no room.
WeatherLayout LayOutWeather(Size panel, int dpi, const WeatherLabels& labels,
                            const TextMeasure& measure);

}  // namespace varnel
