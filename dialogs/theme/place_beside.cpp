#include "dialogs/theme/place_beside.h"

#include <algorithm>
#include <optional>

namespace varnel {
namespace {

// `start` moved as little as possible so that `length` from there on lies within `low` to `high`.
int Fitted(int start, int length, int low, int high) {
  return std::max(low, std::min(start, high - length));
}

long long SharedArea(const Rect& a, const Rect& b) {
  const Rect shared{std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
                    std::min(a.bottom, b.bottom)};
  return shared.empty() ? 0 : static_cast<long long>(shared.width()) * shared.height();
}

}  // namespace

Rect PlaceBeside(Size dialog, const Rect& window, const Rect& work_area, int gap) {
  const Point corners[] = {{window.right + gap, window.top},
                           {window.left - gap - dialog.width, window.top},
                           {window.left, window.bottom + gap},
                           {window.left, window.top - gap - dialog.height}};
  std::optional<Rect> best;
  for (const Point& corner : corners) {
    const Rect place = RectAt({Fitted(corner.x, dialog.width, work_area.left, work_area.right),
                               Fitted(corner.y, dialog.height, work_area.top, work_area.bottom)},
                              dialog);
    if (!best || SharedArea(place, window) < SharedArea(*best, window)) best = place;
  }
  return *best;
}

}  // namespace varnel
