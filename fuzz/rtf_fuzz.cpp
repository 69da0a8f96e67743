// Any bytes as RTF: through the reader, the writer, and back; pictures out and in; the mend.
#include "base/text.h"
#include "fuzz/require.h"
#include "widgets/notes/rtf/rtf_mend.h"
#include "widgets/notes/rtf/rtf_pictures.h"
#include "widgets/notes/rtf/rtf_writer.h"

using namespace varnel;

namespace {

void RequireOrder(const RtfDocument& document) {
  Require(!document.fonts.empty() && !document.paragraphs.empty());
  Require(document.paragraphs.front().begin == 0);
  std::size_t paragraphs = 1;
  for (const wchar_t unit : document.text) paragraphs += unit == kParagraphEnd ? 1 : 0;
  Require(document.paragraphs.size() == paragraphs);
  for (std::size_t i = 0; i < document.paragraphs.size(); ++i) {
    const RtfParagraph& paragraph = document.paragraphs[i];
    Require(paragraph.format < document.paragraph_formats.size());
    Require(paragraph.begin == 0 || document.text[paragraph.begin - 1] == kParagraphEnd);
    Require(i == 0 || document.paragraphs[i - 1].begin < paragraph.begin);
  }
  Require(document.runs.empty() == document.text.empty());
  for (std::size_t i = 0; i < document.runs.size(); ++i) {
    Require(document.runs[i].format < document.char_formats.size());
    Require(document.runs[i].begin == 0 ? i == 0
                                        : document.runs[i - 1].begin < document.runs[i].begin);
    Require(document.runs[i].begin < document.text.size());
    Require(document.char_formats[document.runs[i].format].font < document.fonts.size());
  }
  std::size_t objects = 0;
  for (const wchar_t unit : document.text) objects += unit == kObject ? 1 : 0;
  Require(objects == document.pictures.size());
}

const CharFormat& FormatAt(const RtfDocument& document, std::size_t run) {
  return document.char_formats[document.runs[run].format];
}

void RequireSame(const RtfDocument& one, const RtfDocument& other) {
  Require(one.text == other.text && one.pictures == other.pictures);
  Require(one.runs.size() == other.runs.size() && one.fonts == other.fonts);
  for (std::size_t i = 0; i < one.runs.size(); ++i) {
    Require(one.runs[i].begin == other.runs[i].begin);
    Require(FormatAt(one, i) == FormatAt(other, i));
  }
  for (std::size_t i = 0; i < one.paragraphs.size(); ++i) {
    Require(one.paragraph_formats[one.paragraphs[i].format] ==
            other.paragraph_formats[other.paragraphs[i].format]);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view rtf = BytesOf(data, size);
  RtfTrace trace;
  const RtfReading reading = ReadRtf(rtf, {}, &trace);
  if (reading.fault != RtfFault::kNone) return 0;
  RequireOrder(reading.document);
  Require(trace.units.size() == reading.document.text.size());
  Require(trace.pictures.size() == reading.document.pictures.size());
  Require(ReadRtf(rtf).document.text == reading.document.text);

  const RtfReading again = ReadRtf(WriteRtf(reading.document));
  Require(again.fault == RtfFault::kNone);
  RequireSame(reading.document, again.document);

  const SafeRtfResult out = TakePicturesOut(rtf);
  Require(out.fault == RtfFault::kNone && out.safe.document.text == reading.document.text);
  if (const auto back = PutPicturesBack(rtf, out.safe.document.pictures)) {
    const RtfReading whole = ReadRtf(*back);
    Require(whole.fault == RtfFault::kNone && whole.document.text == reading.document.text);
    for (std::size_t i = 0; i < out.safe.document.pictures.size(); ++i) {
      Require(whole.document.pictures[i].bytes == out.safe.document.pictures[i].bytes);
    }
  }
  std::wstring shown = reading.document.text;
  for (std::size_t i = 0; i < shown.size(); i += 3) {
    if (shown[i] >= L' ' && shown[i] != kObject) shown[i] = static_cast<wchar_t>(0x105);
  }
  const auto mended = MendRtf(rtf, {shown, {}});
  if (mended) Require(ReadRtf(*mended).document.text == shown);
  return 0;
}
