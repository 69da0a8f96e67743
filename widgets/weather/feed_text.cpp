#include "widgets/weather/feed_text.h"

#include <algorithm>

namespace varnel {
namespace {

bool EndsField(wchar_t unit) {
  return unit == L',' || unit == L'\r' || unit == L'\n';
}

std::wstring_view Bare(std::wstring_view field) {
  field.remove_prefix(std::min(field.find_first_not_of(L' '), field.size()));
  if (field.size() >= 2 && field.front() == L'"' && field.back() == L'"') {
    return field.substr(1, field.size() - 2);
  }
  return field;
}

}  // namespace

std::wstring NormaliseFeed(std::wstring_view response) {
  response = response.substr(0, kMostFeedText);
  std::wstring text;
  text.reserve(response.size() + response.size() / 8);
  for (std::size_t start = 0; start < response.size();) {
    std::size_t end = start;
    while (end < response.size() && !EndsField(response[end])) ++end;
    text.append(Bare(response.substr(start, end - start))).append(L"\r\n");
    start = end + (response.substr(end, 2) == L"\r\n" ? 2 : 1);
  }
  return text;
}

}  // namespace varnel
