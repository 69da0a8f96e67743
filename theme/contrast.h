// Whether text can be read on its ground, and what it is given when it cannot: ink or a halo.
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

// The shade of `theme` that is readable on `ground`: `theme` made darker, or lighter where black is
// harder to read there than white, until its contrast with `ground` is kReadableContrast.
Colour InkColour(Colour ground, Colour theme, const SystemColours& system);

// `colour` made darker, or lighter where it is nearly black, so that the two are told apart;
// `weight`, 0 to 255, of it is kept. It must be translated.
Colour Toned(Colour colour, int weight);

// What a text is written with.
struct Writing {
  Colour colour = kBlack;
  std::optional<Colour> halo;
  bool operator==(const Writing&) const = default;
};

// How a text of the colour `text` is written so that it can be read. One that has the contrast it
// needs keeps its colour, but for dark letters on a ground that asks for light ones: below
// kReadableContrast they go to ink whatever their size. Of the others those go to ink that are far
// from it, small text below kSmallInkContrast and large text below kLargeInkContrast; those whose
// halo would only thicken them, as it would lie beyond them as seen from the ground, or would be
// too weak; and those that `prefer_ink`. The rest keep their colour and get a slim halo, with some
// contrast to spare.
inline constexpr double kSmallInkContrast = 3;
inline constexpr double kLargeInkContrast = 2;
Writing WritingOf(Colour text, Colour ground, Colour theme, bool large, bool prefer_ink,
                  const SystemColours& system);

}  // namespace varnel
