// The theme of one widget: eight stored fields and two colours derived from them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "theme/colour.h"

namespace varnel {

inline constexpr std::wstring_view kDefaultThemeFont = L"Tahoma";
inline constexpr std::size_t kLongestFontName = 31;  // what the platform's font record holds

struct ThemeRecord {
  std::uint8_t bytTHEMEOPACITY = 235;
  std::int32_t lngTHEMECONTRAST = 44;
  Colour lngTHEMECOLOR = 15683584;
  std::wstring strTHEMEPANELFONTNAME{kDefaultThemeFont};
  Colour lngTHEMEPANELFONTCOLOR = kWhite;
  std::wstring strTHEMEBARFONTNAME{kDefaultThemeFont};
  std::int32_t lngTHEMEBARFONTANGLE = 261;
  Colour lngTHEMEBARFONTCOLOR = kWhite;
  Colour lngTHEMECOLORSUBTLE = kBlack;  // this and the next stay black until they are derived
  Colour lngTHEMECOLORPANEL = kBlack;
  bool operator==(const ThemeRecord&) const = default;
};

// One stored field and the name that it carries, with a prefix, in preset files and in the
// settings.
struct ThemeField {
  using Member = std::variant<std::uint8_t ThemeRecord::*, std::int32_t ThemeRecord::*,
                              std::wstring ThemeRecord::*>;
  std::wstring_view preset_section;
  std::wstring_view name;
  Member member;
};

// The stored fields, in the order in which a preset file holds them.
inline constexpr std::array<ThemeField, 8> kThemeFields = {{
    {L"main", L"Main-Color", &ThemeRecord::lngTHEMECOLOR},
    {L"main", L"Main-Opacity", &ThemeRecord::bytTHEMEOPACITY},
    {L"main", L"Main-Contrast", &ThemeRecord::lngTHEMECONTRAST},
    {L"Text", L"Bar-Font", &ThemeRecord::strTHEMEBARFONTNAME},
    {L"Text", L"Bar-Color", &ThemeRecord::lngTHEMEBARFONTCOLOR},
    {L"Text", L"Bar-Angle", &ThemeRecord::lngTHEMEBARFONTANGLE},
    {L"Text", L"Panel-Font", &ThemeRecord::strTHEMEPANELFONTNAME},
    {L"Text", L"Panel-Color", &ThemeRecord::lngTHEMEPANELFONTCOLOR},
}};

// A field as text: numbers in decimal, font names as they are.
std::wstring FieldText(const ThemeRecord& theme, const ThemeField& field);

// Sets a field from text written by anyone. The field stays as it was when the text is empty, not a
// whole number, beyond the field's range (opacity 0 to 255, all else 32 bits) or, for a font,
// longer than kLongestFontName or holding a control character.
void SetFieldText(ThemeRecord& theme, const ThemeField& field, std::wstring_view text);

// Puts kDefaultThemeFont in place of empty font names.
void FillEmptyFonts(ThemeRecord& theme);

// The weight, from a theme's contrast, with which a colour stays what it is when it is blended with
// white: round(base - contrast / 2), halves to even. May be negative.
long long ContrastWeight(int base, std::int32_t contrast);

// Compute lngTHEMECOLORSUBTLE and lngTHEMECOLORPANEL from the stored fields. The subtle colour is a
// softer one once the chrome has been applied, on purpose.
void DeriveOnLoad(ThemeRecord& theme, const SystemColours& system);
void DeriveOnChrome(ThemeRecord& theme, const SystemColours& system);

}  // namespace varnel
