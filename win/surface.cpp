#include "win/surface.h"

#include <algorithm>

#include "win/system_rect.h"

namespace varnel {

Surface::Surface(Size size)
    : size_{std::max(size.width, 1), std::max(size.height, 1)}, dc_(::CreateCompatibleDC(nullptr)) {
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
}

std::span<std::uint32_t> Surface::pixels() {
  if (!bits_) return {};
  ::GdiFlush();
  return {bits_, static_cast<std::size_t>(size_.width) * size_.height};
}

void Surface::CopyTo(HDC target, Point corner) const {
  ::BitBlt(target, corner.x, corner.y, size_.width, size_.height, dc(), 0, 0, SRCCOPY);
}

void PutImage(Surface& surface, Point corner, const Image& image) {
  const auto pixels = surface.pixels();
  const Size size = surface.size();
  const int left = std::max(0, -corner.x);
  const int right = std::min(image.width(), size.width - corner.x);
  if (pixels.empty() || left >= right) return;
  for (int y = std::max(0, -corner.y); y < std::min(image.height(), size.height - corner.y); ++y) {
    std::ranges::copy(image.Row(y).subspan(left, right - left),
                      pixels.begin() + (corner.y + y) * size.width + corner.x + left);
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
