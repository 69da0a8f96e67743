#include "win/font_measure.h"

namespace varnel {

TextExtent FontMeasure::Measure(std::wstring_view text, int font_height) const {
  const UniqueFont font = MakeFont({face_, font_height, bold_});
  const UniqueDc dc(::CreateCompatibleDC(nullptr));
  const SelectedObject selected(dc.get(), font.get());
  SIZE extent = {};
  ::GetTextExtentPoint32W(dc.get(), text.data(), static_cast<int>(text.size()), &extent);
  TEXTMETRICW metrics = {};
  ::GetTextMetricsW(dc.get(), &metrics);
  return {static_cast<int>(extent.cx), static_cast<int>(metrics.tmHeight),
          static_cast<int>(metrics.tmAscent)};
}

}  // namespace varnel
