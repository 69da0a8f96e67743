// Where a layout puts one label.
#pragma once

#include "base/geometry.h"

namespace varnel {

// A label's box in pixels of the panel and the em of its font; not shown when the height is 0.
struct LabelPlace {
  Rect box;
  int font_height = 0;
  bool shown() const { return font_height > 0; }
  bool operator==(const LabelPlace&) const = default;
};

}  // namespace varnel
