#include "base/text_measure.h"

namespace varnel {

std::wstring WithWidestDigits(std::wstring_view text, const TextMeasure& measure) {
  // Large enough that rounding to whole pixels does not make two digits equal.
  constexpr int kComparedHeight = 100;
  constexpr std::wstring_view kDigits = L"0123456789";
  wchar_t widest = L'0';
  int width = 0;
  for (const wchar_t digit : kDigits) {
    const int digit_width = measure.Measure({&digit, 1}, kComparedHeight).width;
    if (digit_width > width) {
      widest = digit;
      width = digit_width;
    }
  }
  std::wstring wide(text);
  for (wchar_t& unit : wide) {
    if (kDigits.find(unit) != std::wstring_view::npos) unit = widest;
  }
  return wide;
}

int LargestHeight(int most, const std::function<bool(int height)>& fits) {
  int best = 0;
  for (int low = 1, high = most; low <= high;) {
    const int middle = low + (high - low) / 2;
    if (fits(middle)) {
      best = middle;
      low = middle + 1;
    } else {
      high = middle - 1;
    }
  }
  return best;
}

int FittingHeight(std::wstring_view text, Size area, int most, const TextMeasure& measure) {
  return LargestHeight(most, [&](int height) {
    const TextExtent extent = measure.Measure(text, height);
    return extent.width <= area.width && extent.height <= area.height;
  });
}

}  // namespace varnel
