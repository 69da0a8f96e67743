#include "widgets/calculator/pasted_number.h"

#include <algorithm>
#include <string>

#include "base/number_format.h"

namespace varnel {
namespace {

constexpr std::size_t kLongestText = 400;
constexpr std::wstring_view kDigits = L"0123456789";
constexpr std::wstring_view kBlanks = L" \u00A0\u2007\u2009\u202F";
constexpr std::wstring_view kWhiteSpace = L" \u00A0\u2007\u2009\u202F\t\r\n";

std::wstring_view WithoutOuter(std::wstring_view text, std::wstring_view units) {
  text.remove_prefix(std::min(text.find_first_not_of(units), text.size()));
  return text.substr(0, text.find_last_not_of(units) + 1);
}

// Takes a sign off the start of `text`. True for a minus.
bool TakeSign(std::wstring_view& text) {
  const bool minus = text.starts_with(L'-') || text.starts_with(L'\u2212');
  if (minus || text.starts_with(L'+')) text.remove_prefix(1);
  return minus;
}

bool IsAllDigits(std::wstring_view text) {
  return text.find_first_not_of(kDigits) == std::wstring_view::npos;
}

// Separators that look different but mean the same are one kind; 0 when `unit` is none.
wchar_t SeparatorKind(wchar_t unit) {
  if (kBlanks.find(unit) != std::wstring_view::npos) return L' ';
  if (unit == L'\u2019') return L'\'';
  return unit == L'\'' || unit == L',' || unit == L'.' ? unit : L'\0';
}

// Where the decimal sign of `mantissa` stands; its size when it has none.
std::size_t DecimalSign(std::wstring_view mantissa) {
  const std::size_t last = mantissa.find_last_not_of(kDigits);
  if (last == std::wstring_view::npos) return mantissa.size();
  const wchar_t sign = mantissa[last];
  if (sign != L'.' && sign != L',') return mantissa.size();
  if (std::ranges::count(mantissa, sign) > 1) return mantissa.size();
  const bool groups = sign == L',' && mantissa.find_first_not_of(kDigits) == last &&
                      mantissa.size() == last + 4 && last >= 1 && last <= 3 && mantissa[0] != L'0';
  return groups ? mantissa.size() : last;
}

// The digits of a whole number that may be in groups of three; nothing when it is anything else.
std::optional<std::wstring> Ungrouped(std::wstring_view whole) {
  const std::size_t first = std::min(whole.find_first_not_of(kDigits), whole.size());
  std::wstring digits(whole.substr(0, first));
  if (first == whole.size()) return digits;
  const wchar_t kind = SeparatorKind(whole[first]);
  if (kind == 0 || first < 1 || first > 3 || (whole.size() - first) % 4 != 0) return std::nullopt;
  for (std::size_t at = first; at < whole.size(); at += 4) {
    const std::wstring_view group = whole.substr(at + 1, 3);
    if (SeparatorKind(whole[at]) != kind || !IsAllDigits(group)) return std::nullopt;
    digits += group;
  }
  return digits;
}

}  // namespace

std::optional<double> ParsePastedNumber(std::wstring_view text) {
  if (text.size() > kLongestText) return std::nullopt;
  text = WithoutOuter(text, kWhiteSpace);
  std::wstring plain = TakeSign(text) ? L"-" : L"";
  text = WithoutOuter(text, kBlanks);

  const std::size_t power = std::min(text.find_first_of(L"eE"), text.size());
  const std::wstring_view mantissa = text.substr(0, power);
  const std::size_t point = DecimalSign(mantissa);
  const std::wstring_view fraction = mantissa.substr(std::min(point + 1, mantissa.size()));
  const auto whole = Ungrouped(mantissa.substr(0, point));
  if (!whole || !IsAllDigits(fraction) || (whole->empty() && fraction.empty())) return std::nullopt;
  plain += *whole;
  plain += L'.';
  plain += fraction;

  if (power < text.size()) {
    std::wstring_view exponent = text.substr(power + 1);
    plain += TakeSign(exponent) ? L"E-" : L"E+";
    if (exponent.empty() || !IsAllDigits(exponent)) return std::nullopt;
    plain += exponent;
  }
  return LeadingDouble(plain);
}

}  // namespace varnel
