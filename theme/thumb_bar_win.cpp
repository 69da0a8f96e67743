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

// Its own inverse.
Rect ThumbBar::Upright(const Rect& rect) const {
  if (axis_ == ThumbAxis::kDown) return rect;
  return {rect.top, rect.left, rect.bottom, rect.right};
}

Rect ThumbBar::Thumb() const {
  return ThumbIn(Track(), range_, Scaled(kLeastLength, dpi()));
}

void ThumbBar::Paint(Surface& surface) {
  FillRectangle(surface.dc(), client(), static_cast<COLORREF>(ground_));
  const Rect thumb = Thumb();
  if (thumb.empty()) return;
  const std::uint32_t colour = OpaquePixel(thumb_);
  DrawRoundedBox(surface.pixels(), surface.size(), Upright(thumb), thumb.width() / 2.0, colour,
                 colour);
}

void ThumbBar::OnPress(int place) {
  const Rect thumb = Thumb();
  if (thumb.empty()) return;
  if (place >= thumb.top && place < thumb.bottom) {
    seized_at_ = place - thumb.top;
    ::SetCapture(handle());
  } else {
    scroll_to_(range_.first + (place < thumb.top ? -range_.page : range_.page));
  }
}

void ThumbBar::OnDrag(int place) {
  if (::GetCapture() != handle()) return;
  scroll_to_(FirstAtThumb(Track(), range_, Scaled(kLeastLength, dpi()), place - seized_at_));
}

LRESULT ThumbBar::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  const int place = static_cast<short>(axis_ == ThumbAxis::kDown ? HIWORD(lparam) : LOWORD(lparam));
  switch (message) {
    case WM_LBUTTONDOWN:
      OnPress(place);
      return 0;
    case WM_MOUSEMOVE:
      OnDrag(place);
      return 0;
    case WM_LBUTTONUP:
      ::ReleaseCapture();
      return 0;
    default:
      return PaintedWindow::OnMessage(message, wparam, lparam);
  }
}

}  // namespace varnel
