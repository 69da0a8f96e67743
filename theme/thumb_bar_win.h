// A slim vertical scroll bar in a widget's colours.
#pragma once

#include <functional>

#include "base/scroll_thumb.h"
#include "theme/colour.h"
#include "win/painted_window.h"

namespace varnel {

class ThumbBar : public PaintedWindow {
 public:
  // `scroll_to` is told the item that the user wants to see first.
  ThumbBar(Ui& ui, std::function<void(int)> scroll_to)
      : PaintedWindow(ui), scroll_to_(std::move(scroll_to)) {}

  // The bar as a child of `parent`, hidden. False when the system refuses.
  bool Load(HWND parent);

  // `place` in pixels of the parent; an empty one hides the bar.
  void Place(const Rect& place, Colour ground, Colour thumb);
  void SetRange(const ScrollRange& range);

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  Rect Thumb() const;
  void Paint(Surface& surface) override;
  void OnPress(int y);
  void OnDrag(int y);

  std::function<void(int)> scroll_to_;
  ScrollRange range_;
  Colour ground_ = kBlack;
  Colour thumb_ = kWhite;
  int seized_at_ = 0;  // the point of the thumb that the mouse holds, from its top
};

}  // namespace varnel
