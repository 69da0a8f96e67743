#include "widgets/notes/rtf/rtf_pictures.h"

#include <algorithm>
#include <utility>

#include "widgets/notes/rtf/rtf_writer.h"

namespace varnel {
namespace {

constexpr std::size_t kPrivateBegin = 0xE000;
constexpr std::size_t kPrivateEnd = 0xF000;  // from there on symbol fonts have theirs

wchar_t FreePlaceholder(std::wstring_view text) {
  std::vector<bool> used(kPrivateEnd - kPrivateBegin);
  for (const wchar_t unit : text) {
    const auto code = static_cast<std::size_t>(unit);
    if (code >= kPrivateBegin && code < kPrivateEnd) used[code - kPrivateBegin] = true;
  }
  std::size_t free = 0;
  while (free + 1 < used.size() && used[free]) ++free;
  return static_cast<wchar_t>(kPrivateBegin + free);
}

}  // namespace

SafeRtfResult TakePicturesOut(std::string_view rtf, const RtfOrigin& origin) {
  SafeRtfResult result;
  RtfReading reading = ReadRtf(rtf, origin);
  result.fault = reading.fault;
  if (reading.fault != RtfFault::kNone) return result;
  SafeRtf& safe = result.safe;
  safe.placeholder = FreePlaceholder(reading.document.text);
  safe.rtf = WriteRtf(reading.document, safe.placeholder);
  safe.document = std::move(reading.document);
  return result;
}

std::optional<std::string> PutPicturesBack(std::string_view control_rtf,
                                           std::span<const RtfPicture> pictures,
                                           const RtfOrigin& origin) {
  RtfTrace trace;
  RtfOrigin control = origin;
  control.most_bytes = kMostControlRtf;
  const RtfReading before = ReadRtf(control_rtf, control, &trace);
  if (before.fault != RtfFault::kNone) return std::nullopt;
  if (trace.pictures.size() != pictures.size()) return std::nullopt;
  std::string rtf;
  std::size_t done = 0;
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    const RtfSpan span = trace.pictures[i];
    if (span.begin < done) return std::nullopt;  // two within one object
    rtf += control_rtf.substr(done, span.begin - done);
    rtf += PictureRtf(pictures[i]);
    done = span.end;
  }
  rtf += control_rtf.substr(done);
  // Text within the picture's own group would be gone; a group that is no picture of its own would
  // hide one.
  const RtfReading after = ReadRtf(rtf, control);
  const bool whole = after.fault == RtfFault::kNone &&
                     after.document.text == before.document.text &&
                     std::ranges::equal(after.document.pictures, pictures, {}, &RtfPicture::bytes,
                                        &RtfPicture::bytes);
  return whole ? std::optional(std::move(rtf)) : std::nullopt;
}

}  // namespace varnel
