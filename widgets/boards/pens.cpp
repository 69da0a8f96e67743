#include "widgets/boards/pens.h"

#include <algorithm>

namespace varnel {
namespace {

constexpr Colour Rgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

constexpr std::array<BoardPen, kPens> kTable = {{{L"BLACK", Rgb(0, 0, 0)},
                                                 {L"RED", Rgb(255, 0, 0)},
                                                 {L"ORANGE", Rgb(255, 128, 0)},
                                                 {L"YELLOW", Rgb(255, 255, 0)},
                                                 {L"GREEN", Rgb(0, 255, 0)},
                                                 {L"BLUE", Rgb(0, 119, 255)},
                                                 {L"PURPLE", Rgb(192, 0, 192)},
                                                 {L"ERASE", Rgb(255, 255, 255)}}};

}  // namespace

const BoardPen& PenAt(int index) {
  return kTable[static_cast<std::size_t>(std::clamp(index, 0, kEraser))];
}

int SanePenWidth(long long pixels) {
  const bool known = std::ranges::any_of(
      kPenWidths, [&](const PenWidth& width) { return width.pixels == pixels; });
  return known ? static_cast<int>(pixels) : kDefaultPenWidth;
}

int NextPenWidth(int pixels, int step) {
  int next = pixels;
  for (const PenWidth& width : kPenWidths) {
    if (step > 0 && width.pixels > pixels) return width.pixels;
    if (step < 0 && width.pixels < pixels) next = width.pixels;
  }
  return next;
}

}  // namespace varnel
