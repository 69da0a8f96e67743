#include "win/windows/painted_window.h"

#include "win/graphics/system_rect.h"

namespace varnel {
namespace {

// Begins painting and ends it whatever happens: a window whose painting is not ended is asked to
// paint for ever.
class Painting {
 public:
  explicit Painting(HWND window) : window_(window), dc_(::BeginPaint(window, &paint_)) {}
  Painting(const Painting&) = delete;
  Painting& operator=(const Painting&) = delete;
  ~Painting() { ::EndPaint(window_, &paint_); }

  HDC dc() const { return dc_; }
  Rect invalid() const { return FromSystem(paint_.rcPaint); }

 private:
  HWND window_;
  PAINTSTRUCT paint_ = {};
  HDC dc_;
};

}  // namespace

LRESULT PaintedWindow::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_PAINT: {
      const Painting painting(handle());
      const Rect area = client();
      Surface surface({area.width(), area.height()}, painting.invalid());
      if (surface.wanted().empty()) return 0;
      Paint(surface);
      surface.CopyTo(painting.dc(), {0, 0});
      return 0;
    }
    case WM_ERASEBKGND:
      return 1;  // the painting leaves nothing of it
    default:
      return Window::OnMessage(message, wparam, lparam);
  }
}

}  // namespace varnel
