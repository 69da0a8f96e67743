// A window that paints all of itself at once, without flicker.
#pragma once

#include "win/graphics/surface.h"
#include "win/windows/window.h"

namespace varnel {

class PaintedWindow : public Window {
 public:
  using Window::Window;

 protected:
  // Paints the client area, of which the surface, black and of its size, asks for the part that is
  // to be seen anew. What that part shows must not depend on what is painted elsewhere.
  virtual void Paint(Surface& surface) = 0;

  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
};

}  // namespace varnel
