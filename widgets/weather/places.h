// Reads the place lists that are built into the program. Each function takes the text of one whole
// list, as decoded from its resource: lines end in LF (a CR before it is dropped), double quotes
// are left out, blanks around a line too. Nothing is kept, so the text may be dropped afterwards.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnel {

// A place line: code|city|area, the area being a country or a US state.
struct WeatherPlace {
  std::wstring code;
  std::wstring city;
  std::wstring area;
  bool operator==(const WeatherPlace&) const = default;
};

// A point on the globe in decimal degrees, as text that is known to be a number in range.
struct Coordinates {
  std::wstring latitude;   // -90 to 90
  std::wstring longitude;  // -180 to 180
  bool operator==(const Coordinates&) const = default;
};

// The field with this number, counted from 1; empty when there are not so many.
std::wstring_view Field(std::wstring_view text, std::size_t number, wchar_t separator);

// Every line of "COUNTRIES" or "STATES" that is not empty, for cboCOUNTRY.
std::vector<std::wstring> AreaNames(std::wstring_view names);

// For cboCOUNTRYAREA: the city of every line of "INTERNATIONAL" or "USTATES" whose area occurs
// within `area` (case-sensitive). Lines with an empty code, city or area count for nothing.
std::vector<std::wstring> CityNames(std::wstring_view places, std::wstring_view area);

// The first line whose area occurs within `area` and whose city occurs within `city`.
std::optional<WeatherPlace> ResolvePlace(std::wstring_view places, std::wstring_view area,
                                         std::wstring_view city);

// Looks a code up in "COORDINATES" (code|latitude|longitude). Nothing when it is not there or
// what stands there is no point on the globe.
std::optional<Coordinates> CoordinatesOf(std::wstring_view coordinates, std::wstring_view code);

}  // namespace varnel
