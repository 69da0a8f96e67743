// The live source: a forecast in JSON, as Open-Meteo answers it, becomes text of the weather feed,
// so that everything behind it is one path.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "widgets/weather/places.h"

namespace varnel {

// What the source's licence wants to stand beside its data, and the address the words lead to.
inline constexpr std::wstring_view kLiveAttribution = L"Weather data by Open-Meteo.com";
inline constexpr std::wstring_view kShortLiveAttribution = L"Open-Meteo.com";
inline constexpr std::wstring_view kLiveAttributionAddress = L"https://open-meteo.com/";

// The longest answer that is read, in bytes; a proper one has about 1,000.
inline constexpr std::size_t kMostLiveAnswer = 64 * 1024;

struct LiveFeed {
  std::wstring text;       // the feed, ready for NormaliseFeed; empty after a failure
  std::wstring complaint;  // after a failure the reason in plain words, one line
};

// `answer` is UTF-8 JSON for an address of LiveAddress, `place` names what the feed is titled with.
// The feed shows its forecast as written, so its figures are written in the scale wanted; the
// current temperature is always in Fahrenheit. As the feed reader takes over nothing at or below
// 0 degrees Fahrenheit, such a temperature is told in the condition's words instead.
// A null in a day's figures is passed on as "null"; everything else that is missing, of a wrong
// type or out of all range is a failure.
LiveFeed FeedFromLiveAnswer(std::string_view answer, const WeatherPlace& place, bool fahrenheit);

}  // namespace varnel
