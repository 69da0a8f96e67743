#include "widgets/weather/places.h"

#include <algorithm>

#include "base/number_text.h"

namespace varnel {
namespace {

constexpr wchar_t kSeparator = L'|';
constexpr std::size_t kMostCoordinate = 12;  // characters, "-179.9999" and some to spare

bool Within(std::wstring_view part, std::wstring_view text) {
  return text.find(part) != std::wstring_view::npos;
}

// The lines of a list, one after the other, as views that last until the next one is taken.
class LineReader {
 public:
  explicit LineReader(std::wstring_view text) : rest_(text) {}

  bool Next(std::wstring_view& line) {
    if (rest_.empty()) return false;
    const std::size_t end = std::min(rest_.find(L'\n'), rest_.size());
    line = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    if (line.ends_with(L'\r')) line.remove_suffix(1);
    if (line.find(L'"') != std::wstring_view::npos) {
      unquoted_ = line;
      std::erase(unquoted_, L'"');
      line = unquoted_;
    }
    const std::size_t first = line.find_first_not_of(L' ');
    line = first == std::wstring_view::npos
               ? std::wstring_view()
               : line.substr(first, line.find_last_not_of(L' ') - first + 1);
    return true;
  }

 private:
  std::wstring_view rest_;
  std::wstring unquoted_;
};

// The place lines whose area occurs within the chosen one.
class PlaceReader {
 public:
  PlaceReader(std::wstring_view places, std::wstring_view area) : lines_(places), area_(area) {}

  bool Next() {
    std::wstring_view line;
    while (lines_.Next(line)) {
      area = Field(line, 3, kSeparator);
      if (area.empty() || !Within(area, area_)) continue;  // most lines end here
      code = Field(line, 1, kSeparator);
      city = Field(line, 2, kSeparator);
      if (!code.empty() && !city.empty()) return true;
    }
    return false;
  }

  std::wstring_view code, city, area;

 private:
  LineReader lines_;
  std::wstring_view area_;
};

bool IsDegrees(std::wstring_view text, double limit) {
  if (text.empty() || text.size() > kMostCoordinate) return false;
  const std::size_t sign = text.front() == L'-' ? 1 : 0;
  if (text.find_first_not_of(L"0123456789.", sign) != std::wstring_view::npos) return false;
  if (text.find_first_of(L"0123456789") == std::wstring_view::npos) return false;
  if (std::count(text.begin(), text.end(), L'.') > 1) return false;
  const double degrees = LeadingNumber(text);
  return degrees >= -limit && degrees <= limit;
}

}  // namespace

std::wstring_view Field(std::wstring_view text, std::size_t number, wchar_t separator) {
  for (; number > 1; --number) {
    const std::size_t end = text.find(separator);
    if (end == std::wstring_view::npos) return {};
    text.remove_prefix(end + 1);
  }
  return number == 0 ? std::wstring_view() : text.substr(0, text.find(separator));
}

std::vector<std::wstring> AreaNames(std::wstring_view names) {
  std::vector<std::wstring> result;
  LineReader lines(names);
  for (std::wstring_view line; lines.Next(line);) {
    if (!line.empty()) result.emplace_back(line);
  }
  return result;
}

std::vector<std::wstring> CityNames(std::wstring_view places, std::wstring_view area) {
  std::vector<std::wstring> result;
  for (PlaceReader reader(places, area); reader.Next();) result.emplace_back(reader.city);
  return result;
}

std::optional<WeatherPlace> ResolvePlace(std::wstring_view places, std::wstring_view area,
                                         std::wstring_view city) {
  for (PlaceReader reader(places, area); reader.Next();) {
    if (!Within(reader.city, city)) continue;
    return WeatherPlace{std::wstring(reader.code), std::wstring(reader.city),
                        std::wstring(reader.area)};
  }
  return std::nullopt;
}

std::optional<Coordinates> CoordinatesOf(std::wstring_view coordinates, std::wstring_view code) {
  if (code.empty()) return std::nullopt;
  LineReader lines(coordinates);
  for (std::wstring_view line; lines.Next(line);) {
    if (!line.starts_with(code) || Field(line, 1, kSeparator) != code) continue;
    const std::wstring_view latitude = Field(line, 2, kSeparator);
    const std::wstring_view longitude = Field(line, 3, kSeparator);
    if (!IsDegrees(latitude, 90) || !IsDegrees(longitude, 180)) return std::nullopt;
    return Coordinates{std::wstring(latitude), std::wstring(longitude)};
  }
  return std::nullopt;
}

}  // namespace varnel
