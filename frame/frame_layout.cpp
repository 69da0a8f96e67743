#include "frame/frame_layout.h"

#include <algorithm>

namespace varnel {
namespace {

constexpr int kBorder = 1;
constexpr int kButtonWidth = 28;
constexpr int kGlyphWidth = 26;
// Below this width the title goes before its symbol, and the buttons are as narrow as a finger lets
// them be.
constexpr int kNarrow = 190;
constexpr int kNarrowButton = 24;
constexpr int kTitleMargin = 6;

}  // namespace

FrameLayout LayOutFrame(Size size, int dpi) {
  FrameLayout frame;
  const Rect inner = Inset({0, 0, std::max(size.width, 0), std::max(size.height, 0)}, kBorder);
  const int bar_bottom = std::min(inner.bottom, inner.top + Scaled(kBarHeight, dpi));
  const int strip_top = std::max(bar_bottom, inner.bottom - Scaled(kStripHeight, dpi));
  frame.pfrBAR = {inner.left, inner.top, inner.right, bar_bottom};
  frame.pfrPANEL = {inner.left, bar_bottom, inner.right, strip_top};
  frame.picBOTTOMSTRIP = {inner.left, strip_top, inner.right, inner.bottom};

  const bool narrow = inner.width() < Scaled(kNarrow, dpi);
  const int button_width = Scaled(narrow ? kNarrowButton : kButtonWidth, dpi);
  int right = inner.right;
  for (int i = kBarButtonCount - 1; i >= 0; --i) {
    const int left = std::max(inner.left, right - button_width);
    frame.bar_buttons[i] = {left, inner.top, right, bar_bottom};
    right = left;
  }
  const int glyph_right =
      std::min(right, inner.left + Scaled(narrow ? kTitleMargin : kGlyphWidth, dpi));
  if (!narrow) frame.title_glyph = {inner.left, inner.top, glyph_right, bar_bottom};
  frame.title_text = {glyph_right, inner.top, right, bar_bottom};

  const Rect& strip = frame.picBOTTOMSTRIP;
  const int grip_left = std::max(strip.left, strip.right - strip.height());
  frame.size_grip = {grip_left, strip.top, strip.right, strip.bottom};
  frame.status_text = {std::min(grip_left, strip.left + Scaled(kMargin, dpi)), strip.top, grip_left,
                       strip.bottom};
  return frame;
}

}  // namespace varnel
