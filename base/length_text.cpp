#include "base/length_text.h"

#include <algorithm>
#include <cmath>

#include "base/geometry.h"
#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kMostTwips = 1'000'000;
constexpr std::size_t kMostUnits = 24;  // of a number

struct WrittenUnit {
  std::wstring_view name;
  double twips;
};
constexpr WrittenUnit kWrittenUnits[] = {{L"mm", kTwipsPerInch / kMillimetresPerInch},
                                         {L"cm", kTwipsPerInch / kMillimetresPerInch * 10},
                                         {L"in", kTwipsPerInch},
                                         {L"\"", kTwipsPerInch},
                                         {L"pt", 20}};

}  // namespace

std::wstring LengthText(int twips, LengthUnit unit, wchar_t decimal) {
  const bool metric = unit == LengthUnit::kMillimetres;
  const int parts = metric ? 10 : 100;
  const double value =
      static_cast<double>(twips) / kTwipsPerInch * (metric ? kMillimetresPerInch : 1.0) * parts;
  const long long rounded = std::llround(std::abs(value));
  std::wstring text = (twips < 0 && rounded > 0 ? L"-" : L"") + NumberText(rounded / parts);
  if (rounded % parts != 0) {
    text += decimal + PaddedNumber(rounded % parts, metric ? 1 : 2);
    if (text.back() == L'0') text.pop_back();
  }
  return text + (metric ? L" mm" : L" in");
}

std::optional<int> ReadLength(std::wstring_view text, LengthUnit unit) {
  const std::wstring trimmed = Trim(text);
  const std::size_t end = std::min(trimmed.find_first_not_of(L"0123456789.,"), trimmed.size());
  std::wstring number = trimmed.substr(0, end);
  std::ranges::replace(number, L',', L'.');
  if (number.size() > kMostUnits || std::ranges::count(number, L'.') > 1 ||
      std::ranges::none_of(number, IsDigit)) {
    return std::nullopt;
  }
  const std::wstring name = Trim(std::wstring_view(trimmed).substr(end));
  const WrittenUnit* written = std::ranges::find_if(kWrittenUnits, [&](const WrittenUnit& known) {
    return name.empty() ? known.name == (unit == LengthUnit::kInches ? L"in" : L"mm")
                        : EqualsIgnoreCase(name, known.name);
  });
  if (written == std::end(kWrittenUnits)) return std::nullopt;
  const double twips = LeadingNumber(number) * written->twips;
  if (!(twips <= kMostTwips)) return std::nullopt;
  return static_cast<int>(std::lround(twips));
}

}  // namespace varnel
