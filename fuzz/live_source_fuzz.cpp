// Any answer of the live source: a feed that reads back as weather, or a complaint.
#include <string>

#include "fuzz/require.h"
#include "widgets/weather/feed_text.h"
#include "widgets/weather/live_source.h"
#include "widgets/weather/weather_feed.h"

using namespace varnel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const bool fahrenheit = data[0] % 2 == 1;
  const LiveFeed feed =
      FeedFromLiveAnswer(BytesOf(data + 1, size - 1), {L"1", L"London", L"Ontario"}, fahrenheit);
  Require(feed.text.empty() != feed.complaint.empty());
  if (feed.text.empty()) {
    Require(feed.complaint.size() < 200 && feed.complaint.find(L'\n') == std::wstring::npos);
    return 0;
  }
  const std::wstring text = NormaliseFeed(WithSections(feed.text));
  Require(FeedComplaint(text).empty());
  WeatherData weather;
  const auto labels = DataFileRead(text, fahrenheit, weather);
  Require(labels && labels->location == L"London, Ontario");
  // The temperature is either taken over or said in words, never lost or left to an older one.
  Require(weather.TemperatureF > 0 || labels->temperature == L"-");
  for (const ForecastSlot& slot : labels->forecast) {
    Require(slot.date.size() == 3 && slot.temps.find(L'/') != std::wstring::npos);
    Require(slot.temps.size() <= 9);
  }
  return 0;
}
