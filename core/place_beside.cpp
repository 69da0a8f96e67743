#include "core/place_beside.h"

#include <algorithm>

namespace varnel {
namespace {

// `start` moved as little as possible so that `length` from there on lies within `low` to `high`.
int Fitted(int start, int length, int low, int high) {
  return std::max(low, std::min(start, high - length));
}

}  // namespace

Rect PlaceBeside(Size dialog, const Rect& window, const Rect& work_area, int gap) {
  const int left = Fitted(window.left, dialog.width, work_area.left, work_area.right);
  const int top = Fitted(window.top, dialog.height, work_area.top, work_area.bottom);
  const Point corners[] = {{window.right + gap, top},
                           {window.left - gap - dialog.width, top},
                           {left, window.bottom + gap},
                           {left, window.top - gap - dialog.height}};
  for (const Point& corner : corners) {
    const Rect place = RectAt(corner, dialog);
    if (place.left >= work_area.left && place.right <= work_area.right &&
        place.top >= work_area.top && place.bottom <= work_area.bottom) {
      return place;
    }
  }
  return RectAt({work_area.left + (work_area.width() - dialog.width) / 2,
                 work_area.top + (work_area.height() - dialog.height) / 2},
                dialog);
}

}  // namespace varnel
