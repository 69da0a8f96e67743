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
  // Where each comma becomes a line end the text doubles; the last field may get an end besides.
  std::wstring text(2 * response.size() + 2, L'\0');
  auto end_of_text = text.begin();
  for (std::size_t start = 0; start < response.size();) {
    std::size_t end = start;
    while (end < response.size() && !EndsField(response[end])) ++end;
    end_of_text = std::ranges::copy(Bare(response.substr(start, end - start)), end_of_text).out;
    *end_of_text++ = L'\r';
    *end_of_text++ = L'\n';
    start = end + (response.substr(end, 2) == L"\r\n" ? 2 : 1);
  }
  text.erase(end_of_text, text.end());
  return text;
}

}  // namespace varnel
