// A label on the title bar, in place of the form's fixed title: the name of the document that is
// open.
#pragma once

#include "frame/frame_layout.h"
#include "theme/themed_label_win.h"
#include "theme/widget_paint.h"

namespace varnel {

class BarLabel : public ThemedLabel {
 public:
  using ThemedLabel::ThemedLabel;

  // Puts the label where the title stands. `paint` outlives it.
  void PlaceOnBar(const FrameLayout& layout, const WidgetPaint& paint, int dpi);

 private:
  void PaintGround(Surface& surface) override;

  const WidgetPaint* paint_ = nullptr;
  Rect bar_;
  Rect box_;
};

}  // namespace varnel
