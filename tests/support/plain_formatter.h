// The date and time pattern language in English, for tests of engines.
#pragma once

#include <string>
#include <string_view>

#include "base/number_text.h"
#include "base/text.h"
#include "base/wall_clock.h"

namespace varnel::test {

// Knows y, m, d, h, n and s repeated as the platform does ("m" after "h" are minutes, hours are of
// twelve where "ampm" follows), "ampm", and "Long Date" alone; other text stays as it is.
class PlainFormatter : public TimeFormatter {
 public:
  std::wstring Format(const LocalTime& time, std::wstring_view pattern) const override {
    if (EqualsIgnoreCase(pattern, L"Long Date")) pattern = L"dddd, mmmm d, yyyy";
    const bool twelve = EndsWithIgnoreCase(pattern, L"ampm");
    std::wstring text;
    wchar_t before = 0;
    while (!pattern.empty()) {
      if (EqualsIgnoreCase(pattern.substr(0, 4), L"ampm")) {
        text += time.hour < 12 ? L"AM" : L"PM";
        pattern.remove_prefix(4);
        continue;
      }
      wchar_t letter = pattern.front() | 0x20;
      std::size_t count = 1;
      while (count < pattern.size() && (pattern[count] | 0x20) == letter) ++count;
      if (letter == L'm' && before == L'h') letter = L'n';
      const std::wstring piece = Piece(time, letter, static_cast<int>(count), twelve);
      text += piece.empty() ? std::wstring(pattern.substr(0, count)) : piece;
      if (!piece.empty()) before = letter;
      pattern.remove_prefix(count);
    }
    return text;
  }

 private:
  static std::wstring Piece(const LocalTime& time, wchar_t letter, int count, bool twelve) {
    constexpr std::wstring_view kDays[] = {L"Sunday",   L"Monday", L"Tuesday", L"Wednesday",
                                           L"Thursday", L"Friday", L"Saturday"};
    constexpr std::wstring_view kMonths[] = {L"January",   L"February", L"March",    L"April",
                                             L"May",       L"June",     L"July",     L"August",
                                             L"September", L"October",  L"November", L"December"};
    const auto name = [count](std::wstring_view whole) {
      return std::wstring(whole.substr(0, count == 3 ? 3 : whole.size()));
    };
    switch (letter) {
      case L'y':
        return PaddedNumber(count > 2 ? time.year : time.year % 100, 2);
      case L'm':
        return count > 2 ? name(kMonths[time.month - 1]) : PaddedNumber(time.month, count);
      case L'd':
        return count > 2 ? name(kDays[time.weekday]) : PaddedNumber(time.day, count);
      case L'h':
        return PaddedNumber(twelve ? (time.hour + 11) % 12 + 1 : time.hour, count);
      case L'n':
        return PaddedNumber(time.minute, count);
      case L's':
        return PaddedNumber(time.second, count);
      default:
        return {};
    }
  }
};

}  // namespace varnel::test
