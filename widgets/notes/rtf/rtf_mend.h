// Mends what a rich edit control wrote wrongly.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/notes/rtf/rtf_reader.h"

namespace varnel {

// As in ParagraphFormat.
struct ParagraphIndents {
  std::int32_t left = 0;
  std::int32_t first = 0;
  std::int32_t right = 0;
  bool operator==(const ParagraphIndents&) const = default;
};

// What the editor shows, which its file has to say, and what is known of how it writes.
struct EditorTruth {
  std::wstring_view text;                     // its characters; a picture may be kObject or a blank
  std::span<const ParagraphIndents> indents;  // of each paragraph; empty: not compared
  bool raised_in_twips = false;  // the control wrote \up and \dn in twips, not in half points
  // It took the two words of indents for each other: it wrote where all lines but the first begin,
  // from the first, as \li, and where the first begins as \fi. Then `indents` does not count.
  bool swapped_indents = false;
};

// The RTF with every character and indent that differs from the truth rewritten, or as it is when
// none does. Nothing when the two have other paragraphs, pictures or breaks in other places, or the
// RTF has a fault: then it cannot be mended and must not replace anything.
std::optional<std::string> MendRtf(std::string_view control_rtf, const EditorTruth& truth,
                                   const RtfOrigin& origin = {});

}  // namespace varnel
