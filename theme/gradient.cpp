#include "theme/gradient.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

#include "base/number_text.h"

namespace varnel {
namespace {

std::vector<std::uint32_t> GradientLines(Colour first, Colour second, std::size_t count) {
  const Channels from = ChannelsOf(first);
  const Channels to = ChannelsOf(second);
  std::vector<std::uint32_t> lines;
  lines.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double share = count > 1 ? static_cast<double>(i) / static_cast<double>(count - 1) : 0;
    const auto between = [share](int start, int end) {
      return static_cast<int>(RoundHalfEven(start + (end - start) * share));
    };
    lines.push_back(OpaquePixel(ColourOf(
        {between(from.red, to.red), between(from.green, to.green), between(from.blue, to.blue)})));
  }
  return lines;
}

}  // namespace

void FillGradient(Image& image, Colour first, Colour second, double degrees,
                  const SystemColours& system) {
  const Colour start = Translate(first, system);
  const Colour end = Translate(second, system);
  if (OpaquePixel(start) == OpaquePixel(end)) return image.Fill(OpaquePixel(start));

  const double turn = std::isfinite(degrees) ? std::fmod(degrees, 360) : 0;
  const double across = std::cos(turn * std::numbers::pi / 180);
  const double down = -std::sin(turn * std::numbers::pi / 180);
  // How far the image reaches along the direction, measured from its upper left corner.
  const double nearest =
      std::min(0.0, across * image.width()) + std::min(0.0, down * image.height());
  const double length = std::abs(across * image.width()) + std::abs(down * image.height());
  const auto lines =
      GradientLines(start, end, static_cast<std::size_t>(std::max(1LL, RoundHalfEven(length))));
  const auto last = static_cast<double>(lines.size() - 1);
  for (int y = 0; y < image.height(); ++y) {
    double along = across * 0.5 + down * (y + 0.5) - nearest;
    for (std::uint32_t& pixel : image.Row(y)) {
      pixel = lines[static_cast<std::size_t>(std::clamp(std::floor(along), 0.0, last))];
      along += across;
    }
  }
}

}  // namespace varnel
