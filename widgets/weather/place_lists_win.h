// The place lists that the program file carries.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <vector>

#include "widgets/weather/places.h"

namespace varnel {

// `united` stands for the United States list with its states, else it is the international one with
// its countries. The lists are decoded for each question and not kept.
class PlaceLists {
 public:
  explicit PlaceLists(HINSTANCE instance) : instance_(instance) {}

  std::vector<std::wstring> Areas(bool united) const;
  std::vector<std::wstring> Cities(bool united, const std::wstring& area) const;
  std::optional<WeatherPlace> Resolve(bool united, const std::wstring& area,
                                      const std::wstring& city) const;
  std::optional<Coordinates> CoordinatesOf(const std::wstring& code) const;

 private:
  std::wstring List(const wchar_t* name) const;
  std::wstring Places(bool united) const;

  HINSTANCE instance_;
};

}  // namespace varnel
