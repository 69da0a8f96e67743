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
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x) {
      std::uint32_t red = 0;
      std::uint32_t green = 0;
      const std::uint32_t* from = large.data() + y * times * row + x * times;
      std::uint32_t blue = 0;
      for (std::size_t i = 0; i < times; ++i, from += row) {
        for (std::size_t k = 0; k < times; ++k) {
          red += from[k] >> 16 & 0xFF;
          green += from[k] >> 8 & 0xFF;
          blue += from[k] & 0xFF;
        }
      }
      const std::uint32_t half = count / 2;
      small[y * width + x] =
          (red + half) / count << 16 | (green + half) / count << 8 | (blue + half) / count;
    }
  }
}

}  // namespace varnel
