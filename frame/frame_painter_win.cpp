#include "frame/frame_painter_win.h"

#include <algorithm>

#include "base/image.h"
#include "theme/gradient.h"

namespace varnel {
namespace {

constexpr int kTitleHeight = 13;
constexpr int kStatusHeight = 11;

void PaintBar(Surface& surface, const FramePainting& frame) {
  const Rect& bar = frame.layout.pfrBAR;
  if (!surface.Wants(bar)) return;
  Image image(bar.width(), bar.height());
  FillGradient(image, frame.paint.chrome.bar.first, frame.paint.chrome.bar.second,
               frame.paint.chrome.bar_angle, PlainColours());
  PutImage(surface, {bar.left, bar.top}, image);
}

// A triangle of dots in the corner that sizes the window.
void PaintGrip(Surface& surface, const FramePainting& frame) {
  constexpr int kRows = 3;
  constexpr int kShare = 170;  // of the ink in the dots' colour
  const WidgetPaint& paint = frame.paint;
  const Colour ink = WritingOf(StripTextStyle(paint, frame.dpi)).colour;
  const Colour colour =
      paint.high_contrast ? ink : Blend(ink, paint.chrome.ground, kShare, PlainColours());
  const Rect& grip = frame.layout.size_grip;
  const int side = (frame.dpi + kDefaultDpi) / kDefaultDpi;  // grows slower than the window
  const Point corner{grip.right - Scaled(4, frame.dpi), grip.bottom - Scaled(4, frame.dpi)};
  for (int row = 0; row < kRows; ++row) {
    for (int column = 0; column < kRows - row; ++column) {
      const Point end{corner.x - 2 * side * column, corner.y - 2 * side * row};
      FillRectangle(surface.dc(), {end.x - side, end.y - side, end.x, end.y}, colour);
    }
  }
}

}  // namespace

TextStyle PanelTextStyle(const WidgetPaint& paint, int font_height, int dpi, Reads reads) {
  TextStyle style;
  style.font = {paint.theme.strTHEMEPANELFONTNAME, font_height, false};
  style.colour = paint.theme.lngTHEMEPANELFONTCOLOR;
  style.ground = paint.chrome.ground;
  style.theme = paint.theme.lngTHEMECOLOR;
  style.readable = paint.readable;
  style.dpi = dpi;
  style.reads = reads;
  style.prefer_ink = !IsLarge(style);
  return style;
}

TextStyle BarTextStyle(const WidgetPaint& paint, int dpi) {
  TextStyle style = PanelTextStyle(paint, Scaled(kTitleHeight, dpi), dpi);
  style.font.face = paint.theme.strTHEMEBARFONTNAME;
  style.colour = paint.theme.lngTHEMEBARFONTCOLOR;
  style.ground = paint.chrome.bar.first;
  style.align = Align::kLeft;
  return style;
}

TextStyle StripTextStyle(const WidgetPaint& paint, int dpi) {
  TextStyle style = BarTextStyle(paint, dpi);
  style.font.height = Scaled(kStatusHeight, dpi);
  style.ground = paint.chrome.ground;
  return style;
}

void PaintFrame(Ui& ui, Surface& surface, const FramePainting& frame) {
  const Rect all{0, 0, surface.size().width, surface.size().height};
  FillRectangle(surface.dc(), all, frame.paint.chrome.ground);
  PaintBar(surface, frame);
  TextStyle style = BarTextStyle(frame.paint, frame.dpi);
  PaintText(ui, surface, frame.layout.title_text, frame.title, style);
  style.font = {kIconFontName, Scaled(kGlyphHeight, frame.dpi), false};
  style.align = Align::kCentre;
  PaintText(ui, surface, frame.layout.title_glyph, std::wstring(1, frame.glyph), style);

  const Rect& strip = frame.layout.picBOTTOMSTRIP;
  FillRectangle(surface.dc(), {strip.left, strip.top, strip.right, strip.top + 1},
                frame.paint.chrome.border);
  PaintText(ui, surface, frame.layout.status_text, frame.status,
            StripTextStyle(frame.paint, frame.dpi));
  PaintGrip(surface, frame);
  FrameRectangle(surface.dc(), all, frame.paint.chrome.border);
}

}  // namespace varnel
