// Colours as themes keep them, and the one blend that everything painted is computed with.
#pragma once

#include <cstdint>

namespace varnel {

// Red in the low byte, then green, then blue; the top byte is zero. A value with the top bit set
// names a system colour: the bits below it are the colour's index.
using Colour = std::int32_t;

inline constexpr Colour kBlack = 0;
inline constexpr Colour kWhite = 0xFFFFFF;
inline constexpr Colour kNoColour = -1;  // what a system colour that cannot be resolved counts as

struct Channels {
  int red = 0;
  int green = 0;
  int blue = 0;
};

// Each 0 to 255; the top byte is not looked at, so kNoColour has the channels of white.
Channels ChannelsOf(Colour colour);
// Channels outside 0 to 255 are clamped into it, so that one never spills into the next.
Colour ColourOf(const Channels& channels);

// The user's system colours.
class SystemColours {
 public:
  virtual ~SystemColours() = default;
  // The colour with that index (0 to 255), or kNoColour when there is none.
  virtual Colour Resolve(int index) const = 0;
};

// For colours that name no system colours.
class PlainColours : public SystemColours {
 public:
  Colour Resolve(int) const override { return kNoColour; }
};

// `colour` itself, or the system colour that it names; kNoColour when it names none.
Colour Translate(Colour colour, const SystemColours& system);

// `a` and `b` translated and mixed channel by channel: a * w / 255 + b * (255 - w) / 255, rounded
// to nearest, halves to even. So weight 255 gives `a` and 0 gives `b`. A weight of 256 or more
// counts as 255; one below 0 is taken as it is and leads away from `a`, until a channel ends at 0
// or 255.
Colour Blend(Colour a, Colour b, long long weight, const SystemColours& system);

}  // namespace varnel
