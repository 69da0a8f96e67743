#include "theme/text_painter_win.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <vector>

#include "base/halo.h"
#include "win/graphics/system_rect.h"

namespace varnel {
namespace {

constexpr int kFaintWeight = 110;
constexpr int kLargeHeight = 24;  // 18 points, at 96 dpi
constexpr int kTallest = 1000;

UINT DrawFlags(const TextStyle& style) {
  const UINT across = style.align == Align::kLeft    ? DT_LEFT
                      : style.align == Align::kRight ? DT_RIGHT
                                                     : DT_CENTER;
  return across | DT_NOPREFIX | DT_END_ELLIPSIS |
         (style.wrap ? DT_WORDBREAK | DT_EDITCONTROL : DT_VCENTER | DT_SINGLELINE);
}

// The width of each unit of the text, its figures all as wide as the widest; empty where the font's
// are so by themselves.
std::vector<int> TabularWidths(HDC dc, const std::wstring& text) {
  int figures[10] = {};
  if (!::GetCharWidth32W(dc, L'0', L'9', figures)) return {};
  const auto [least, most] = std::ranges::minmax(figures);
  if (least == most) return {};
  std::vector<int> widths;
  for (const wchar_t unit : text) {
    int width = most;
    if (unit < L'0' || unit > L'9') ::GetCharWidth32W(dc, unit, unit, &width);
    widths.push_back(width);
  }
  return widths;
}

// Draws the text unit by unit, each in the middle of its width. False when it needs more room.
bool DrawTabular(HDC dc, const RECT& area, const std::wstring& text, Align align) {
  const std::vector<int> widths = TabularWidths(dc, text);
  const int free =
      static_cast<int>(area.right - area.left) - std::reduce(widths.begin(), widths.end());
  if (widths.empty() || free < 0) return false;
  int left = static_cast<int>(area.left);
  if (align != Align::kLeft) left += align == Align::kRight ? free : free / 2;
  for (std::size_t i = 0; i < text.size(); ++i) {
    RECT cell = {left, area.top, left + widths[i], area.bottom};
    ::DrawTextW(dc, &text[i], 1, &cell,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP);
    left += widths[i];
  }
  return true;
}

void DrawPlain(HDC dc, HFONT font, const Rect& box, const std::wstring& text,
               const TextStyle& style, COLORREF colour) {
  const SelectedObject selected(dc, font);
  ::SetBkMode(dc, TRANSPARENT);
  ::SetTextColor(dc, colour);
  RECT area = ToSystem(box);
  area.left += style.side_room;
  area.right -= style.side_room;
  if (style.tabular && DrawTabular(dc, area, text, style.align)) return;
  const int length = static_cast<int>(text.size());
  if (style.wrap) {
    RECT needed = area;
    ::DrawTextW(dc, text.c_str(), length, &needed, DrawFlags(style) | DT_CALCRECT);
    area.top += std::max<LONG>(0, (area.bottom - needed.bottom) / 2);
  }
  ::DrawTextW(dc, text.c_str(), length, &area, DrawFlags(style));
}

// As slim as will do: letters keep their shapes.
HaloShape ShapeFor(const TextStyle& style) {
  const double unit = style.dpi / static_cast<double>(kDefaultDpi);
  const double grown = std::min(style.font.height / 60.0, unit);
  return {0.5 * unit, unit + grown};
}

// How much of each pixel of `box` the text covers.
Mask CoverageOf(HFONT font, Size size, const std::wstring& text, const TextStyle& style) {
  Surface surface(size);
  DrawPlain(surface.dc(), font, {0, 0, size.width, size.height}, text, style, RGB(255, 255, 255));
  Mask mask(size.width, size.height);
  const auto pixels = surface.pixels();
  const auto values = mask.All();
  for (std::size_t i = 0; i < std::min(pixels.size(), values.size()); ++i) {
    // Smoothing by colour stripes: their mean is the coverage.
    const std::uint32_t pixel = pixels[i];
    values[i] = static_cast<std::uint8_t>(
        ((pixel & 0xFF) + (pixel >> 8 & 0xFF) + (pixel >> 16 & 0xFF)) / 3);
  }
  return mask;
}

// The part of `box` that lies on the surface.
Rect Clipped(const Rect& box, Size size) {
  return {std::max(box.left, 0), std::max(box.top, 0), std::min(box.right, size.width),
          std::min(box.bottom, size.height)};
}

}  // namespace

bool IsLarge(const TextStyle& style) {
  return style.reads == Reads::kAsLarge || style.font.height >= Scaled(kLargeHeight, style.dpi);
}

Writing WritingOf(const TextStyle& style) {
  if (!style.readable) return {style.colour, std::nullopt};
  return WritingOf(style.colour, style.ground, style.theme, IsLarge(style), style.prefer_ink,
                   PlainColours());
}

int HaloRoom(int dpi) {
  TextStyle largest;
  largest.font.height = kTallest;
  largest.dpi = dpi;
  return HaloMargin(ShapeFor(largest));
}

void PaintText(Ui& ui, Surface& surface, const Rect& box, const std::wstring& text,
               const TextStyle& style) {
  const Rect area = Clipped(box, surface.size());
  if (text.empty() || !surface.Wants(area)) return;
  HFONT font = ui.fonts.Get(style.font);
  const Writing writing = WritingOf(style);
  if (style.faint) {
    DrawPlain(surface.dc(), font, area, text, style,
              Blend(writing.colour, style.ground, kFaintWeight, PlainColours()));
    return;
  }
  if (!writing.halo) {
    DrawPlain(surface.dc(), font, area, text, style, writing.colour);
    return;
  }
  const Mask letters = CoverageOf(font, {area.width(), area.height()}, text, style);
  const auto pixels = surface.pixels();
  if (pixels.empty()) return;
  Image image(area.width(), area.height());
  const auto row_of = [&](int y) {
    return pixels.subspan(static_cast<std::size_t>(area.top + y) * surface.size().width + area.left,
                          area.width());
  };
  for (int y = 0; y < image.height(); ++y) std::ranges::copy(row_of(y), image.Row(y).begin());
  CompositeText(image, {0, 0}, letters, HaloMask(letters, ShapeFor(style)),
                OpaquePixel(writing.colour), OpaquePixel(*writing.halo));
  for (int y = 0; y < image.height(); ++y) std::ranges::copy(image.Row(y), row_of(y).begin());
}

}  // namespace varnel
