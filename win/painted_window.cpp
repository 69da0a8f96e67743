#include "win/painted_window.h"

namespace varnel {

LRESULT PaintedWindow::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_PAINT: {
      PAINTSTRUCT paint;
      HDC dc = ::BeginPaint(handle(), &paint);
      const Rect area = client();
      Surface surface({area.width(), area.height()});
      Paint(surface);
      surface.CopyTo(dc, {0, 0});
      ::EndPaint(handle(), &paint);
      return 0;
    }
    case WM_ERASEBKGND:
      return 1;  // the painting leaves nothing of it
    default:
      return Window::OnMessage(message, wparam, lparam);
  }
}

}  // namespace varnel
