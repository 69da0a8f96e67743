// A made-up proportional font, for tests of layouts.
#pragma once

#include <string_view>

#include "base/text_measure.h"

namespace varnel::test {

// Widths in hundredths of the em: a narrow "1", a wide "8", other digits between.
class PlainMeasure : public TextMeasure {
 public:
  TextExtent Measure(std::wstring_view text, int font_height) const override {
    int width = 0;
    for (const wchar_t unit : text) width += (font_height * Hundredths(unit) + 99) / 100;
    return {width, (font_height * 120 + 99) / 100, font_height * 95 / 100};
  }

 private:
  static int Hundredths(wchar_t unit) {
    if (unit == L'1') return 30;
    if (unit == L'8') return 60;
    if (unit >= L'A' && unit <= L'Z') return unit == L'M' || unit == L'W' ? 90 : 65;
    return unit == L':' || unit == L' ' || unit == L',' ? 28 : 55;
  }
};

}  // namespace varnel::test
