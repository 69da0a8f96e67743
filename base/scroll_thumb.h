// The thumb of a vertical scroll bar: how long it is, where it lies, and what a drag of it means.
#pragma once

#include "base/geometry.h"

namespace varnel {

// What is seen of a list: `page` items from `first` on, of `count`.
struct ScrollRange {
  int first = 0;
  int page = 0;
  int count = 0;
  bool operator==(const ScrollRange&) const = default;
};

// The thumb in `track`, at least `least_length` high as far as the track is; empty when all items
// are seen at once. A `first` out of its range counts as the nearest in it.
Rect ThumbIn(const Rect& track, const ScrollRange& range, int least_length);

// The first item to be seen when the thumb's top is dragged to `top`.
int FirstAtThumb(const Rect& track, const ScrollRange& range, int least_length, int top);

}  // namespace varnel
