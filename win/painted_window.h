// A window that paints all of itself at once, without flicker.
#pragma once

#include "win/surface.h"
#include "win/window.h"

namespace varnel {

class PaintedWindow : public Window {
 public:
  using Window::Window;

 protected:
  // Paints the whole client area; the surface has its size and is black.
  virtual void Paint(Surface& surface) = 0;

  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
};

}  // namespace varnel
