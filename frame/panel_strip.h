// The panel of a widget that keeps documents: a strip of tools on top, a panel of controls that one
// of the tools opens below it, a list of the documents at the left, the document in the rest.
#pragma once

#include <span>
#include <vector>

#include "base/geometry.h"

namespace varnel {

// One tool of the strip, from left to right; those at the right end stand in the same order.
struct StripTool {
  int width = 24;          // at 96 dpi
  int rank = 0;            // where room is short the tools of the highest rank go first
  bool at_right = false;   // at the right end of the strip
  bool new_group = false;  // stands a little farther from the tool at its left
};

struct DocumentWishes {
  int side_list = 0;   // the width of the list at 96 dpi; 0: it is not wanted
  int open_panel = 0;  // the height of the panel at 96 dpi; 0: none is open
};

// In pixels of the widget's panel; what is left out is empty.
struct DocumentLayout {
  std::vector<Rect> tools;  // one for each tool
  Rect open_panel;
  Rect side_list;
  Rect document;
  bool operator==(const DocumentLayout&) const = default;
};

// Lays out a panel of `panel` pixels at `dpi`. Nothing overlaps or comes nearer to an edge than 8
// px (at 96 dpi; less on a small panel). The document keeps at least 60 % of the height below the
// strip beside an open panel, and three fifths of the width beside the list; what leaves it less is
// left out: the list first, then the open panel, then the strip.
DocumentLayout LayOutDocument(Size panel, int dpi, std::span<const StripTool> tools,
                              const DocumentWishes& wishes);

}  // namespace varnel
