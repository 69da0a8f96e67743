// Any bytes as a bitmap; what is read must be written and read back the same.
#include "base/bmp.h"
#include "fuzz/require.h"

using namespace varnel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file = BytesOf(data, size);
  Require(EndOfWrittenBmp(file) <= size);
  const auto image = ReadBmp(file);
  if (!image) return 0;
  Require(!image->empty() && image->width() <= kLongestBmpSide &&
          image->height() <= kLongestBmpSide);
  for (const std::uint32_t pixel : image->All()) Require(pixel >> 24 == 255);
  const bool odd = size % 2 == 1;
  Require(ReadBmp(WriteBmp(*image, odd ? BmpDepth::k24Bits : BmpDepth::k32Bits)) == image);
  return 0;
}
