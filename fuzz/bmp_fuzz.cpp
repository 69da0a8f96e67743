// Any bytes as a bitmap, and as the pixels of a picture that is written: what is read must be
// written, and what is written read back, the same.
#include "base/bmp.h"
#include "base/little_endian.h"
#include "fuzz/require.h"

using namespace varnel;

namespace {

void CheckWritten(const Image& image, BmpDepth depth, std::size_t spare) {
  std::string file = WriteBmp(image, depth, spare);
  Require(EndOfWrittenBmp(file) == file.size());
  file.append(spare, '\xFF');
  Require(EndOfWrittenBmp(file) == file.size() - spare && ReadBmp(file) == image);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file = BytesOf(data, size);
  Require(EndOfWrittenBmp(file) <= size);
  const auto depth = size % 2 == 1 ? BmpDepth::k24Bits : BmpDepth::k32Bits;
  if (const auto image = ReadBmp(file)) {
    Require(!image->empty() && image->width() <= kLongestBmpSide &&
            image->height() <= kLongestBmpSide);
    for (const std::uint32_t pixel : image->All()) Require(pixel >> 24 == 255);
    CheckWritten(*image, depth, 0);
  }
  if (size < 4) return 0;
  constexpr std::size_t kPixelBytes = 3;
  const std::size_t pixels = (size - 1) / kPixelBytes;
  const std::size_t width = 1 + data[0] % pixels;
  Image image(static_cast<int>(width), static_cast<int>(pixels / width));
  for (std::size_t i = 0; i < image.All().size(); ++i) {
    image.All()[i] =
        0xFF000000 | static_cast<std::uint32_t>(LittleEndian(file, 1 + i * kPixelBytes, 3));
  }
  CheckWritten(image, depth, data[0] % 5);
  return 0;
}
