// The weather: fetched and read for as long as the program lives, whether the widget or a dialog is
// open or not.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "frame/family_service.h"
#include "frame/services.h"
#include "widgets/weather/live_source.h"
#include "widgets/weather/place_lists_win.h"
#include "widgets/weather/weather_feed.h"
#include "widgets/weather/weather_status.h"
#include "win/net/http.h"

namespace varnel {

class WeatherService : public FamilyService {
 public:
  // Nothing is fetched yet. `services` outlive the weather.
  explicit WeatherService(Services& services);

  // Starts to fetch the weather of the chosen place. The live source is spared: what it has
  // answered for that place is good for an hour.
  void WeatherDataGet();
  // Fetches it however young the data is, unless a fetch is under way.
  void WeatherRefresh();
  // Asks the live source anew when an hour has passed since, or could not be reached at all. To be
  // called now and then.
  void KeepUpToDate();
  // Reads the stored response again.
  void ReadLabels();

  // What the widget is to show; the forecast is empty and the temperature "-" while nothing is
  // known.
  const WeatherLabels& labels() const { return labels_; }
  WeatherStatus status() const;
  const PlaceLists& places() const { return places_; }

 private:
  bool live_source() const;  // it is asked, because no feed's address is set
  void LoadPlace();
  bool AnswerIsFresh() const;
  std::wstring Address() const;  // empty when the place is not known
  void Fetch();
  void OnFetched(const HttpResult& result, const WeatherPlace& place, bool live);
  LiveFeed LiveFeedOf(const std::string& answer, const WeatherPlace& place) const;
  void ReadLiveAnswer();
  void TakeResponse(const std::string& bytes, bool live);
  void Fail(std::wstring reason);
  void ShowOnWidget();

  Services& services_;
  PlaceLists places_;
  HttpFetch webDATA_;
  WeatherPlace place_;  // its code is txtADDR
  std::wstring txtDATA_;
  WeatherData data_;
  WeatherLabels labels_;
  std::string answer_;                // the live source's last good one
  WeatherPlace answer_place_;         // the place it is for
  std::uint64_t answered_ = 0;        // when it came, in milliseconds since the system started
  bool live_data_ = false;            // txtDATA comes from it
  std::optional<LocalTime> updated_;  // when txtDATA came
  std::uint64_t asked_ = 0;           // when the last fetch began, in those milliseconds
  bool fetching_ = false;
  std::wstring failure_;  // of the last fetch
  bool unreachable_ = false;
};

}  // namespace varnel
