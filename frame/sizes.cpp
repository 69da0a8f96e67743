#include "frame/sizes.h"

#include <iterator>

#include "base/number_text.h"

namespace varnel {
namespace {

int Divided(int length, double divisor) {
  return static_cast<int>(RoundHalfEven(length / divisor));
}

}  // namespace

std::optional<Size> FixedSize(int index) {
  if (index < 0 || index >= static_cast<int>(std::size(kFixedSizes))) return std::nullopt;
  return kFixedSizes[index];
}

Size DefaultSize() {
  constexpr int kWidth = 5900;
  return {kWidth, Divided(kWidth, 1.7)};
}

std::optional<Size> ScreenPartSize(Size screen, int index) {
  if (index < 0 || index >= static_cast<int>(std::size(kScreenParts))) return std::nullopt;
  const int parts = kScreenParts[index];
  return Size{Divided(screen.width, parts), Divided(screen.height, parts)};
}

}  // namespace varnel
