// A text of any length for reading on a form that paints itself: broken at words, to be selected
// and copied, with a scroll bar where it is higher than its box.
#pragma once

#include <windows.h>

#include <string>

#include "base/geometry.h"

namespace varnel {

class ReadingBox {
 public:
  // `id` is the control's number in `parent`, which asks for the colours by WM_CTLCOLORSTATIC.
  // False when the system refuses.
  bool Load(HWND parent, int id);
  void SetText(const std::wstring& text);

  // The height in pixels of the lines that a box of `width` breaks its text into. The font is
  // borrowed for as long as the box has no other.
  int HeightFor(int width, HFONT font);

  // `place` in pixels of the parent; `height` is that of the text. An empty place hides the box.
  void Place(const Rect& place, int height);

 private:
  HWND handle_ = nullptr;
};

}  // namespace varnel
