#include "win/graphics/font_measure.h"

namespace varnel {

TextExtent FontMeasure::Measure(std::wstring_view text, int font_height) const {
  const SelectedObject selected(dc_.get(), fonts_.Get({face_, font_height, bold_}));
  SIZE extent = {};
  ::GetTextExtentPoint32W(dc_.get(), text.data(), static_cast<int>(text.size()), &extent);
  TEXTMETRICW metrics = {};
  ::GetTextMetricsW(dc_.get(), &metrics);
  return {static_cast<int>(extent.cx), static_cast<int>(metrics.tmHeight),
          static_cast<int>(metrics.tmAscent)};
}

}  // namespace varnel
