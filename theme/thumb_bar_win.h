// A slim scroll bar in a widget's colours.
#pragma once

#include <functional>

#include "base/scroll_thumb.h"
#include "theme/colour.h"
#include "win/windows/painted_window.h"

namespace varnel {

enum class ThumbAxis { kDown, kAcross };

class ThumbBar : public PaintedWindow {
 public:
  // `scroll_to` is told the item that the user wants to see first.
  ThumbBar(Ui& ui, std::function<void(int)> scroll_to, ThumbAxis axis = ThumbAxis::kDown)
      : PaintedWindow(ui), scroll_to_(std::move(scroll_to)), axis_(axis) {}

  // The bar as a child of `parent`, hidden. False when the system refuses.
  bool Load(HWND parent);

  // `place` in pixels of the parent; an empty one hides the bar.
  void Place(const Rect& place, Colour ground, Colour thumb);
  void SetRange(const ScrollRange& range);

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  // The bar and its thumb as if it were an upright one.
  Rect Track() const { return Upright(client()); }
  Rect Thumb() const;
  Rect Upright(const Rect& rect) const;
  void Paint(Surface& surface) override;
  void OnPress(int place);
  void OnDrag(int place);

  std::function<void(int)> scroll_to_;
  ThumbAxis axis_;
  ScrollRange range_;
  Colour ground_ = kBlack;
  Colour thumb_ = kWhite;
  int seized_at_ = 0;  // the point of the thumb that the mouse holds, from its beginning
};

}  // namespace varnel
