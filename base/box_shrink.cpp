#include "base/box_shrink.h"

#include <cstddef>

namespace varnel {

void BoxShrink(std::span<const std::uint32_t> large, Size size, int factor,
               std::span<std::uint32_t> small) {
  if (size.width < 1 || size.height < 1 || factor < 1 || factor > 8) return;
  const auto width = static_cast<std::size_t>(size.width);
  const auto height = static_cast<std::size_t>(size.height);
  const auto times = static_cast<std::size_t>(factor);
  const std::size_t row = width * times;
  if (large.size() < row * height * times || small.size() < width * height) return;
  const auto count = static_cast<std::uint32_t>(factor * factor);
  // Red and blue are summed side by side, in halves that 64 pixels cannot fill.
  constexpr std::uint32_t kRedBlue = 0x00FF00FF;
  const std::uint32_t half = count / 2;
  // Multiplying takes a fraction of the time that dividing does; no sum is large enough for the
  // difference to show.
  const std::uint64_t part = (std::uint64_t{1} << 32) / count + 1;
  const auto mean = [half, part](std::uint32_t sum) {
    return static_cast<std::uint32_t>((sum + half) * part >> 32);
  };
  for (std::size_t y = 0; y < height; ++y) {
    const std::uint32_t* corner = large.data() + y * times * row;
    std::uint32_t* to = small.data() + y * width;
    for (std::size_t x = 0; x < width; ++x, corner += times) {
      std::uint32_t red_blue = 0;
      std::uint32_t green = 0;
      const std::uint32_t* from = corner;
      for (std::size_t i = 0; i < times; ++i, from += row) {
        for (std::size_t k = 0; k < times; ++k) {
          red_blue += from[k] & kRedBlue;
          green += from[k] >> 8 & 0xFF;
        }
      }
      to[x] = mean(red_blue >> 16) << 16 | mean(green) << 8 | mean(red_blue & 0xFFFF);
    }
  }
}

}  // namespace varnel
