#include "widgets/weather/weather_status.h"

#include <vector>

#include "widgets/weather/live_source.h"

namespace varnel {
namespace {

constexpr std::wstring_view kBetween = L" \u00B7 ";

wchar_t Cased(wchar_t letter, wchar_t from, wchar_t to) {
  return letter >= from && letter < from + 26 ? static_cast<wchar_t>(letter - from + to) : letter;
}

std::wstring AsSentence(std::wstring words) {
  if (!words.empty()) words.front() = Cased(words.front(), L'a', L'A');
  return words;
}

// The status in words, from the longest form to the shortest.
std::vector<std::wstring> Wordings(const WeatherStatus& status) {
  const std::wstring news = status.fetching ? L"updating..." : status.failure;
  if (status.updated.empty()) return {AsSentence(news)};
  if (news.empty()) return {L"Updated " + status.updated, status.updated};
  const std::wstring begun = status.updated + std::wstring(kBetween);
  std::vector<std::wstring> wordings = {L"Updated " + begun + news, begun + news, AsSentence(news)};
  if (!status.fetching) wordings.push_back(begun + L"failed");
  wordings.push_back(status.updated);
  return wordings;
}

}  // namespace

WeatherStrip ChooseStrip(const WeatherStatus& status, int room, int gap, int font_height,
                         const TextMeasure& measure) {
  std::vector<std::wstring> wordings = Wordings(status);
  std::vector<std::wstring_view> names = {L""};
  if (status.live) {
    wordings.push_back(L"");
    names = {kLiveAttribution, kShortLiveAttribution};
  }
  const auto width = [&](std::wstring_view text) {
    return measure.Measure(text, font_height).width;
  };
  for (const std::wstring& wording : wordings) {
    for (const std::wstring_view name : names) {
      const int between = wording.empty() || name.empty() ? 0 : gap;
      if (width(wording) + between + width(name) <= room) return {wording, std::wstring(name)};
    }
  }
  return {wordings.back(), std::wstring(names.back())};
}

std::wstring AsReason(std::wstring_view complaint) {
  if (complaint.ends_with(L'.')) complaint.remove_suffix(1);
  std::wstring words(complaint);
  if (!words.empty()) words.front() = Cased(words.front(), L'A', L'a');
  return words;
}

}  // namespace varnel
