// One line of a formatted text: what it holds and how wide that is. Lengths are twips.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "widgets/notes/pages/note_fonts.h"
#include "widgets/notes/rtf/rtf_document.h"

namespace varnel {

enum class ClusterKind : std::uint8_t { kText, kBlank, kTab, kPicture, kUnseen };

// Units that stay together: a letter with its marks, a tab, a picture.
struct LineCluster {
  std::size_t source = 0;  // the first unit's place in the text
  std::uint32_t units = 1;
  std::uint32_t format = 0;  // index into RtfDocument::char_formats
  ClusterKind kind = ClusterKind::kText;
  LetterCase letters = LetterCase::kAsTheyAre;
  bool continues = false;  // belongs to the character before, which has another format
  bool joined = false;     // no line ends before it
  int width = 0;
  int height = 0;  // of a picture
};

// A tab on a line.
struct LineTab {
  std::size_t cluster = 0;  // its index
  int from = 0;             // where it begins
  int to = 0;               // where what follows it begins
  TabStop stop;             // within the line's limit
};

// Where a line begins.
struct LinePlace {
  std::size_t paragraph = 0;  // as many as there are: the text's end
  std::size_t at = 0;         // in the text
  bool operator==(const LinePlace&) const = default;
};

struct NoteLine {
  LinePlace begin;
  LinePlace next;
  bool first = false;        // of its paragraph
  bool last = false;         // of its paragraph
  bool ends_page = false;    // by a page break
  bool ends_early = false;   // by a line break or page break
  bool ends_hyphen = false;  // a hyphen is seen at its end
  // Lengths from the column's edge at which the paragraph's lines begin: its right edge where text
  // runs from right to left.
  int start = 0;   // of the text
  int end = 0;     // of what is seen
  int limit = 0;   // which no text crosses
  int height = 0;  // at least 1
  int base_line = 0;
  int mark_start = 0;  // of bullet or number
  std::wstring mark;
  int mark_width = 0;
  std::uint32_t mark_format = 0;
  std::vector<LineCluster> clusters;
  std::size_t seen = 0;  // how many of them stand before the blanks that end the line
  std::vector<LineTab> tabs;
};

}  // namespace varnel
