#include "win/font_measure.h"

namespace varnel {

TextExtent FontMeasure::Measure(std::wstring_view text, int font_height) const {
  FontCache fonts;  // a search tries many heights, none of which is worth keeping
  const UniqueDc dc(::CreateCompatibleDC(nullptr));
  const SelectedObject selected(dc.get(), fonts.Get({face_, font_height, bold_}));
  SIZE extent = {};
  ::GetTextExtentPoint32W(dc.get(), text.data(), static_cast<int>(text.size()), &extent);
  TEXTMETRICW metrics = {};
  ::GetTextMetricsW(dc.get(), &metrics);
  return {static_cast<int>(extent.cx), static_cast<int>(metrics.tmHeight),
          static_cast<int>(metrics.tmAscent)};
}

}  // namespace varnel
