// How boxes of a layout lie, for its tests.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "base/geometry.h"

namespace varnel::test {

inline bool Inside(const Rect& inner, const Rect& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

inline bool Overlap(const Rect& a, const Rect& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// Every box that is there lies in the area and on none of the others.
inline void ExpectApart(const std::vector<Rect>& boxes, const Rect& area) {
  for (std::size_t i = 0; i < boxes.size(); ++i) {
    if (boxes[i].empty()) continue;
    EXPECT_TRUE(Inside(boxes[i], area)) << i;
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_FALSE(!boxes[j].empty() && Overlap(boxes[i], boxes[j])) << i << " on " << j;
    }
  }
}

}  // namespace varnel::test
