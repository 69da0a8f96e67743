#include "widgets/weather/weather_service_win.h"

#include <utility>

#include "base/text.h"
#include "widgets/weather/feed_address.h"
#include "widgets/weather/feed_text.h"
#include "widgets/weather/weather_settings.h"
#include "win/system/code_page.h"
#include "win/windows/hourglass.h"

namespace varnel {
namespace {

constexpr HttpLimits kLimits{std::size_t{1} << 20, 20'000};
constexpr std::uint64_t kHourMs = 60 * 60 * 1000;

std::wstring FeedText(const std::string& bytes) {
  return DeclaresUtf8(bytes) ? WideFromUtf8(bytes) : WideFromCodePage(bytes);
}

}  // namespace

WeatherService::WeatherService(Services& services)
    : services_(services), places_(services.ui.instance), webDATA_(services.ui, kLimits) {
  labels_.temperature = L"-";
  labels_.condition = L"No weather yet";
  labels_.location =
      services.settings.Read(kWeatherCity) + L", " + services.settings.Read(kWeatherCountry);
}

void WeatherService::LoadPlace() {
  const Settings& settings = services_.settings;
  if (auto place = places_.Resolve(ReadFlag(settings, kWeatherWorld),
                                   settings.Read(kWeatherCountry), settings.Read(kWeatherCity))) {
    place_ = *std::move(place);
    if (txtDATA_.empty()) labels_.location = place_.city + L", " + place_.area;
  }
}

bool WeatherService::live_source() const {
  return services_.settings.Read(kWeatherFeedEndpoint).empty();
}

bool WeatherService::AnswerIsFresh() const {
  return !answer_.empty() && answer_place_ == place_ && ::GetTickCount64() - answered_ < kHourMs;
}

void WeatherService::WeatherDataGet() {
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
  ReadLabels();
  if (!fetching_ && !(live_source() && AnswerIsFresh())) Fetch();
}

void WeatherService::WeatherRefresh() {
  if (!fetching_) Fetch();
}

void WeatherService::KeepUpToDate() {
  if (!live_source() || fetching_) return;
  if (unreachable_ || ::GetTickCount64() - asked_ >= kHourMs) Fetch();
}

std::wstring WeatherService::Address() const {
  const Settings& settings = services_.settings;
  if (!live_source()) return FeedAddress(settings.Read(kWeatherFeedEndpoint), place_.code);
  const auto point = places_.CoordinatesOf(place_.code);
  return point ? LiveAddress(settings.Read(kLiveWeatherAddress), *point) : L"";
}

void WeatherService::Fetch() {
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

void WeatherService::OnFetched(const HttpResult& result, const WeatherPlace& place, bool live) {
  unreachable_ = result.unreachable;
  if (!result.ok) {
    Fail(result.reason);
  } else if (!live) {
    TakeResponse(result.body, false);
  } else if (LiveFeed feed = LiveFeedOf(result.body, place); feed.text.empty()) {
    Fail(AsReason(feed.complaint));
  } else {
    answer_ = result.body;
    answer_place_ = place;
    answered_ = ::GetTickCount64();
    TakeResponse(Utf8FromWide(feed.text), true);
  }
}

LiveFeed WeatherService::LiveFeedOf(const std::string& answer, const WeatherPlace& place) const {
  return FeedFromLiveAnswer(answer, place, ReadFlag(services_.settings, kTempSelected));
}

void WeatherService::ReadLiveAnswer() {
  txtDATA_ = NormaliseFeed(LiveFeedOf(answer_, answer_place_).text);
}

void WeatherService::TakeResponse(const std::string& bytes, bool live) {
  const HourglassPointer pointer;
  const std::wstring file = services_.program_folder + L"web.txt";
  const std::string printed = bytes + "\r\n";
  const bool written{services_.files.Replace(file, printed)};
  const FileRead read = written ? services_.files.Read(file, printed.size()) : FileRead();
  std::wstring response = NormaliseFeed(WithSections(FeedText(read ? read.bytes : printed)));
  if (const std::wstring_view complaint = FeedComplaint(response); complaint.empty()) {
    txtDATA_ = std::move(response);
    live_data_ = live;
    updated_ = services_.clock.Now();
    fetching_ = false;
    failure_.clear();
    ReadLabels();
  } else {
    Fail(std::wstring(complaint));
  }
  services_.files.Remove(file);
}

void WeatherService::Fail(std::wstring reason) {
  fetching_ = false;
  // One line for a fault that goes on, however often it is tried again.
  if (reason != failure_) services_.ui.log.Write(L"weather: " + reason);
  failure_ = std::move(reason);
  ShowOnWidget();
}

void WeatherService::ReadLabels() {
  if (auto labels = DataFileRead(txtDATA_, ReadFlag(services_.settings, kTempSelected), data_)) {
    labels_ = *std::move(labels);
  }
  ShowOnWidget();
}

WeatherStatus WeatherService::status() const {
  // The live source alone is asked again by itself.
  const bool again = unreachable_ && live_source() && !failure_.empty();
  const std::wstring failure = again ? L"no connection, will try again" : failure_;
  WeatherStatus status{L"", fetching_, failure, live_data_};
  if (!updated_) return status;
  const TimeFormatter& formatter = services_.formatter;
  LocalTime today = services_.clock.Now();
  if (today.day != updated_->day || today.month != updated_->month) {
    status.updated = formatter.Format(*updated_, L"ddd") + L" ";
  }
  status.updated += formatter.Format(*updated_, L"Short Time");
  return status;
}

void WeatherService::ShowOnWidget() {
  LiveForm* widget = services_.forms.Find(L"frmWTHwg");
  if (!widget) return;
  widget->Form_Resize();
  widget->WidgetRefresh();
}

}  // namespace varnel
