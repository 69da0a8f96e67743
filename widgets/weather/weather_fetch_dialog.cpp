// The part of the dialog that fetches and reads the weather.
#include <utility>

#include "resources/control_ids.h"
#include "widgets/weather/feed_address.h"
#include "widgets/weather/feed_text.h"
#include "widgets/weather/live_source.h"
#include "widgets/weather/weather_dialog.h"
#include "widgets/weather/weather_settings.h"
#include "win/code_page.h"
#include "win/resource_data.h"
#include "win/shell.h"

namespace varnel {
namespace {

constexpr HttpLimits kLimits{std::size_t{1} << 20, 20'000};
constexpr std::uint64_t kHourMs = 60 * 60 * 1000;

}  // namespace

WeatherDialog::WeatherDialog(Services& services)
    : Dialog(services.ui, L"frmWTHpr"),
      services_(services),
      countries_{cboCOUNTRY, {}, {}},
      cities_{cboCOUNTRYAREA, {}, {}},
      webDATA_(services.ui, kLimits) {
  labels_.temperature = L"-";
  labels_.condition = L"No weather yet";
  labels_.location =
      services.settings.Read(kWeatherCity) + L", " + services.settings.Read(kWeatherCountry);
}

std::wstring WeatherDialog::DataList(const wchar_t* name) const {
  return WideFromCodePage(ResourceData(ui().instance, name, L"DATA"));
}

std::optional<WeatherPlace> WeatherDialog::Resolve(bool united, const std::wstring& area,
                                                   const std::wstring& city) const {
  return ResolvePlace(DataList(united ? L"USTATES" : L"INTERNATIONAL"), area, city);
}

void WeatherDialog::LoadPlace() {
  const Settings& settings = services_.settings;
  if (auto place = Resolve(ReadFlag(settings, kWeatherWorld), settings.Read(kWeatherCountry),
                           settings.Read(kWeatherCity))) {
    place_ = *std::move(place);
    if (txtDATA_.empty()) labels_.location = place_.city + L", " + place_.area;
  }
}

bool WeatherDialog::live_source() const {
  return services_.settings.Read(kWeatherFeedEndpoint).empty();
}

bool WeatherDialog::AnswerIsFresh() const {
  return !answer_.empty() && answer_place_ == place_ && ::GetTickCount64() - answered_ < kHourMs;
}

void WeatherDialog::WeatherDataGet() {
  // Place and scale may be others now.
  const WeatherPlace former = place_;
  LoadPlace();
  if (place_ != former) {
    // Nor does it matter any more what becomes of a fetch for the other place.
    webDATA_.Cancel();
    fetching_ = false;
    failure_.clear();
  }
  if (live_data_) ReadLiveAnswer();
  DataFileRead();
  if (!fetching_ && !(live_source() && AnswerIsFresh())) Fetch();
}

void WeatherDialog::WeatherRefresh() {
  if (!fetching_) Fetch();
}

void WeatherDialog::KeepUpToDate() {
  if (!live_source() || fetching_) return;
  if (unreachable_ || ::GetTickCount64() - asked_ >= kHourMs) Fetch();
}

std::wstring WeatherDialog::Address() const {
  const Settings& settings = services_.settings;
  if (!live_source()) return FeedAddress(settings.Read(kWeatherFeedEndpoint), place_.code);
  const auto point = CoordinatesOf(DataList(L"COORDINATES"), place_.code);
  return point ? LiveAddress(settings.Read(kLiveWeatherAddress), *point) : L"";
}

void WeatherDialog::Fetch() {
  const std::wstring address = Address();
  if (address.empty()) {
    webDATA_.Cancel();
    Fail(L"the chosen place is not known");
    return;
  }
  fetching_ = true;
  asked_ = ::GetTickCount64();
  webDATA_.Start(address, [this, place = place_, live = live_source()](const HttpResult& result) {
    OnFetched(result, place, live);
  });
  ShowOnWidget();
}

void WeatherDialog::OnFetched(const HttpResult& result, const WeatherPlace& place, bool live) {
  unreachable_ = result.unreachable;
  if (!result.ok) {
    Fail(result.reason);
  } else if (!live) {
    TakeResponse(WideFromCodePage(result.body), false);
  } else if (LiveFeed feed = LiveFeedOf(result.body, place); feed.text.empty()) {
    Fail(AsReason(feed.complaint));
  } else {
    answer_ = result.body;
    answer_place_ = place;
    answered_ = ::GetTickCount64();
    TakeResponse(feed.text, true);
  }
}

LiveFeed WeatherDialog::LiveFeedOf(const std::string& answer, const WeatherPlace& place) const {
  return FeedFromLiveAnswer(answer, place, ReadFlag(services_.settings, kTempSelected));
}

void WeatherDialog::ReadLiveAnswer() {
  txtDATA_ = NormaliseFeed(LiveFeedOf(answer_, answer_place_).text);
}

void WeatherDialog::TakeResponse(const std::wstring& text, bool live) {
  const HourglassPointer pointer;
  const std::wstring file = services_.program_folder + L"web.txt";
  const std::string printed = CodePageFromWide(text) + "\r\n";
  const bool written = services_.files.Replace(file, printed);
  const auto read = written ? services_.files.Read(file, printed.size()) : std::nullopt;
  std::wstring response = NormaliseFeed(WideFromCodePage(read.value_or(printed)));
  if (HoldsWeather(response)) {
    txtDATA_ = std::move(response);
    live_data_ = live;
    updated_ = services_.clock.Now();
    fetching_ = false;
    failure_.clear();
    DataFileRead();
  } else {
    Fail(L"the answer holds no weather");
  }
  services_.files.Remove(file);
}

void WeatherDialog::Fail(std::wstring reason) {
  fetching_ = false;
  // One line for a fault that goes on, however often it is tried again.
  if (reason != failure_) ui().log.Write(L"weather: " + reason);
  failure_ = std::move(reason);
  ShowOnWidget();
}

void WeatherDialog::DataFileRead() {
  if (auto labels =
          varnel::DataFileRead(txtDATA_, ReadFlag(services_.settings, kTempSelected), data_)) {
    labels_ = *std::move(labels);
  }
  ShowOnWidget();
}

WeatherStatus WeatherDialog::status() const {
  WeatherStatus status{L"", fetching_, failure_, live_data_};
  if (!updated_) return status;
  const TimeFormatter& formatter = services_.formatter;
  LocalTime today = services_.clock.Now();
  if (today.day != updated_->day || today.month != updated_->month) {
    status.updated = formatter.Format(*updated_, L"ddd") + L" ";
  }
  status.updated += formatter.Format(*updated_, L"Short Time");
  return status;
}

void WeatherDialog::ShowOnWidget() {
  LiveForm* widget = services_.forms.Find(L"frmWTHwg");
  if (!widget) return;
  widget->Form_Resize();
  widget->WidgetRefresh();
}

}  // namespace varnel
