// Paints what a widget's frame shows itself: bar, panel ground, strip, border and their texts.
#pragma once

#include <string>

#include "core/frame_layout.h"
#include "theme/chrome_colours.h"
#include "theme/text_painter_win.h"

namespace varnel {

struct FramePainting {
  const FrameLayout& layout;
  const ChromeColours& chrome;
  const ThemeRecord& theme;
  std::wstring title;
  wchar_t glyph = 0;
  std::wstring status;
  int dpi = kDefaultDpi;
};

// Fills the whole surface, which has the window's size.
void PaintFrame(Ui& ui, Surface& surface, const FramePainting& frame);

// The style of texts on the title bar, and of those on the bottom strip.
TextStyle BarTextStyle(const FramePainting& frame);
TextStyle StripTextStyle(const FramePainting& frame);

}  // namespace varnel
