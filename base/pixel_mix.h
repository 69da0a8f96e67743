// Pixels mixed: blue in the low byte, opacity in the high one, colours already weakened by it.
#pragma once

#include <cstdint>

namespace varnel {

// Mixes two pixels: `share` 0 gives `below`, 255 `above`.
constexpr std::uint32_t MixPixels(std::uint32_t below, std::uint32_t above, std::uint32_t share) {
  // Two channels side by side, each with room for a product above it.
  constexpr std::uint32_t kPair = 0x00FF00FF;
  constexpr std::uint32_t kHalves = 0x00800080;
  const std::uint32_t weight = share + (share >> 7);  // 0 to 256
  const std::uint32_t rest = 256 - weight;
  const std::uint32_t even = (below & kPair) * rest + (above & kPair) * weight + kHalves;
  const std::uint32_t odd = (below >> 8 & kPair) * rest + (above >> 8 & kPair) * weight + kHalves;
  return (even >> 8 & kPair) | (odd & ~kPair);
}

// `above` laid over `below`.
constexpr std::uint32_t PixelOver(std::uint32_t below, std::uint32_t above) {
  constexpr std::uint32_t kPair = 0x00FF00FF;
  const std::uint32_t opacity = above >> 24;
  const std::uint32_t rest = 256 - (opacity + (opacity >> 7));
  const std::uint32_t even = (below & kPair) * rest;
  const std::uint32_t odd = (below >> 8 & kPair) * rest;
  return above + ((even >> 8 & kPair) | (odd & ~kPair));
}

}  // namespace varnel
