#include "frame/bar_label_win.h"

#include "frame/frame_painter_win.h"
#include "theme/gradient.h"

namespace varnel {

void BarLabel::PlaceOnBar(const FrameLayout& layout, const WidgetPaint& paint, int dpi) {
  paint_ = &paint;
  bar_ = layout.pfrBAR;
  box_ = layout.title_text;
  Place(box_, BarTextStyle(paint, dpi));
  Show(!box_.empty());
  ::InvalidateRect(handle(), nullptr, FALSE);
}

void BarLabel::PaintGround(Surface& surface) {
  if (!paint_) return;
  Image bar(bar_.width(), bar_.height());
  FillGradient(bar, paint_->chrome.bar.first, paint_->chrome.bar.second, paint_->chrome.bar_angle,
               PlainColours());
  PutImage(surface, {bar_.left - box_.left, bar_.top - box_.top}, bar);
}

}  // namespace varnel
