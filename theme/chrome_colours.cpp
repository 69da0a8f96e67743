#include "theme/chrome_colours.h"

#include <algorithm>

namespace varnel {

ChromeColours DeriveChrome(ThemeRecord& theme, const SystemColours& system) {
  constexpr int kBarBase = 145;
  constexpr int kBorderWeight = 205;
  DeriveOnChrome(theme, system);
  const Colour ground = theme.lngTHEMECOLORPANEL;
  const long long bar_weight = static_cast<long long>(kBarBase) - theme.lngTHEMECONTRAST;
  const Colour bar = Blend(theme.lngTHEMECOLOR, kWhite, bar_weight, system);
  return {
      ground, Blend(ground, kBlack, kBorderWeight, system), {bar, bar}, theme.lngTHEMEBARFONTANGLE};
}

ColourPair ButtonColours(const ThemeRecord& theme, ButtonLook look, const SystemColours& system) {
  const auto whitened = [&](Colour colour, int first_weight, int second_weight) -> ColourPair {
    return {Blend(colour, kWhite, first_weight, system),
            Blend(colour, kWhite, second_weight, system)};
  };
  const auto leaning = [&](int black_weight) {
    const Colour shade = Blend(kBlack, theme.lngTHEMEBARFONTCOLOR, black_weight, system);
    return Blend(theme.lngTHEMECOLOR, shade, 230, system);
  };
  switch (look) {
    case ButtonLook::kHover:
      return whitened(leaning(150), 200, 250);
    case ButtonLook::kPressed:
      return whitened(leaning(40), 80, 190);
    case ButtonLook::kNormal:
      break;
  }
  return whitened(theme.lngTHEMECOLOR, 190, 120);
}

std::uint8_t WindowAlpha(int opacity) {
  return static_cast<std::uint8_t>(std::clamp(opacity, 20, 255));
}

}  // namespace varnel
