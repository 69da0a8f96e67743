// The state of formats while RTF is read, and the words that change it.
#pragma once

#include <cstdint>
#include <vector>

#include "widgets/notes/rtf/rtf_document.h"
#include "widgets/notes/rtf/rtf_words.h"

namespace varnel {

// A word with the number that followed it.
struct RtfWordUse {
  RtfWord word = RtfWord::kUnknown;
  int argument = 0;
  bool has_value = false;
  std::int32_t value = 0;
};

// A paragraph's format, with what only the end of the paragraph can resolve.
struct ParagraphState {
  ParagraphFormat format;
  std::int32_t line_spacing = 0;  // as \sl has it
  bool line_multiple = false;
  TabStop next_tab;
  std::int32_t list = 0;  // 0: none
  std::int32_t level = 0;
};

// Applies the word where it is one for characters, fonts and colours aside; tells whether it is.
bool ApplyToCharacters(const RtfWordUse& use, CharFormat& format);

// Applies the word where it is one for paragraphs; tells whether it is. Lengths are limited to 22
// inches either way.
bool ApplyToParagraph(const RtfWordUse& use, ParagraphState& state);

// The format with its line spacing resolved: \sl240 with \slmult1 is single, 480 double, other
// multiples keep their number in twentieths of a line; without \slmult1 a positive \sl is the least
// height and a negative one the exact height.
ParagraphFormat ResolvedFormat(const ParagraphState& state);

// Applies the word where it is one of pictures; tells whether it is. `known` becomes false for a
// kind that cannot be shown.
bool ApplyToPicture(const RtfWordUse& use, RtfPicture& picture, bool& known);

// The numbering that \levelnfc names: none for those without a like of ours.
Numbering NumberingOfLevel(std::int32_t level_style);

}  // namespace varnel
