#include "dialogs/theme/theme_preview_win.h"

#include "base/image.h"
#include "base/rounded_box.h"
#include "frame/frame_painter_win.h"
#include "theme/gradient.h"
#include "theme/widget_paint.h"
#include "win/windows/user_look.h"

namespace varnel {
namespace {

constexpr double kGradientAngle = 45;
constexpr int kPreviewMargin = 12;
constexpr wchar_t kSampleText[] = L"12:34";
constexpr int kSampleHeight = 40;

void PaintSampleWidget(Ui& ui, Surface& surface, const WidgetPaint& paint, const FormEntry& entry,
                       int dpi) {
  FrameLayout layout = LayOutFrame(surface.size(), dpi);
  layout.title_text.right = layout.pfrBAR.right - Scaled(kMargin, dpi);  // there are no buttons
  PaintFrame(ui, surface,
             {layout, paint, std::wstring(entry.title), entry.glyph, L"Bottom bar", dpi});
  PaintText(ui, surface, layout.pfrPANEL, kSampleText,
            PanelTextStyle(paint, Scaled(kSampleHeight, dpi), dpi));
}

// Lays `upper` over `lower` with its corner at `at`; `alpha` 0 to 255.
void LayOver(Surface& lower, Surface& upper, Point at, int alpha) {
  const auto from = upper.pixels();
  const auto to = lower.pixels();
  if (from.empty() || to.empty()) return;
  const auto mixed = [alpha](std::uint32_t over, std::uint32_t under, int shift) {
    const auto channel = [shift](std::uint32_t pixel) { return pixel >> shift & 0xFF; };
    return (channel(over) * alpha + channel(under) * (255 - alpha)) / 255 << shift;
  };
  const Size size = upper.size();
  for (int y = 0; y < size.height; ++y) {
    for (int x = 0; x < size.width; ++x) {
      const std::uint32_t over = from[static_cast<std::size_t>(y) * size.width + x];
      std::uint32_t& under = to[static_cast<std::size_t>(at.y + y) * lower.size().width + at.x + x];
      under = mixed(over, under, 0) | mixed(over, under, 8) | mixed(over, under, 16);
    }
  }
}

}  // namespace

void PaintThemePreview(Ui& ui, Surface& surface, ThemeRecord theme, const FormEntry& entry, int dpi,
                       bool readable, const SystemColours& system) {
  WidgetPaint paint = WidgetPaintOf(theme, false, system);
  PutInterfaceFont(paint, InterfaceFont());
  paint.readable = readable;
  const Size size = surface.size();
  Image ground(size.width, size.height);
  FillGradient(ground, paint.theme.lngTHEMECOLOR, paint.theme.lngTHEMECOLORSUBTLE, kGradientAngle,
               system);
  PutImage(surface, {0, 0}, ground);
  const int margin = Scaled(kPreviewMargin, dpi);
  const Rect inner = Inset({0, 0, size.width, size.height}, margin);
  if (inner.empty()) return;
  Surface widget({inner.width(), inner.height()});
  PaintSampleWidget(ui, widget, paint, entry, dpi);
  LayOver(surface, widget, {inner.left, inner.top}, WindowAlpha(theme.bytTHEMEOPACITY));
}

void PaintSwatch(HDC dc, const Rect& box, Colour colour, int dpi, const SystemColours& system) {
  constexpr int kOutlineWeight = 180;
  Surface surface({box.width(), box.height()});
  ::BitBlt(surface.dc(), 0, 0, box.width(), box.height(), dc, box.left, box.top, SRCCOPY);
  const Colour outline = Blend(colour, kBlack, kOutlineWeight, system);
  DrawRoundedBox(surface.pixels(), surface.size(), {0, 0, box.width(), box.height()},
                 Scaled(3, dpi), OpaquePixel(Translate(colour, system)), OpaquePixel(outline));
  surface.CopyTo(dc, {box.left, box.top});
}

}  // namespace varnel
