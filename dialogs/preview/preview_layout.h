// Where the parts of the preview's window lie.
#pragma once

#include <span>
#include <vector>

#include "base/geometry.h"

namespace varnel {

// All in pixels.
struct PreviewParts {
  Size client;
  std::span<const int> groups;  // the widths of the groups of tools, from left to right
  int tool_height = 0;
  int gap = 0;  // around groups and parts
  int status_height = 0;
  int thumbs_width = 0;  // 0: none are wanted
  Size setup;            // of the panel with the page's setup; empty: it is not wanted
};

struct PreviewLayout {
  std::vector<Point> groups;  // their upper left corners
  Rect thumbs;                // empty where there is none
  Rect sheets;
  Rect setup;
  Rect status;
};

// Groups that have no room in a row go on in the next one. The sheets keep a third of the width at
// least: the thumbs go where they would leave less, then the setup.
PreviewLayout LayOutPreview(const PreviewParts& parts);

}  // namespace varnel
