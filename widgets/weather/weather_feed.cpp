#include "widgets/weather/weather_feed.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "base/text.h"
#include "widgets/weather/entities.h"

namespace varnel {
namespace {

constexpr std::wstring_view kCurrentMarker = L"CDATA[Current Weather";
constexpr std::wstring_view kForecastMarker = L"CDATA[Your 10-Day Forecast";
constexpr std::wstring_view kForecastStart = L"<description><![CDATA[";
constexpr std::wstring_view kDescriptionEnd = L"</description>";
constexpr std::wstring_view kEntryEnd = L"---";
constexpr std::wstring_view kTitlePrefix = L"Current Weather Conditions In ";
constexpr std::wstring_view kLineEnd = L"\r\n";
constexpr std::wstring_view kNoDescription = L"No Description";
constexpr std::wstring_view kNone = L"None";
constexpr std::size_t kCurrentOffset = 6;  // "CDATA["
constexpr std::size_t kMostItem = 1000;    // characters of one item or forecast entry
constexpr std::size_t kFigureOffset = 6;   // the line end and "and "
constexpr std::size_t kHighOffset = 5;     // "High "
constexpr std::size_t kLowOffset = 4;      // "Low "
constexpr std::size_t kBeforeHigh = 3;     // " / "
constexpr int kFeedNotAvailable = 44;
constexpr int kFeedCloudyNight = 27;

std::wstring_view From(std::wstring_view text, std::size_t at) {
  return at < text.size() ? text.substr(at) : std::wstring_view();
}

std::wstring_view After(std::wstring_view text, std::wstring_view marker) {
  const std::size_t at = text.find(marker);
  return at == std::wstring_view::npos ? std::wstring_view() : text.substr(at + marker.size());
}

std::wstring_view Before(std::wstring_view text, std::wstring_view marker) {
  const std::size_t at = text.find(marker);
  return at == std::wstring_view::npos ? std::wstring_view() : text.substr(0, at);
}

std::wstring Replaced(std::wstring_view text, std::wstring_view part, std::wstring_view by) {
  std::wstring result;
  for (std::size_t start = 0;;) {
    const std::size_t at = text.find(part, start);
    result.append(text.substr(start, at - start));
    if (at == std::wstring_view::npos) return result;
    result.append(by);
    start = at + part.size();
  }
}

std::wstring_view CurrentItem(std::wstring_view text) {
  const std::size_t at = text.find(kCurrentMarker);
  if (at == std::wstring_view::npos) return {};
  return text.substr(at + kCurrentOffset, kMostItem);
}

std::wstring TitleOf(std::wstring_view item) {
  return Replaced(Replaced(Before(item, L"]"), kLineEnd, L", "), kTitlePrefix, L"");
}

// The number that the first image's file name begins with; without one, that of "not available".
int ImageCode(std::wstring_view description) {
  std::wstring_view file = After(description, L"src=");
  file.remove_prefix(std::min(file.find_first_not_of(L"\"'"), file.size()));
  file = file.substr(0, file.find_first_of(L"\"' >"));
  std::size_t folder = file.rfind(L'\\');
  if (folder == std::wstring_view::npos) folder = file.rfind(L'/');
  if (folder != std::wstring_view::npos) file.remove_prefix(folder + 1);
  if (file.empty() || file.front() < L'0' || file.front() > L'9') return kFeedNotAvailable;
  return static_cast<int>(LeadingNumber(file.substr(0, 2)));
}

struct Report {
  std::wstring condition;
  std::wstring temperature;
};

Report ReportOf(std::wstring_view description) {
  const std::wstring text = Trim(Before(After(description, L"/>"), L"For more details"));
  const std::size_t line_end = text.find(kLineEnd);
  if (line_end == std::wstring::npos) return {text, L""};
  const std::wstring_view figure = From(text, line_end + kFigureOffset);
  return {text.substr(0, line_end), std::wstring(figure.substr(0, figure.find(L' ')))};
}

std::wstring FixedCondition(std::wstring condition, std::wstring_view description, int feed_code) {
  const auto has = [description](std::wstring_view image) {
    return description.find(image) != std::wstring_view::npos;
  };
  if (condition.empty()) condition = kNone;
  if (has(L"44.gif")) {
    condition = kNoDescription;
  } else if (has(L"25.gif")) {
    condition = kNone;
  }
  if (condition == kNoDescription && feed_code == kFeedCloudyNight) condition = L"Partly Cloudy";
  return condition;
}

// First and second comma field of the title.
std::wstring CountryLabel(std::wstring_view title) {
  const std::size_t comma = title.find(L',');
  const std::wstring city = Replaced(Replaced(title.substr(0, comma), L"\r", L""), L"\n", L"");
  if (comma == std::wstring_view::npos) return city + L", ";
  const std::wstring_view rest = title.substr(comma + 1);
  return city + L", " + Trim(rest.substr(0, rest.find(L',')));
}

// The text from `offset` behind the start of `word` up to the next "&"; `text` goes on behind it.
std::wstring TakeFigure(std::wstring_view& text, std::wstring_view word, std::size_t offset) {
  const std::size_t at = text.find(word);
  if (at == std::wstring_view::npos) return {};
  const std::wstring_view figure = From(text, at + offset);
  const std::size_t end = figure.find(L'&');
  if (end == std::wstring_view::npos) return {};
  text = figure.substr(end + 1);
  return Trim(figure.substr(0, end));
}

// Whether an item, from within its title on, has a description that ends before the next item.
bool IsWhole(std::wstring_view item) {
  const std::wstring_view own = item.substr(0, item.find(L"<title>"));
  return After(own, L"<description>").find(kDescriptionEnd) != std::wstring_view::npos;
}

}  // namespace

std::wstring_view FeedComplaint(std::wstring_view txtDATA) {
  const std::wstring_view current = CurrentItem(txtDATA);
  const std::wstring_view forecast = After(txtDATA, kForecastMarker);
  if (current.empty() && forecast.empty()) return L"the answer holds no weather";
  const bool forecast_ends =
      forecast.empty() ? txtDATA.find(L"</channel>") != txtDATA.npos : IsWhole(forecast);
  return IsWhole(current) && forecast_ends ? L"" : L"the answer was cut short";
}

std::optional<WeatherLabels> DataFileRead(std::wstring_view txtDATA, bool fahrenheit,
                                          WeatherData& data) {
  if (txtDATA.empty()) return std::nullopt;
  WeatherLabels labels;
  labels.txtCURRENT = CurrentItem(txtDATA);
  const std::wstring_view item = labels.txtCURRENT;
  data.LocationTitle = TitleOf(item);
  data.DescriptionBlock = Before(After(item, L"<description>"), kDescriptionEnd);
  const int feed_code = ImageCode(data.DescriptionBlock);
  labels.symbol = ReducedIcon(feed_code);

  Report report = ReportOf(data.DescriptionBlock);
  const auto degrees = WholeNumber(report.temperature);
  if (degrees && *degrees > 0) data.TemperatureF = static_cast<double>(*degrees);
  data.ConditionText =
      FixedCondition(std::move(report.condition), data.DescriptionBlock, feed_code);

  const bool known = !report.temperature.empty() && data.TemperatureF > 0;
  labels.temperature = known ? TemperatureLabel(data.TemperatureF, fahrenheit) : L"-";
  if (report.temperature.empty()) report.temperature = L"No Temp";
  labels.txtFINALNOW =
      data.LocationTitle + L"\r\n\r\n" + data.ConditionText + L"\r\n\r\n" + report.temperature;
  labels.location = WithoutEntities(CountryLabel(data.LocationTitle));
  labels.condition = WithoutEntities(data.ConditionText);
  labels.forecast = DataFileRead10Days(txtDATA);
  return labels;
}

std::array<ForecastSlot, 3> DataFileRead10Days(std::wstring_view txtDATA) {
  std::array<ForecastSlot, 3> slots;
  std::wstring_view text = After(After(txtDATA, kForecastMarker), kForecastStart);
  for (ForecastSlot& slot : slots) {
    const std::size_t end = text.find(kEntryEnd);
    if (end == std::wstring_view::npos) break;
    const std::wstring_view entry = text.substr(0, std::min(end, kMostItem));
    slot.date = ForecastDay(entry);
    slot.temps = Replaced(ForecastTemps(entry), L"null", L"");
    slot.icon = ForecastIcon(entry);
    text.remove_prefix(end + kEntryEnd.size());
  }
  return slots;
}

int ReducedIcon(int feed_code) {
  static constexpr struct {
    int feed;
    int shown;
  } kMerged[] = {{36, 32},
                 {30, 28},
                 {34, 28},
                 {29, 27},
                 {33, 27},
                 {2, 1},
                 {4, 3},
                 {37, 3},
                 {38, 3},
                 {47, 3},
                 {6, 5},
                 {7, 5},
                 {8, 5},
                 {10, 5},
                 {18, 5},
                 {11, 9},
                 {39, 9},
                 {45, 9},
                 {14, 13},
                 {15, 13},
                 {16, 13},
                 {41, 13},
                 {42, 13},
                 {43, 13},
                 {46, 13},
                 {20, 19},
                 {21, 19},
                 {22, 19},
                 {kFeedNotAvailable, kIconNotAvailable},
                 {kFeedCloudyNight, 0}};
  for (const auto& [feed, shown] : kMerged) {
    if (feed == feed_code) return shown;
  }
  return feed_code;
}

double FahrenheitToCelsius(double f) {
  const double hundredths = std::floor((5.0 / 9 * (f - 32) + 0.0005) * 100);
  return std::round(hundredths / 10) / 10;
}

std::wstring TemperatureLabel(double f, bool fahrenheit) {
  if (fahrenheit) return NumberText(RoundHalfEven(f)) + L"F ";
  return NumberText(RoundHalfEven(std::round(FahrenheitToCelsius(f)))) + L"C";
}

std::wstring ForecastDay(std::wstring_view entry) {
  // An entry may begin on a line of its own.
  return Trim(Replaced(Before(entry, L":"), kLineEnd, L" "));
}

std::wstring ForecastTemps(std::wstring_view entry) {
  const std::wstring plain = Replaced(Replaced(entry, L" AM ", L""), L" PM ", L"");
  std::wstring_view rest = plain;
  const std::wstring high = TakeFigure(rest, L"High", kHighOffset);
  return high + L"/" + TakeFigure(rest, L"Low", kLowOffset);
}

int ForecastIcon(std::wstring_view entry) {
  static constexpr struct {
    std::wstring_view word;
    int icon;
  } kWords[] = {{L"part", 28},   {L"mostly sunny", 28}, {L"fair", 28},  {L"clear", 31},
                {L"rain", 9},    {L"snow", 5},          {L"shower", 9}, {L"sun", 32},
                {L"thunder", 3}, {L"storm", 3},         {L"cloud", 19}, {L"mist", 19},
                {L"wind", 24}};
  std::wstring_view words = After(entry, L":");
  if (const std::size_t high = words.find(L"High"); high != std::wstring_view::npos) {
    words = words.substr(0, high < kBeforeHigh ? 0 : high - kBeforeHigh);
  }
  std::wstring lower(words);
  for (wchar_t& unit : lower) {
    if (unit >= L'A' && unit <= L'Z') unit = static_cast<wchar_t>(unit - L'A' + L'a');
  }
  for (const auto& [word, icon] : kWords) {
    if (lower.find(word) != std::wstring::npos) return icon;
  }
  return kIconNotAvailable;
}

}  // namespace varnel
