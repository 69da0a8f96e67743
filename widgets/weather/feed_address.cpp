#include "widgets/weather/feed_address.h"

#include "base/text.h"

namespace varnel {
namespace {

std::wstring Completed(std::wstring_view endpoint) {
  std::wstring address = Trim(endpoint);
  while (address.ends_with(L'/')) address.pop_back();
  if (address.find(L"://") == std::wstring::npos) address.insert(0, L"http://");
  return address;
}

}  // namespace

std::wstring FeedAddress(std::wstring_view endpoint, std::wstring_view code) {
  return Completed(endpoint)
      .append(L"/wxdata/weather/rss/local/")
      .append(code)
      .append(L"?lngCM_ven=LWO&lngCM_cat=rss");
}

std::wstring LiveAddress(std::wstring_view address, const Coordinates& point) {
  return Completed(address) + L"/v1/forecast?latitude=" + point.latitude + L"&longitude=" +
         point.longitude +
         L"&current=temperature_2m,weather_code,is_day"
         L"&daily=weather_code,temperature_2m_max,temperature_2m_min"
         L"&temperature_unit=fahrenheit&timezone=auto&forecast_days=3";
}

}  // namespace varnel
