#include "widgets/weather/live_source.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>

#include "base/number_text.h"
#include "base/text.h"
#include "widgets/weather/weather_feed.h"
#include "widgets/weather/wmo_weather.h"

namespace varnel {
namespace {

using Json = nlohmann::json;

// Beyond anything ever measured on the ground, degrees Fahrenheit.
constexpr double kColdest = -200;
constexpr double kHottest = 200;
constexpr int kHighestCode = 99;
constexpr std::size_t kMostName = 100;    // characters of a place name
constexpr std::size_t kMostReason = 120;  // characters of the source's own reason

struct CurrentWeather {
  double temperature = 0;
  int code = 0;
  bool day = true;
};

struct DayForecast {
  std::wstring_view weekday;
  std::optional<int> code;
  std::optional<double> high;
  std::optional<double> low;
};

using Forecast = std::array<DayForecast, 3>;

// One line of harmless text: what would end a field or an element of the feed becomes a blank.
std::wstring PlainWords(std::wstring_view text, std::size_t most) {
  std::wstring words(text.substr(0, most));
  for (wchar_t& unit : words) {
    if (unit < L' ' || std::wstring_view(L"<>[]&\"\x7F").find(unit) != std::wstring_view::npos) {
      unit = L' ';
    }
  }
  return Trim(words);
}

// Takes values out of the answer. The first that cannot be had is complained of; from then on what
// is taken means nothing.
class AnswerReader {
 public:
  const std::wstring& complaint() const { return complaint_; }

  const Json& Member(const Json& parent, const char* name) {
    if (parent.is_object()) {
      const auto found = parent.find(name);
      if (found != parent.end()) return *found;
    }
    Complain(L"The weather answer lacks ", name);
    return nothing_;
  }

  const Json& Element(const Json& parent, const char* name, std::size_t index) {
    const Json& list = Member(parent, name);
    if (list.is_array() && index < list.size()) return list[index];
    Complain(L"The weather answer has too few days in ", name);
    return nothing_;
  }

  double Number(const Json& value, const char* name, double low, double high) {
    if (value.is_number()) {
      const double number = value.get<double>();
      if (number >= low && number <= high) return number;
    }
    Complain(L"The weather answer has a wrong value in ", name);
    return low;
  }

  std::optional<double> NumberOrNull(const Json& value, const char* name, double low, double high) {
    if (value.is_null()) return std::nullopt;
    return Number(value, name, low, high);
  }

  std::string Text(const Json& value, const char* name) {
    if (value.is_string()) return value.get_ref<const std::string&>();
    Complain(L"The weather answer has a wrong value in ", name);
    return {};
  }

  void Complain(std::wstring_view words, std::string_view name) {
    if (!complaint_.empty()) return;
    complaint_.append(words).append(L"\"").append(WideFromUtf8(name)).append(L"\".");
  }

 private:
  const Json nothing_;
  std::wstring complaint_;
};

int DigitsOf(std::string_view text) {
  int value = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') return -1;
    value = value * 10 + (digit - '0');
  }
  return value;
}

// The weekday of a date "2026-11-21"; empty when it is none.
std::wstring_view WeekdayOf(std::string_view date) {
  static constexpr std::wstring_view kNames[] = {L"Sun", L"Mon", L"Tue", L"Wed",
                                                 L"Thu", L"Fri", L"Sat"};
  if (date.size() != 10 || date[4] != '-' || date[7] != '-') return {};
  const int year = DigitsOf(date.substr(0, 4));
  const int month = DigitsOf(date.substr(5, 2));
  const int day = DigitsOf(date.substr(8, 2));
  if (year < 0 || month < 0 || day < 0) return {};
  const std::chrono::year_month_day calendar{std::chrono::year(year),
                                             std::chrono::month(static_cast<unsigned>(month)),
                                             std::chrono::day(static_cast<unsigned>(day))};
  if (!calendar.ok()) return {};
  return kNames[std::chrono::weekday(std::chrono::sys_days(calendar)).c_encoding()];
}

CurrentWeather ReadCurrent(AnswerReader& reader, const Json& answer) {
  const Json& units = reader.Member(answer, "current_units");
  if (reader.Text(reader.Member(units, "temperature_2m"), "temperature_2m") != "\u00B0F") {
    reader.Complain(L"The weather answer has another unit in ", "temperature_2m");
  }
  const Json& current = reader.Member(answer, "current");
  const auto number = [&](const char* name, double low, double high) {
    return reader.Number(reader.Member(current, name), name, low, high);
  };
  return {number("temperature_2m", kColdest, kHottest),
          static_cast<int>(number("weather_code", 0, kHighestCode)), number("is_day", 0, 1) != 0};
}

Forecast ReadForecast(AnswerReader& reader, const Json& answer) {
  Forecast forecast;
  const Json& daily = reader.Member(answer, "daily");
  for (std::size_t i = 0; i < forecast.size(); ++i) {
    const auto number = [&](const char* name, double low, double high) {
      return reader.NumberOrNull(reader.Element(daily, name, i), name, low, high);
    };
    DayForecast& day = forecast[i];
    day.weekday = WeekdayOf(reader.Text(reader.Element(daily, "time", i), "time"));
    if (day.weekday.empty()) reader.Complain(L"The weather answer has a wrong date in ", "time");
    if (const auto code = number("weather_code", 0, kHighestCode)) {
      day.code = static_cast<int>(*code);
    }
    day.high = number("temperature_2m_max", kColdest, kHottest);
    day.low = number("temperature_2m_min", kColdest, kHottest);
  }
  return forecast;
}

std::wstring WrittenCurrent(const CurrentWeather& current) {
  const WeatherKind& kind = WeatherKindOf(current.code);
  const int image = current.day ? kind.day_image : kind.night_image;
  std::wstring words(current.day || kind.night_words.empty() ? kind.words : kind.night_words);
  const long long degrees = RoundHalfEven(current.temperature);
  std::wstring figure;
  if (degrees > 0) {
    figure = NumberText(degrees);
  } else {
    words += L" at " + Trim(TemperatureLabel(current.temperature, true)) + L" (" +
             TemperatureLabel(current.temperature, false) + L")";
  }
  return L"<img src=\"images/" + NumberText(image) + L".gif\" alt=\"\" />" + words + L", and " +
         figure + L" &deg; F. For more details see the forecast.";
}

std::wstring WrittenFigure(const std::optional<double>& degrees, bool fahrenheit) {
  if (!degrees) return L"null&deg;";
  const std::wstring label = Trim(TemperatureLabel(*degrees, fahrenheit));
  return label.substr(0, label.size() - 1) + L"&deg; " + label.back();
}

std::wstring WrittenDay(const DayForecast& day, bool fahrenheit) {
  std::wstring text(day.weekday);
  text.append(L": ").append(WeatherKindOf(day.code.value_or(-1)).forecast);
  return text + L" / High " + WrittenFigure(day.high, fahrenheit) + L" / Low " +
         WrittenFigure(day.low, fahrenheit) + L" --- ";
}

std::wstring WrittenItem(std::wstring_view title, std::wstring_view description) {
  std::wstring item = L"<item>\r\n<title><![CDATA[";
  item.append(title).append(L"]]></title>\r\n<description><![CDATA[");
  return item.append(description).append(L"]]></description>\r\n</item>\r\n");
}

std::wstring WrittenFeed(const WeatherPlace& place, const CurrentWeather& current,
                         const Forecast& forecast, bool fahrenheit) {
  const std::wstring where =
      PlainWords(place.city, kMostName) + L", " + PlainWords(place.area, kMostName);
  std::wstring days;
  for (const DayForecast& day : forecast) days += WrittenDay(day, fahrenheit);
  return L"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<rss version=\"2.0\">\r\n<channel>\r\n" +
         WrittenItem(L"Current Weather Conditions In " + where, WrittenCurrent(current)) +
         WrittenItem(L"Your 10-Day Forecast for " + where, days) + L"</channel>\r\n</rss>\r\n";
}

std::wstring OwnReason(const Json& answer) {
  if (!answer.is_object()) return {};
  const auto reason = answer.find("reason");
  if (reason == answer.end() || !reason->is_string()) return {};
  return PlainWords(WideFromUtf8(reason->get_ref<const std::string&>()), kMostReason);
}

}  // namespace

LiveFeed FeedFromLiveAnswer(std::string_view answer, const WeatherPlace& place, bool fahrenheit) {
  if (answer.size() > kMostLiveAnswer) return {L"", L"The weather answer is too long."};
  const Json json = Json::parse(answer.begin(), answer.end(), nullptr, false);
  if (json.is_discarded()) return {L"", L"The weather answer cannot be read."};
  if (const std::wstring reason = OwnReason(json); !reason.empty()) {
    return {L"", L"The weather service says: " + reason};
  }
  AnswerReader reader;
  const CurrentWeather current = ReadCurrent(reader, json);
  const Forecast forecast = ReadForecast(reader, json);
  if (!reader.complaint().empty()) return {L"", reader.complaint()};
  return {WrittenFeed(place, current, forecast, fahrenheit), L""};
}

}  // namespace varnel
