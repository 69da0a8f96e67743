#include "base/number_text.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "base/text.h"

namespace varnel {
std::wstring NumberText(long long value) {
  return std::to_wstring(value);
}

std::wstring PaddedNumber(long long value, int digits) {
  const bool negative = value < 0;
  std::wstring text = std::to_wstring(value).substr(negative ? 1 : 0);
  if (static_cast<int>(text.size()) < digits) text.insert(0, digits - text.size(), L'0');
  return negative ? L"-" + text : text;
}

double LeadingNumber(std::wstring_view text) {
  constexpr std::size_t kMostDigits = 300;
  std::size_t at = text.find_first_not_of(L' ');
  if (at == std::wstring_view::npos) return 0;
  std::string plain;
  if (text[at] == L'-' || text[at] == L'+') {
    if (text[at] == L'-') plain = "-";
    ++at;
  }
  std::size_t digits = 0;
  bool point = false;
  for (; at < text.size() && digits < kMostDigits; ++at) {
    if (IsDigit(text[at])) {
      ++digits;
    } else if (text[at] != L'.' || point) {
      break;
    } else {
      point = true;
    }
    plain.push_back(static_cast<char>(text[at]));
  }
  double value = 0;
  std::from_chars(plain.data(), plain.data() + plain.size(), value);
  return digits == 0 ? 0 : value;
}

std::optional<long long> WholeNumber(std::wstring_view text) {
  std::string plain;
  for (const wchar_t unit : Trim(text)) {
    if (!IsDigit(unit) && unit != L'-') return std::nullopt;
    plain.push_back(static_cast<char>(unit));
  }
  long long value = 0;
  const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
  if (error != std::errc() || end != plain.data() + plain.size()) return std::nullopt;
  return value;
}

long long RoundHalfEven(double value) {
  constexpr double kLimit = 9223372036854774784.0;  // the largest double below 2^63
  if (std::isnan(value)) return 0;
  if (value >= kLimit) return std::numeric_limits<long long>::max();
  if (value <= -kLimit) return std::numeric_limits<long long>::min();
  const double below = std::floor(value);
  const double rest = value - below;
  const auto whole = static_cast<long long>(below);
  if (rest != 0.5) return rest < 0.5 ? whole : whole + 1;
  return whole % 2 == 0 ? whole : whole + 1;
}

}  // namespace varnel
