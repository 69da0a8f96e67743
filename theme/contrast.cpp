#include "theme/contrast.h"

#include <algorithm>
#include <cmath>

namespace varnel {
namespace {

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

}  // namespace varnel
