#include "widgets/weather/feed_text.h"

#include <algorithm>

#include "base/text.h"
#include "widgets/weather/entities.h"

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

constexpr std::wstring_view kSectionStart = L"<![CDATA[";
constexpr std::wstring_view kSectionEnd = L"]]>";
constexpr std::wstring_view kBlanks = L" \t\r\n";

// What an element with entities holds, as a section. What would end the section is taken apart.
std::wstring AsSection(std::wstring_view content) {
  std::wstring section(kSectionStart);
  for (const wchar_t unit : WithoutEntities(content)) {
    if (unit == L'\u00B0') {
      section.append(L"&deg;");
      continue;
    }
    if (unit == L'>' && section.ends_with(L"]]")) section.push_back(L' ');
    section.push_back(unit);
  }
  return section.append(kSectionEnd);
}

// A kind of element that is made a section.
struct Element {
  std::wstring start;
  std::wstring end;
  bool ends = true;  // there may be an end of one further on
};

// Copies the element at the front of `text`, as a section, without its end; false when there is no
// such element.
bool TakeElement(std::wstring_view& text, Element& element, std::wstring& result) {
  if (!element.ends || !text.starts_with(element.start)) return false;
  const std::size_t end = text.find(element.end);
  element.ends = end != std::wstring_view::npos;
  if (!element.ends) return false;
  const std::wstring_view content = text.substr(element.start.size(), end - element.start.size());
  const std::size_t first = std::min(content.find_first_not_of(kBlanks), content.size());
  const bool plain = !content.substr(first).starts_with(kSectionStart);
  result.append(element.start).append(plain ? AsSection(content) : content);
  text.remove_prefix(end);
  return true;
}

}  // namespace

bool DeclaresUtf8(std::string_view response) {
  constexpr std::size_t kMostDeclaration = 200;
  if (response.starts_with("\xEF\xBB\xBF")) return true;
  if (!response.starts_with("<?xml")) return false;
  const std::string_view declaration =
      response.substr(0, std::min(response.find("?>"), kMostDeclaration));
  const std::size_t at = declaration.find("encoding");
  if (at == std::string_view::npos) return false;
  const std::string_view value = declaration.substr(at);
  const std::size_t quote = value.find_first_of("\"'");
  if (quote == std::string_view::npos) return false;
  return EqualsIgnoreCase(WideFromUtf8(value.substr(quote + 1, 5)), L"utf-8");
}

std::wstring WithSections(std::wstring_view response) {
  response = response.substr(0, kMostFeedText);
  Element title{L"<title>", L"</title>"};
  Element description{L"<description>", L"</description>"};
  std::wstring result;
  while (!response.empty()) {
    const std::size_t tag = std::min(response.find(L'<'), response.size());
    result.append(response.substr(0, tag));
    response.remove_prefix(tag);
    if (TakeElement(response, title, result)) continue;
    if (TakeElement(response, description, result)) continue;
    result.append(response.substr(0, 1));
    response.remove_prefix(std::min<std::size_t>(1, response.size()));
  }
  return result;
}

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
