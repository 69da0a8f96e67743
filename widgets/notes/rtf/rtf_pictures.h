// RTF on its way into the platform's rich edit control and back. The control loses PNG and JPEG
// pictures, and faults on some files; so it is given a clean file of our own making with a
// placeholder for each picture, and what it writes gets the pictures' own bytes back.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/notes/rtf/rtf_reader.h"

namespace varnel {

// A file that the control may see.
struct SafeRtf {
  std::string rtf;          // each picture is one `placeholder`
  wchar_t placeholder = 0;  // of the private use area, nowhere else in the text
  // What the RTF says. Its pictures go in the placeholders' places, at RtfPicture::at; and what the
  // control does not read from RTF (line spacing, justified lines, raised letters, as the case may
  // be) can be set from its formats.
  RtfDocument document;
};

// The most that is taken from the control, which writes pictures larger than they came.
inline constexpr std::size_t kMostControlRtf = 1024UL * 1024 * 1024;

struct SafeRtfResult {
  RtfFault fault = RtfFault::kNone;  // otherwise the file may only be opened as plain text
  SafeRtf safe;
};

// For every file, drop and paste before the control sees it.
SafeRtfResult TakePicturesOut(std::string_view rtf, const RtfOrigin& origin = {});

// The control's RTF with its k-th picture or object, in whatever forms, replaced by pictures[k].
// Nothing when the two are not as many, or the RTF has a fault. At most kMostControlRtf bytes.
std::optional<std::string> PutPicturesBack(std::string_view control_rtf,
                                           std::span<const RtfPicture> pictures,
                                           const RtfOrigin& origin = {});

}  // namespace varnel
