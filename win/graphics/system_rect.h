// Rectangles as the platform has them, and back.
#pragma once

#include <windows.h>

#include "base/geometry.h"

namespace varnel {

inline RECT ToSystem(const Rect& rect) {
  return {rect.left, rect.top, rect.right, rect.bottom};
}
inline Rect FromSystem(const RECT& rect) {
  return {static_cast<int>(rect.left), static_cast<int>(rect.top), static_cast<int>(rect.right),
          static_cast<int>(rect.bottom)};
}

}  // namespace varnel
