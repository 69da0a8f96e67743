#include "frame/frame_painter_win.h"

#include <algorithm>

#include "base/image.h"
#include "theme/contrast.h"
#include "theme/gradient.h"
#include "theme/system_colours_win.h"

namespace varnel {
namespace {

constexpr int kTitleHeight = 13;
constexpr int kStatusHeight = 11;
constexpr int kGlyphHeight = 16;

void PaintBar(Surface& surface, const FramePainting& frame) {
  const Rect& bar = frame.layout.pfrBAR;
  Image image(bar.width(), bar.height());
  FillGradient(image, frame.paint.chrome.bar.first, frame.paint.chrome.bar.second,
               frame.paint.chrome.bar_angle, UserSystemColours());
  PutImage(surface, {bar.left, bar.top}, image);
}

// The colour for lines, which have no halo: the text's, or its halo's where the text's is hardly
// seen.
Colour LineColour(const TextStyle& style) {
  constexpr double kSeen = 2;
  if (ContrastRatio(style.colour, style.ground) >= kSeen) return style.colour;
  return HaloColour(style.colour, style.ground, style.halo_base, kReadableContrast,
                    UserSystemColours())
      .value_or(style.colour);
}

// Three short diagonal lines in the corner that sizes the window.
void PaintGrip(Surface& surface, const FramePainting& frame) {
  const Colour colour = LineColour(StripTextStyle(frame.paint, frame.dpi));
  const Rect& grip = frame.layout.size_grip;
  const int step = std::max(3, Scaled(4, frame.dpi));
  const int edge = Scaled(3, frame.dpi);
  const UniquePen pen(::CreatePen(PS_SOLID, std::max(1, Scaled(1, frame.dpi)), colour));
  const SelectedObject selected(surface.dc(), pen.get());
  for (int i = 1; i <= 3; ++i) {
    ::MoveToEx(surface.dc(), grip.right - edge - i * step, grip.bottom - edge, nullptr);
    ::LineTo(surface.dc(), grip.right - edge + 1, grip.bottom - edge - i * step - 1);
  }
}

}  // namespace

TextStyle BarTextStyle(const WidgetPaint& paint, int dpi) {
  TextStyle style;
  style.font = {paint.theme.strTHEMEBARFONTNAME, Scaled(kTitleHeight, dpi), false};
  style.colour = paint.theme.lngTHEMEBARFONTCOLOR;
  style.ground = paint.chrome.bar.first;
  style.halo_base = paint.theme.lngTHEMECOLOR;
  style.align = Align::kLeft;
  style.dpi = dpi;
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
