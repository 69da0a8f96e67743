// Weather answers for tests: the feed in its raw form, and the live source's JSON.
#pragma once

#include <string>
#include <vector>

namespace varnel::test {

struct DaySample {
  std::wstring day;
  std::wstring words;
  std::wstring high;
  std::wstring low;
};

struct FeedSample {
  std::wstring title = L"London, United Kingdom";
  std::wstring image = L"http://images.feed.example/web/icons/31/28.gif";
  std::wstring condition = L"Mostly Cloudy";
  std::wstring temperature = L"50";
  std::vector<DaySample> days = {{L"Sat", L"Mostly Sunny", L"72", L"55"},
                                 {L"Sun", L"Scattered Thunderstorms", L"68", L"51"},
                                 {L"Mon", L"Cloudy", L"64", L"49"}};
};

inline std::wstring EntryText(const DaySample& day) {
  return day.day + L": " + day.words + L" / High " + day.high + L"&deg; F / Low " + day.low +
         L"&deg; F";
}

// The response as a server sends it, before its fields are told apart.
inline std::wstring FeedText(const FeedSample& sample = {}) {
  std::wstring entries;
  for (const DaySample& day : sample.days) entries += EntryText(day) + L" --- ";
  return L"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n"
         L"<rss version=\"2.0\">\n<channel>\n"
         L"  <title>Local weather, near you</title>\n"
         L"  <link>http://feed.example/local/UK?a=1,2</link>\n"
         L"  <description>\"Weather\", as it is</description>\n"
         L"  <item>\n    <title><![CDATA[Current Weather Conditions In " +
         sample.title +
         L"]]></title>\n    <link>http://feed.example/now</link>\n"
         L"    <description><![CDATA[<img src=\"" +
         sample.image + L"\" alt=\"\" />" + sample.condition + L", and " + sample.temperature +
         L" &deg; F. For more details?]]></description>\n  </item>\n"
         L"  <item>\n    <title><![CDATA[Your 10-Day Forecast for " +
         sample.title + L"]]></title>\n    <description><![CDATA[" + entries +
         L"For more details?]]></description>\n  </item>\n</channel>\n</rss>\n";
}

// An answer of the live source in its documented form, in Fahrenheit: 57.3 degrees and code 2 by
// day now, three days from Saturday 21 November 2026.
inline std::string LiveAnswer() {
  return R"({"latitude":51.5,"longitude":-0.12,"generationtime_ms":0.04,"utc_offset_seconds":0,
"timezone":"Europe/London","timezone_abbreviation":"GMT","elevation":23.0,
"current_units":{"time":"iso8601","interval":"seconds","temperature_2m":"°F",
"weather_code":"wmo code","is_day":""},
"current":{"time":"2026-11-21T09:15","interval":900,"temperature_2m":57.3,"weather_code":2,"is_day":1},
"daily_units":{"time":"iso8601","weather_code":"wmo code","temperature_2m_max":"°F",
"temperature_2m_min":"°F"},
"daily":{"time":["2026-11-21","2026-11-22","2026-11-23"],"weather_code":[1,61,3],
"temperature_2m_max":[59.2,50.0,41.4],"temperature_2m_min":[44.6,32.0,-4.1]}})";
}

// `text` with its first `part` replaced; the text as it is when there is none.
template <typename Text>
Text With(Text text, const Text& part, const Text& by) {
  const auto at = text.find(part);
  return at == Text::npos ? text : text.replace(at, part.size(), by);
}

}  // namespace varnel::test
