// Text extents in a real font, for layouts.
#pragma once

#include <string>

#include "base/text_measure.h"
#include "win/fonts.h"

namespace varnel {

class FontMeasure : public TextMeasure {
 public:
  FontMeasure(std::wstring face, bool bold) : face_(std::move(face)), bold_(bold) {}
  TextExtent Measure(std::wstring_view text, int font_height) const override;

 private:
  std::wstring face_;
  bool bold_;
};

}  // namespace varnel
