// How large texts come out in a font, given to layouts so that tests can choose it, and the search
// for the largest font height that still fits.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "base/geometry.h"

namespace varnel {

// All in pixels; `ascent` is the part of `height` above the baseline.
struct TextExtent {
  int width = 0;
  int height = 0;
  int ascent = 0;
};

class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  // The extent of one line of `text` in a font whose em is `font_height` pixels (at least 1) high.
  // An empty text has no width, but the height of the font.
  virtual TextExtent Measure(std::wstring_view text, int font_height) const = 0;
};

// The text with the font's widest digit in place of every digit, so that a layout made for it holds
// whatever the digits become.
std::wstring WithWidestDigits(std::wstring_view text, const TextMeasure& measure);

// The largest height from 1 to `most` for which `fits` holds, 0 when it holds for none. `fits`
// should hold up to some height and not beyond; where it does not, the result still fits. The
// nearer `guess` is to the result, the fewer heights are tried.
int LargestHeight(int most, int guess, const std::function<bool(int height)>& fits);

// The largest font height up to `most` in which what takes `size_at` fits into `area`; 0 when it
// fits in none. Few heights are tried, as each may cost the making of a font.
int LargestFontIn(Size area, int most, const std::function<Size(int height)>& size_at);

// The same for one line of text.
int FittingHeight(std::wstring_view text, Size area, int most, const TextMeasure& measure);

// The first of `texts`, at least one and each shorter than the one before, that is no wider than
// `room`; the last when none is.
std::wstring FirstFitting(std::span<const std::wstring> texts, int room, int font_height,
                          const TextMeasure& measure);

}  // namespace varnel
