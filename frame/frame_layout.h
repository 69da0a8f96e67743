// Where the parts of a widget's frame lie.
#pragma once

#include <array>

#include "base/geometry.h"

namespace varnel {

inline constexpr int kBarButtonCount = 3;  // menu, minimise, close

// All in pixels of the window.
struct FrameLayout {
  Rect pfrBAR;          // the title bar: drags the window
  Rect pfrPANEL;        // the widget's own content
  Rect picBOTTOMSTRIP;  // status line and size grip
  Rect title_glyph;
  Rect title_text;
  std::array<Rect, kBarButtonCount> bar_buttons;  // lablTBARTOP
  Rect status_text;
  Rect size_grip;
  bool operator==(const FrameLayout&) const = default;
};

// The frame of a window of `size` pixels at `dpi`. In a narrow one the title has the room of its
// symbol, which is left out. Parts that a very small window has no room for
// are empty; no part lies outside the window.
FrameLayout LayOutFrame(Size size, int dpi);

// The length in pixels of the frame's base measures (written for 96 dpi).
inline constexpr int kBarHeight = 26;
inline constexpr int kStripHeight = 22;
inline constexpr int kMargin = 8;

}  // namespace varnel
