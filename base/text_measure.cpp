#include "base/text_measure.h"

#include <algorithm>

namespace varnel {
namespace {

// In pixels; large enough that rounding to whole pixels hardly counts.
constexpr int kSampleHeight = 100;

}  // namespace

std::wstring WithWidestDigits(std::wstring_view text, const TextMeasure& measure) {
  constexpr std::wstring_view kDigits = L"0123456789";
  wchar_t widest = L'0';
  int width = 0;
  for (const wchar_t digit : kDigits) {
    const int digit_width = measure.Measure({&digit, 1}, kSampleHeight).width;
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

int LargestHeight(int most, int guess, const std::function<bool(int height)>& fits) {
  int best = 0;
  int least_failing = std::max(most, 0) + 1;
  int at = std::clamp(guess, 1, std::max(most, 1));
  for (int step = 1; least_failing - best > 1; step *= 2) {
    if (fits(at)) {
      best = at;
      at += step;
    } else {
      least_failing = at;
      at -= step;
    }
    if (at <= best || at >= least_failing) at = best + (least_failing - best) / 2;
  }
  return best;
}

int LargestFontIn(Size area, int most, const std::function<Size(int height)>& size_at) {
  const Size sample = size_at(kSampleHeight);
  const int guess = std::min(area.width * kSampleHeight / std::max(sample.width, 1),
                             area.height * kSampleHeight / std::max(sample.height, 1));
  return LargestHeight(most, guess, [&](int height) {
    const Size size = size_at(height);
    return size.width <= area.width && size.height <= area.height;
  });
}

int FittingHeight(std::wstring_view text, Size area, int most, const TextMeasure& measure) {
  return LargestFontIn(area, most, [&](int height) {
    const TextExtent extent = measure.Measure(text, height);
    return Size{extent.width, extent.height};
  });
}

std::wstring FirstFitting(std::span<const std::wstring> texts, int room, int font_height,
                          const TextMeasure& measure) {
  const auto fits = [&](const std::wstring& text) {
    return measure.Measure(text, font_height).width <= room;
  };
  const auto found = std::ranges::find_if(texts, fits);
  return found == texts.end() ? texts.back() : *found;
}

}  // namespace varnel
