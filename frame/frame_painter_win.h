// Paints what a widget's frame shows itself: bar, panel ground, strip, border and their texts.
#pragma once

#include <string>

#include "frame/frame_layout.h"
#include "theme/text_painter_win.h"
#include "theme/widget_paint.h"

namespace varnel {

// The em of small symbols, at 96 dpi: what they are drawn for, so that their lines are whole
// pixels.
inline constexpr int kGlyphHeight = 20;

struct FramePainting {
  const FrameLayout& layout;
  const WidgetPaint& paint;
  std::wstring title;
  wchar_t glyph = 0;
  std::wstring status;
  int dpi = kDefaultDpi;
};

// Fills the whole surface, which has the window's size.
void PaintFrame(Ui& ui, Surface& surface, const FramePainting& frame);

// The style of texts on the panel, `font_height` in pixels of the screen.
TextStyle PanelTextStyle(const WidgetPaint& paint, int font_height, int dpi,
                         Reads reads = Reads::kByItsHeight);
// The style of texts on the title bar, and of those on the bottom strip.
TextStyle BarTextStyle(const WidgetPaint& paint, int dpi);
TextStyle StripTextStyle(const WidgetPaint& paint, int dpi);

}  // namespace varnel
