#include "widgets/weather/wmo_weather.h"

namespace varnel {
namespace {

constexpr WeatherKind kNotAvailable = {-1, 44, 44, L"", L"", L""};

constexpr WeatherKind kKinds[] = {
    {0, 32, 31, L"Sunny", L"Clear", L"Sunny"},
    {1, 34, 33, L"Mostly Sunny", L"Mostly Clear", L"Mostly Sunny"},
    {2, 30, 29, L"Partly Cloudy", L"", L"Partly Cloudy"},
    {3, 26, 26, L"Cloudy", L"", L"Cloudy"},
    {45, 20, 20, L"Fog", L"", L"Mist and Fog"},
    {48, 20, 20, L"Freezing Fog", L"", L"Freezing Mist and Fog"},
    {51, 9, 9, L"Light Drizzle", L"", L"Light Drizzle or Rain"},
    {53, 9, 9, L"Drizzle", L"", L"Drizzle or Rain"},
    {55, 9, 9, L"Heavy Drizzle", L"", L"Heavy Drizzle or Rain"},
    {56, 8, 8, L"Light Freezing Drizzle", L"", L"Light Freezing Rain"},
    {57, 8, 8, L"Freezing Drizzle", L"", L"Freezing Rain"},
    {61, 11, 11, L"Light Rain", L"", L"Light Rain"},
    {63, 12, 12, L"Rain", L"", L"Rain"},
    {65, 40, 40, L"Heavy Rain", L"", L"Heavy Rain"},
    {66, 10, 10, L"Light Freezing Rain", L"", L"Light Freezing Rain"},
    {67, 10, 10, L"Freezing Rain", L"", L"Freezing Rain"},
    {71, 14, 14, L"Light Snow", L"", L"Light Snow"},
    {73, 16, 16, L"Snow", L"", L"Snow"},
    {75, 41, 41, L"Heavy Snow", L"", L"Heavy Snow"},
    {77, 13, 13, L"Snow Grains", L"", L"Snow"},
    {80, 11, 45, L"Light Showers", L"", L"Light Showers"},
    {81, 39, 45, L"Showers", L"", L"Showers"},
    {82, 40, 45, L"Heavy Showers", L"", L"Heavy Showers"},
    {85, 42, 46, L"Light Snow Showers", L"", L"Light Snow Showers"},
    {86, 42, 46, L"Heavy Snow Showers", L"", L"Heavy Snow Showers"},
    {95, 4, 47, L"Thunderstorms", L"", L"Thunderstorms"},
    {96, 4, 47, L"Thunderstorms with Hail", L"", L"Thunderstorms with Hail"},
    {99, 3, 47, L"Severe Thunderstorms with Hail", L"", L"Severe Thunderstorms with Hail"},
};

}  // namespace

const WeatherKind& WeatherKindOf(int code) {
  for (const WeatherKind& kind : kKinds) {
    if (kind.code == code) return kind;
  }
  return kNotAvailable;
}

}  // namespace varnel
