#include "theme/colour.h"

#include <algorithm>

#include "base/number_text.h"

namespace varnel {
namespace {

constexpr int kMostChannel = 255;

int BlendChannel(int a, int b, double weight) {
  const double mixed = a * weight / kMostChannel + b * (kMostChannel - weight) / kMostChannel;
  return static_cast<int>(std::clamp<long long>(RoundHalfEven(mixed), 0, kMostChannel));
}

}  // namespace

Channels ChannelsOf(Colour colour) {
  return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

Colour ColourOf(const Channels& channels) {
  const auto byte = [](int channel) { return std::clamp(channel, 0, kMostChannel); };
  return byte(channels.red) | byte(channels.green) << 8 | byte(channels.blue) << 16;
}

Colour Translate(Colour colour, const SystemColours& system) {
  if (colour >= 0) return colour;
  const Colour index = colour & 0x7FFFFFFF;
  return index <= 0xFF ? system.Resolve(index) : kNoColour;
}

Colour Blend(Colour a, Colour b, long long weight, const SystemColours& system) {
  const auto capped = static_cast<double>(weight >= 256 ? kMostChannel : weight);
  const Channels from = ChannelsOf(Translate(a, system));
  const Channels to = ChannelsOf(Translate(b, system));
  return ColourOf({BlendChannel(from.red, to.red, capped),
                   BlendChannel(from.green, to.green, capped),
                   BlendChannel(from.blue, to.blue, capped)});
}

}  // namespace varnel
