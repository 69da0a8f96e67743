#include "base/number_format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "base/number_text.h"

namespace varnel {
namespace {

constexpr int kSignificantDigits = 15;

// The value 0.DIGITS times ten to the power of `point`: no zero at either end of the digits, and no
// digits at all for zero.
struct Decimal {
  bool negative = false;
  std::string digits;
  int point = 0;
};

// Keeps the first `count` digits (none when negative), halves away from zero.
void RoundTo(Decimal& number, int count) {
  std::string& digits = number.digits;
  if (count < static_cast<int>(digits.size())) {
    const bool up = count >= 0 && digits[count] >= '5';
    digits.resize(std::max(count, 0));
    if (up) {
      while (!digits.empty() && digits.back() == '9') digits.pop_back();
      if (digits.empty()) {
        digits = "0";
        ++number.point;
      }
      ++digits.back();
    }
  }
  digits.resize(digits.find_last_not_of('0') + 1);
}

Decimal SignificantDigits(double value) {
  Decimal number;
  if (!std::isfinite(value) || value == 0) return number;
  // printf rounds to even, but so far behind the digits kept that it cannot decide a half here.
  char text[80];
  std::snprintf(text, sizeof text, "%.50e", std::fabs(value));
  const char* at = text;
  for (; *at != 'e'; ++at) {
    if (IsDigit(*at)) number.digits.push_back(*at);
  }
  number.negative = value < 0;
  number.point = std::atoi(at + 1) + 1;
  RoundTo(number, kSignificantDigits);
  return number;
}

// The number without exponent, with zeros where it has no digits up to `least_decimals` places.
std::wstring Plain(const Decimal& number, int least_decimals) {
  const int size = static_cast<int>(number.digits.size());
  const int end = std::max(size, number.point + least_decimals);
  std::wstring text = number.negative ? L"-" : L"";
  for (int i = std::min(number.point - 1, 0); i < end; ++i) {
    if (i == number.point) text.push_back(L'.');
    text.push_back(i >= 0 && i < size ? number.digits[i] : L'0');
  }
  return text;
}

// The exponent at the start of `text`: "E" or "e", a sign or none, digits; 0 when that is not
// there. One of more than five digits counts as 99999.
int LeadingExponent(std::wstring_view text) {
  if (text.empty() || (text[0] != L'E' && text[0] != L'e')) return 0;
  text.remove_prefix(1);
  const bool negative = text.starts_with(L'-');
  if (negative || text.starts_with(L'+')) text.remove_prefix(1);
  int exponent = 0;
  for (std::size_t at = 0; at < text.size() && IsDigit(text[at]); ++at) {
    exponent = std::min(exponent * 10 + (text[at] - L'0'), 99999);
  }
  return negative ? -exponent : exponent;
}

}  // namespace

std::wstring GeneralNumber(double value) {
  Decimal number = SignificantDigits(value);
  if (number.digits.empty()) return L"0";
  const int exponent = number.point - 1;
  if (exponent >= -4 && exponent < kSignificantDigits) return Plain(number, 0);
  number.point = 1;
  const std::wstring power = std::to_wstring(std::abs(exponent));
  return Plain(number, 0) + (exponent < 0 ? L"E-" : L"E+") + (power.size() < 2 ? L"0" : L"") +
         power;
}

std::wstring FixedNumber(double value, int most_decimals) {
  Decimal number = SignificantDigits(value);
  RoundTo(number, number.point + most_decimals);
  if (number.digits.empty()) number.point = 0;
  return Plain(number, 1);
}

std::optional<double> LeadingDouble(std::wstring_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(L' '), text.size()));
  const bool negative = text.starts_with(L'-');
  if (negative || text.starts_with(L'+')) text.remove_prefix(1);
  std::string plain = "0";  // with a digit in front from_chars takes all that follows
  int places = 0;           // the digits from the first that is not zero to the point
  bool point = false;
  bool nonzero = false;
  std::size_t at = 0;
  for (; at < text.size() && (IsDigit(text[at]) || (text[at] == L'.' && !point)); ++at) {
    plain.push_back(static_cast<char>(text[at]));
    if (text[at] == L'.') {
      point = true;
    } else {
      nonzero = nonzero || text[at] != L'0';
      if (nonzero != point) places += point ? -1 : 1;
    }
  }
  const int exponent = LeadingExponent(text.substr(at));
  plain += "e" + std::to_string(exponent);
  double value = 0;
  const auto error = std::from_chars(plain.data(), plain.data() + plain.size(), value).ec;
  if (error == std::errc::result_out_of_range) {
    if (places + exponent > 0) return std::nullopt;
    value = 0;
  }
  return negative ? -value : value;
}

}  // namespace varnel
