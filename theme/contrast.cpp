#include "theme/contrast.h"

#include <algorithm>
#include <cmath>

namespace varnel {
namespace {

// A slim halo is nowhere quite of its colour: by so much its contrast has to be higher.
constexpr double kHaloReserve = 1.25;
constexpr int kStep = 5;  // divides the range of weights, so that the last step is the end itself

double Linear(int channel) {
  const double share = channel / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

bool TakesDarkInk(Colour ground) {
  return ContrastRatio(kBlack, ground) >= ContrastRatio(kWhite, ground);
}

// The end, black or white, towards which a halo for `text` starts out from `theme`.
Colour HaloEnd(Colour text, Colour theme, double needed) {
  const bool darker = RelativeLuminance(theme) <= RelativeLuminance(text);
  const Colour away = darker ? kBlack : kWhite;
  const Colour other = darker ? kWhite : kBlack;
  const double reached = ContrastRatio(text, away);
  return reached >= needed || reached >= ContrastRatio(text, other) ? away : other;
}

// `start` led towards `end` until its contrast with `other` is `needed`, or `end` where it never
// is.
Colour Shade(Colour start, Colour end, Colour other, double needed, const SystemColours& system) {
  for (int weight = 255; weight > 0; weight -= kStep) {
    const Colour shade = Blend(start, end, weight, system);
    if (ContrastRatio(other, shade) >= needed) return shade;
  }
  return end;
}

}  // namespace

double RelativeLuminance(Colour colour) {
  const Channels channels = ChannelsOf(colour);
  return 0.2126 * Linear(channels.red) + 0.7152 * Linear(channels.green) +
         0.0722 * Linear(channels.blue);
}

double ContrastRatio(Colour a, Colour b) {
  const double first = RelativeLuminance(a) + 0.05;
  const double second = RelativeLuminance(b) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

std::optional<Colour> HaloColour(Colour text, Colour ground, Colour theme, double needed,
                                 const SystemColours& system) {
  const Colour ink = Translate(text, system);
  const Colour start = Translate(theme, system);
  if (ContrastRatio(ink, Translate(ground, system)) >= needed) return std::nullopt;
  return Shade(start, HaloEnd(ink, start, needed), ink, needed, system);
}

Colour Toned(Colour colour, int weight) {
  constexpr double kDarkFace = 0.06;  // the luminance below which nothing darker can be told apart
  const Colour tone = RelativeLuminance(colour) < kDarkFace ? kWhite : kBlack;
  return Blend(colour, tone, weight, PlainColours());
}

Colour OutlineColour(Colour wished, Colour ground) {
  if (ContrastRatio(wished, ground) >= kReadableLargeContrast) return wished;
  return ContrastRatio(kBlack, ground) > ContrastRatio(kWhite, ground) ? kBlack : kWhite;
}

Colour InkColour(Colour ground, Colour theme, const SystemColours& system) {
  const Colour behind = Translate(ground, system);
  return Shade(Translate(theme, system), TakesDarkInk(behind) ? kBlack : kWhite, behind,
               kReadableContrast, system);
}

Writing WritingOf(Colour text, Colour ground, Colour theme, bool large, bool prefer_ink,
                  const SystemColours& system) {
  const Colour colour = Translate(text, system);
  const Colour behind = Translate(ground, system);
  const double own = ContrastRatio(colour, behind);
  const double needed = large ? kReadableLargeContrast : kReadableContrast;
  // Dark letters on a dark ground look dull even where they reach what large text needs.
  const bool dull = own < kReadableContrast && !TakesDarkInk(behind) &&
                    RelativeLuminance(colour) < RelativeLuminance(behind);
  if (own >= needed && !dull) return {colour, std::nullopt};
  const bool far_off = own < (large ? kLargeInkContrast : kSmallInkContrast);
  const double with_reserve = needed * kHaloReserve;
  const auto halo = HaloColour(colour, ground, theme, with_reserve, system);
  const bool weak = ContrastRatio(colour, *halo) < with_reserve;
  const bool darker = RelativeLuminance(colour) < RelativeLuminance(behind);
  const bool thickens = (RelativeLuminance(*halo) < RelativeLuminance(colour)) == darker;
  if (prefer_ink || far_off || dull || thickens || weak)
    return {InkColour(ground, theme, system), std::nullopt};
  return {colour, halo};
}

}  // namespace varnel
