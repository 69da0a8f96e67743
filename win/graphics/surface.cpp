#include "win/graphics/surface.h"

#include <algorithm>

#include "win/graphics/system_rect.h"

namespace varnel {

Surface::Surface(Size size)
    : Surface(size, {0, 0, std::max(size.width, 1), std::max(size.height, 1)}) {}

Surface::Surface(Size size, const Rect& wanted)
    : size_{std::max(size.width, 1), std::max(size.height, 1)},
      wanted_(Intersection(wanted, RectAt({0, 0}, size_))),
      dc_(::CreateCompatibleDC(nullptr)) {
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size_.width;
  info.bmiHeader.biHeight = -size_.height;  // rows from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  bitmap_ = UniqueBitmap(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  bits_ = static_cast<std::uint32_t*>(bits);
  if (bitmap_) ::SelectObject(dc_.get(), bitmap_.get());
  ::IntersectClipRect(dc_.get(), wanted_.left, wanted_.top, wanted_.right, wanted_.bottom);
}

std::span<std::uint32_t> Surface::pixels() {
  if (!bits_) return {};
  ::GdiFlush();
  return {bits_, static_cast<std::size_t>(size_.width) * size_.height};
}

void Surface::CopyTo(HDC target, Point corner) const {
  ::BitBlt(target, corner.x + wanted_.left, corner.y + wanted_.top, wanted_.width(),
           wanted_.height(), dc(), wanted_.left, wanted_.top, SRCCOPY);
}

void PutImage(Surface& surface, Point corner, const Image& image) {
  const auto pixels = surface.pixels();
  const Rect shown =
      Intersection(RectAt(corner, {image.width(), image.height()}), surface.wanted());
  if (pixels.empty() || shown.empty()) return;
  for (int y = shown.top; y < shown.bottom; ++y) {
    std::ranges::copy(image.Row(y - corner.y).subspan(shown.left - corner.x, shown.width()),
                      pixels.begin() + y * surface.size().width + shown.left);
  }
}

void FillRectangle(HDC dc, const Rect& rect, COLORREF colour) {
  const RECT system = ToSystem(rect);
  ::SetDCBrushColor(dc, colour);
  ::FillRect(dc, &system, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

void FrameRectangle(HDC dc, const Rect& rect, COLORREF colour) {
  const RECT system = ToSystem(rect);
  ::SetDCBrushColor(dc, colour);
  ::FrameRect(dc, &system, static_cast<HBRUSH>(::GetStockObject(DC_BRUSH)));
}

}  // namespace varnel
