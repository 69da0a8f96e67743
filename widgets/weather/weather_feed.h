// Reads the weather feed: current conditions and a three-day forecast, from the text that
// NormaliseFeed makes. A missing marker never fails; what it should have led to is then empty.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace varnel {

// What is known of the current weather; kept between readings.
struct WeatherData {
  std::wstring LocationTitle;     // city and country, comma-separated, as the feed names them
  std::wstring ConditionText;     // such as "Partly Cloudy"
  std::wstring DescriptionBlock;  // the description element of the current item, as it came
  // The last feed temperature above 0 degrees Fahrenheit; 0 while there was none.
  double TemperatureF = 0;
};

// The icon that stands for weather not known.
inline constexpr int kIconNotAvailable = 25;

struct ForecastSlot {
  std::wstring date;             // lblFOREDATE
  int icon = kIconNotAvailable;  // lblFOREICON, an icon number
  std::wstring temps;            // lblFORETEMP
};

// The texts for the widget's labels, and the settings form's working texts.
struct WeatherLabels {
  std::wstring txtCURRENT;         // the slice of the current conditions
  std::wstring txtFINALNOW;        // their summary
  std::wstring location;           // lblWeatherCountry
  int symbol = kIconNotAvailable;  // lblWeathersymbol, an icon number
  std::wstring temperature;        // with its scale
  std::wstring condition;          // lblDESC
  std::array<ForecastSlot, 3> forecast;
};

// What keeps the text from being taken for the weather, as words within a sentence; empty when it
// holds the current conditions whole, and a forecast whole unless the feed ends without one. With
// any other text the labels had better stay.
std::wstring_view FeedComplaint(std::wstring_view txtDATA);

// Reads current conditions and forecast. `fahrenheit` is the scale of the temperature label; the
// forecast is shown as the feed gives it. Nothing for an empty text: every label then stays.
// A temperature that is no whole number above 0 is not taken over: `data.TemperatureF`, and the
// label with it, keep the earlier one; the label is "-" where there is none.
std::optional<WeatherLabels> DataFileRead(std::wstring_view txtDATA, bool fahrenheit,
                                          WeatherData& data);

// Reads the forecast alone. A day that the text lacks leaves its slot blank.
std::array<ForecastSlot, 3> DataFileRead10Days(std::wstring_view txtDATA);

// The icon shown for an image number of the feed; numbers that are not merged stay as they are.
int ReducedIcon(int feed_code);

// 5/9 * (f - 32), cut to hundredths after adding 0.0005, then rounded to tenths, halves away from
// zero: 33 gives 0.6.
double FahrenheitToCelsius(double f);

// The temperature label in whole degrees: "50F " or "10C".
std::wstring TemperatureLabel(double f, bool fahrenheit);

// Parts of one forecast entry, such as "Sat: Mostly Sunny / High 72&deg; F / Low 55&deg; F":
// "Sat", "72/55" and 28.
std::wstring ForecastDay(std::wstring_view entry);
std::wstring ForecastTemps(std::wstring_view entry);
int ForecastIcon(std::wstring_view entry);

}  // namespace varnel
