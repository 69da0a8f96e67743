#include "theme/thumb_bar_win.h"

#include "base/image.h"
#include "base/rounded_box.h"

namespace varnel {
namespace {

constexpr int kLeastLength = 20;  // at 96 dpi

}  // namespace

bool ThumbBar::Load(HWND parent) {
  Creation creation;
  creation.class_name = L"VarnelThumbBar";
  creation.style = WS_CHILD;
  creation.parent = parent;
  return Create(creation);
}

void ThumbBar::Place(const Rect& place, Colour ground, Colour thumb) {
  ground_ = ground;
  thumb_ = thumb;
  PlaceWindow(handle(), place);
  ::ShowWindow(handle(), place.empty() ? SW_HIDE : SW_SHOWNA);
  ::InvalidateRect(handle(), nullptr, FALSE);
}

void ThumbBar::SetRange(const ScrollRange& range) {
  if (range == range_) return;
  range_ = range;
  ::InvalidateRect(handle(), nullptr, FALSE);
}

Rect ThumbBar::Thumb() const {
  return ThumbIn(client(), range_, Scaled(kLeastLength, dpi()));
}

void ThumbBar::Paint(Surface& surface) {
  FillRectangle(surface.dc(), client(), static_cast<COLORREF>(ground_));
  const Rect thumb = Thumb();
  if (thumb.empty()) return;
  const std::uint32_t colour = OpaquePixel(thumb_);
  DrawRoundedBox(surface.pixels(), surface.size(), thumb, thumb.width() / 2.0, colour, colour);
}

void ThumbBar::OnPress(int y) {
  const Rect thumb = Thumb();
  if (thumb.empty()) return;
  if (y >= thumb.top && y < thumb.bottom) {
    seized_at_ = y - thumb.top;
    ::SetCapture(handle());
  } else {
    scroll_to_(range_.first + (y < thumb.top ? -range_.page : range_.page));
  }
}

void ThumbBar::OnDrag(int y) {
  if (::GetCapture() != handle()) return;
  scroll_to_(FirstAtThumb(client(), range_, Scaled(kLeastLength, dpi()), y - seized_at_));
}

LRESULT ThumbBar::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  const int y = static_cast<short>(HIWORD(lparam));
  switch (message) {
    case WM_LBUTTONDOWN:
      OnPress(y);
      return 0;
    case WM_MOUSEMOVE:
      OnDrag(y);
      return 0;
    case WM_LBUTTONUP:
      ::ReleaseCapture();
      return 0;
    default:
      return PaintedWindow::OnMessage(message, wparam, lparam);
  }
}

}  // namespace varnel
