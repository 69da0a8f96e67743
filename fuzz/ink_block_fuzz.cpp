// Any bytes as a file with ink, and without their first eight as the runs of a small sheet, which
// no checksum guards here.
#include "base/bmp.h"
#include "base/ink_block.h"
#include "base/little_endian.h"
#include "fuzz/require.h"

using namespace varnel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file = BytesOf(data, size);
  if (const auto ink = InkIn(file)) {
    const std::string bitmap(file.substr(0, EndOfWrittenBmp(file)));
    const auto again = InkIn(WithInk(bitmap, *ink));
    Require(again && again->sheet == ink->sheet && again->first_weekday == ink->first_weekday);
  }
  if (size < 8) return 0;
  const auto width = static_cast<int>(LittleEndian(file, 0, 2));
  const auto height = static_cast<int>(LittleEndian(file, 2, 2));
  const auto sheet = SheetFromRuns(file.substr(8), width, height);
  if (!sheet) return 0;
  Require(sheet->width() == width && sheet->height() == height);
  Require(SheetFromRuns(InkRuns(*sheet), width, height) == sheet);
  return 0;
}
