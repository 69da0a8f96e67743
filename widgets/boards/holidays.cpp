#include "widgets/boards/holidays.h"

#include <chrono>
#include <optional>

#include "base/text.h"

namespace varnel {
namespace {

constexpr int kEveryYear = 0;
constexpr int kLeapYear = 2000;

bool IsBlank(wchar_t unit) {
  return unit == L' ' || unit == L'\t';
}

// Takes a number of up to `digits` digits from the front; nothing when there is none.
std::optional<int> TakeNumber(std::wstring_view& text, std::size_t digits) {
  int number = 0;
  std::size_t count = 0;
  while (count < digits && count < text.size() && text[count] >= L'0' && text[count] <= L'9') {
    number = number * 10 + (text[count] - L'0');
    ++count;
  }
  if (count == 0) return std::nullopt;
  text.remove_prefix(count);
  return number;
}

bool TakeDash(std::wstring_view& text) {
  const bool there = text.starts_with(L'-');
  if (there) text.remove_prefix(1);
  return there;
}

// Takes the day from the front of a line.
std::optional<Date> TakeDate(std::wstring_view& line) {
  const auto first = TakeNumber(line, 4);
  if (!first || !TakeDash(line)) return std::nullopt;
  const auto second = TakeNumber(line, 2);
  if (!second) return std::nullopt;
  Date date{kEveryYear, *first, *second};
  if (TakeDash(line)) {
    const auto third = TakeNumber(line, 2);
    if (!third || *first < kFirstMonth.year) return std::nullopt;
    date = {*first, *second, *third};
  }
  if (line.empty() || !IsBlank(line.front())) return std::nullopt;
  const int year = date.year == kEveryYear ? kLeapYear : date.year;
  const auto day = std::chrono::year{year} / date.month / date.day;
  return day.ok() ? std::optional(date) : std::nullopt;
}

std::wstring_view WithoutBlanks(std::wstring_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && (IsBlank(text.back()) || text.back() == L'\r')) text.remove_suffix(1);
  return text;
}

}  // namespace

Holidays::Holidays(std::string_view file) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  if (file.starts_with(kMark)) file.remove_prefix(kMark.size());
  const std::wstring text = WideFromUtf8(file.substr(0, kMostHolidayBytes));
  std::wstring_view rest = text;
  while (!rest.empty()) {
    const std::size_t end = rest.find(L'\n');
    ReadLine(WithoutBlanks(rest.substr(0, end)));
    rest.remove_prefix(end == std::wstring_view::npos ? rest.size() : end + 1);
  }
}

void Holidays::ReadLine(std::wstring_view line) {
  const auto date = TakeDate(line);
  const std::wstring_view name = WithoutBlanks(line);
  if (!date || name.empty()) return;
  if (days_.size() >= kMostDays && !days_.contains(*date)) return;
  days_[*date] = name.substr(0, kLongestName);
}

std::wstring Holidays::NameOf(const Date& date) const {
  const auto once = days_.find(date);
  if (once != days_.end()) return once->second;
  const auto yearly = days_.find({kEveryYear, date.month, date.day});
  return yearly != days_.end() ? yearly->second : std::wstring();
}

}  // namespace varnel
