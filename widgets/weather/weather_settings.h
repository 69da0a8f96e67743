// The stored settings of the weather widget. "Temp-Selected" and "Weather location-world" are read
// with ReadFlag: any number but zero chooses the second option.
#pragma once

#include "base/settings.h"

namespace varnel {

inline constexpr std::wstring_view kWeatherSection = L"frmWTHpr\\Details";

inline constexpr Setting kTempSelected{kWeatherSection, L"Temp-Selected", L"0"};  // 1: Fahrenheit
inline constexpr Setting kWeatherWorld{kWeatherSection, L"Weather location-world", L"0"};  // 1: US
inline constexpr Setting kWeatherCountry{kWeatherSection, L"Weather location-country-name",
                                         L"United Kingdom"};
inline constexpr Setting kWeatherCity{kWeatherSection, L"Weather location-country-area", L"London"};

// Where the feed is asked for; while empty, the live source is asked instead.
inline constexpr Setting kWeatherFeedEndpoint{kWeatherSection, L"Weather Feed Endpoint", L""};
inline constexpr Setting kLiveWeatherAddress{kWeatherSection, L"Live Weather Address",
                                             L"https://api.open-meteo.com"};

}  // namespace varnel
