#include "theme/theme_record.h"

#include <algorithm>
#include <limits>
#include <type_traits>

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

void SetFrom(std::wstring& font, std::wstring_view text) {
  const std::wstring name = Trim(text);
  const bool control =
      std::any_of(name.begin(), name.end(), [](wchar_t unit) { return unit < 0x20; });
  if (!name.empty() && name.size() <= kLongestFontName && !control) font = name;
}

template <typename Number>
void SetFrom(Number& field, std::wstring_view text) {
  const auto value = WholeNumber(text);
  if (!value || *value < std::numeric_limits<Number>::min() ||
      *value > std::numeric_limits<Number>::max()) {
    return;
  }
  field = static_cast<Number>(*value);
}

void Derive(ThemeRecord& theme, int tint_weight, int subtle_base, const SystemColours& system) {
  constexpr Colour kTint = 2565927;  // a dark grey: 39, 39, 39
  constexpr int kPanelBase = 155;
  const Colour tinted = Blend(theme.lngTHEMECOLOR, kTint, tint_weight, system);
  theme.lngTHEMECOLORSUBTLE =
      Blend(tinted, kWhite, ContrastWeight(subtle_base, theme.lngTHEMECONTRAST), system);
  theme.lngTHEMECOLORPANEL = Blend(theme.lngTHEMECOLOR, kWhite,
                                   ContrastWeight(kPanelBase, theme.lngTHEMECONTRAST), system);
}

}  // namespace

std::wstring FieldText(const ThemeRecord& theme, const ThemeField& field) {
  const auto text = [&theme](auto member) -> std::wstring {
    if constexpr (std::is_same_v<decltype(member), std::wstring ThemeRecord::*>) {
      return theme.*member;
    } else {
      return NumberText(theme.*member);
    }
  };
  return std::visit(text, field.member);
}

void SetFieldText(ThemeRecord& theme, const ThemeField& field, std::wstring_view text) {
  std::visit([&](auto member) { SetFrom(theme.*member, text); }, field.member);
}

void FillEmptyFonts(ThemeRecord& theme) {
  for (std::wstring* font : {&theme.strTHEMEPANELFONTNAME, &theme.strTHEMEBARFONTNAME}) {
    if (font->empty()) *font = kDefaultThemeFont;
  }
}

long long ContrastWeight(int base, std::int32_t contrast) {
  return RoundHalfEven(base - contrast / 2.0);
}

void DeriveOnLoad(ThemeRecord& theme, const SystemColours& system) {
  Derive(theme, 250, 120, system);
}

void DeriveOnChrome(ThemeRecord& theme, const SystemColours& system) {
  Derive(theme, 230, 135, system);
}

}  // namespace varnel
