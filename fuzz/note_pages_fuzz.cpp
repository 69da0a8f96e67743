// Any bytes as RTF, laid out: the first two bytes say how wide and high the column is.
#include "fuzz/require.h"
#include "tests/support/page_aid.h"
#include "widgets/notes/rtf/rtf_reader.h"

using namespace varnel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  constexpr int kStep = 48;  // twips, so that a byte reaches over the usual papers
  const Rect column{500, 700, 501 + data[0] * kStep, 701 + data[1] * kStep};
  const RtfReading reading = ReadRtf(BytesOf(data + 2, size - 2));
  if (reading.fault != RtfFault::kNone) return 0;
  test::PlainPageMeasure measure;
  NotePages pages(reading.document, column, measure);
  Require(test::PagesFault(reading.document, column, pages).empty());
  return 0;
}
