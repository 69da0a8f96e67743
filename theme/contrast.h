// Whether text can be read on its ground, and the halo that it is given when it cannot.
// Luminance and contrast follow the Web Content Accessibility Guidelines 2.
#pragma once

#include <optional>

#include "theme/colour.h"

namespace varnel {

// 0 (black) to 1 (white). `colour` must be translated.
double RelativeLuminance(Colour colour);

// 1 (alike) to 21 (black and white). The order of the two does not matter; both must be translated.
double ContrastRatio(Colour a, Colour b);

// The contrast that text needs. Large text, 18 points and more, could do with less.
inline constexpr double kReadableContrast = 4.5;
inline constexpr double kReadableLargeContrast = 3;

// The colour of the halo that makes `text` readable on `ground`: nothing when their contrast is
// `needed` already, else `theme` made darker or lighter, away from the text as long as that can do,
// until the contrast of text and halo is `needed`. Every colour has that contrast with black or
// with white when `needed` is at most 4.58; where neither can do, the better of the two is the
// result.
std::optional<Colour> HaloColour(Colour text, Colour ground, Colour theme, double needed,
                                 const SystemColours& system);

// The colour for a thin line on `ground`: `wished` where that has a contrast of 3 at the least,
// else black or white, whichever has more. Both must be translated.
Colour OutlineColour(Colour wished, Colour ground);

struct Halo {
  Colour colour = kBlack;
  bool edge = false;  // a slim line will do
};

// The halo that `text` is painted with, if any. Mostly the ground lies between text and halo, as
// with white letters on a pale ground: the halo alone carries them, and one of less than 4.5 is
// hardly seen. Where the text lies between ground and halo, as letters of a middle colour on white,
// and has some contrast of its own, an edge is enough, and large text is judged and edged as large
// text.
std::optional<Halo> HaloOf(Colour text, Colour ground, Colour theme, bool large,
                           const SystemColours& system);

}  // namespace varnel
