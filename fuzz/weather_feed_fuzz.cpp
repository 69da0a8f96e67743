// Any response, through the field rule and the reader. The first byte chooses the scale.
#include <string>

#include "base/text.h"
#include "fuzz/require.h"
#include "widgets/weather/feed_text.h"
#include "widgets/weather/weather_feed.h"

using namespace varnel;

namespace {

std::size_t CountOf(std::wstring_view text, wchar_t unit) {
  std::size_t count = 0;
  for (const wchar_t one : text) count += one == unit ? 1 : 0;
  return count;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const bool fahrenheit = data[0] % 2 == 1;
  const std::wstring response = WithSections(WideFromUtf8(BytesOf(data + 1, size - 1)));
  Require(WithSections(response) == response);
  const std::wstring text = NormaliseFeed(response);
  Require(CountOf(text, L',') == 0 && CountOf(text, L'\r') == CountOf(text, L'\n'));
  Require(text.empty() == response.empty() && (text.empty() || text.ends_with(L"\r\n")));

  WeatherData weather;
  weather.TemperatureF = 59;
  const auto labels = DataFileRead(text, fahrenheit, weather);
  Require(labels.has_value() != text.empty());
  if (!labels) return 0;
  Require(weather.TemperatureF > 0 && !weather.ConditionText.empty());
  Require(labels->txtCURRENT.size() <= 1000 && labels->condition == weather.ConditionText);
  Require(labels->symbol >= 0 && labels->symbol <= 99);
  for (const ForecastSlot& slot : labels->forecast) {
    Require(slot.date.size() + slot.temps.size() <= 1001);
  }
  const auto again = DataFileRead(text, fahrenheit, weather);
  Require(again && again->txtFINALNOW == labels->txtFINALNOW &&
          again->temperature == labels->temperature);
  return 0;
}
