#include "theme/contrast.h"

#include <algorithm>
#include <cmath>

namespace varnel {
namespace {

constexpr double kEdgedContrast = 2;  // less than this says too little without a halo

double Linear(int channel) {
  const double share = channel / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

// The end, black or white, towards which a halo for `text` starts out from `theme`.
Colour HaloEnd(Colour text, Colour theme, double needed) {
  const bool darker = RelativeLuminance(theme) <= RelativeLuminance(text);
  const Colour away = darker ? kBlack : kWhite;
  const Colour other = darker ? kWhite : kBlack;
  const double reached = ContrastRatio(text, away);
  return reached >= needed || reached >= ContrastRatio(text, other) ? away : other;
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
  constexpr int kStep = 5;  // divides the range of weights, so that the last step is the end itself
  const Colour ink = Translate(text, system);
  const Colour start = Translate(theme, system);
  if (ContrastRatio(ink, Translate(ground, system)) >= needed) return std::nullopt;
  const Colour end = HaloEnd(ink, start, needed);
  for (int weight = 255; weight > 0; weight -= kStep) {
    const Colour halo = Blend(start, end, weight, system);
    if (ContrastRatio(ink, halo) >= needed) return halo;
  }
  return end;
}

Colour OutlineColour(Colour wished, Colour ground) {
  if (ContrastRatio(wished, ground) >= kReadableLargeContrast) return wished;
  return ContrastRatio(kBlack, ground) > ContrastRatio(kWhite, ground) ? kBlack : kWhite;
}

std::optional<Halo> HaloOf(Colour text, Colour ground, Colour theme, bool large,
                           const SystemColours& system) {
  const auto colour = HaloColour(text, ground, theme, kReadableContrast, system);
  if (!colour) return std::nullopt;
  const auto luminance = [&](Colour of) { return RelativeLuminance(Translate(of, system)); };
  const bool halo_darker = luminance(*colour) < luminance(text);
  const bool text_darker = luminance(text) < luminance(ground);
  const double own = ContrastRatio(Translate(text, system), Translate(ground, system));
  if (halo_darker != text_darker || own < kEdgedContrast) return Halo{*colour, false};
  const double needed = large ? kReadableLargeContrast : kReadableContrast;
  const auto edge = HaloColour(text, ground, theme, needed, system);
  return edge ? std::optional(Halo{*edge, true}) : std::nullopt;
}

}  // namespace varnel
