#include "widgets/weather/place_lists_win.h"

#include "win/system/code_page.h"
#include "win/system/resource_data.h"

namespace varnel {

std::wstring PlaceLists::List(const wchar_t* name) const {
  return WideFromCodePage(ResourceData(instance_, name, L"DATA"));
}

std::wstring PlaceLists::Places(bool united) const {
  return List(united ? L"USTATES" : L"INTERNATIONAL");
}

std::vector<std::wstring> PlaceLists::Areas(bool united) const {
  return AreaNames(List(united ? L"STATES" : L"COUNTRIES"));
}

std::vector<std::wstring> PlaceLists::Cities(bool united, const std::wstring& area) const {
  return CityNames(Places(united), area);
}

std::optional<WeatherPlace> PlaceLists::Resolve(bool united, const std::wstring& area,
                                                const std::wstring& city) const {
  return ResolvePlace(Places(united), area, city);
}

std::optional<Coordinates> PlaceLists::CoordinatesOf(const std::wstring& code) const {
  return varnel::CoordinatesOf(List(L"COORDINATES"), code);
}

}  // namespace varnel
