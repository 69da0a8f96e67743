// Text extents in a real font, for layouts.
#pragma once

#include <string>

#include "base/text_measure.h"
#include "win/graphics/fonts.h"

namespace varnel {

class FontMeasure : public TextMeasure {
 public:
  // `fonts` outlives the measure and keeps the fonts that it measures.
  FontMeasure(FontCache& fonts, std::wstring face, bool bold)
      : fonts_(fonts), face_(std::move(face)), bold_(bold), dc_(::CreateCompatibleDC(nullptr)) {}
  TextExtent Measure(std::wstring_view text, int font_height) const override;

 private:
  FontCache& fonts_;
  std::wstring face_;
  bool bold_;
  UniqueDc dc_;
};

}  // namespace varnel
