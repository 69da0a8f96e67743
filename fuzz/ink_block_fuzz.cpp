// Any bytes as a file with ink; without their first eight as the runs of a small sheet, which no
// checksum guards here; and as the pixels of a sheet that is written and read back.
#include <algorithm>
#include <utility>
#include <vector>

#include "base/bmp.h"
#include "base/ink_block.h"
#include "base/little_endian.h"
#include "fuzz/require.h"

using namespace varnel;

namespace {

void CheckWritten(const std::string& bitmap, const Ink& ink) {
  const auto again = InkIn(WithInk(bitmap, ink));
  Require(again && again->sheet == ink.sheet && again->first_weekday == ink.first_weekday);
}

// Bytes as pixels, each repeated as often as a byte of its own says, so that there are runs.
Image SheetOf(std::string_view bytes, std::size_t width) {
  constexpr std::size_t kBytes = 5;
  constexpr std::size_t kMostPixels = kLongestBmpSide;  // however narrow the sheet is
  std::vector<std::uint32_t> pixels;
  for (std::size_t at = 0; at + kBytes <= bytes.size(); at += kBytes) {
    if (pixels.size() + 256 > kMostPixels) break;
    const auto alpha = static_cast<std::uint32_t>(LittleEndian(bytes, at, 1));
    std::uint32_t pixel = alpha << 24;
    for (std::size_t i = 1; i <= 3; ++i) {
      const auto colour = static_cast<std::uint32_t>(LittleEndian(bytes, at + i, 1));
      pixel |= std::min(alpha, colour) << (8 * (i - 1));
    }
    pixels.insert(pixels.end(), LittleEndian(bytes, at + 4, 1) + 1, pixel);
  }
  Image sheet(static_cast<int>(width), static_cast<int>((pixels.size() + width - 1) / width));
  std::ranges::copy(pixels, sheet.All().begin());
  return sheet;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file = BytesOf(data, size);
  if (const auto ink = InkIn(file)) {
    CheckWritten(std::string(file.substr(0, EndOfWrittenBmp(file))), *ink);
  }
  if (size < 8) return 0;
  const auto width = static_cast<int>(LittleEndian(file, 0, 2));
  const auto height = static_cast<int>(LittleEndian(file, 2, 2));
  if (const auto sheet = SheetFromRuns(file.substr(8), width, height)) {
    Require(sheet->width() == width && sheet->height() == height);
    Require(SheetFromRuns(InkRuns(*sheet), width, height) == sheet);
  }
  if (Image sheet = SheetOf(file.substr(2), 1U + data[0]); !sheet.empty()) {
    const Image picture(1 + data[1] % 8, 1 + data[0] % 8);
    CheckWritten(WriteBmp(picture, BmpDepth::k24Bits), {std::move(sheet), data[1] % 7});
  }
  return 0;
}
