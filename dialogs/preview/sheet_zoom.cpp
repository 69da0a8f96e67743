#include "dialogs/preview/sheet_zoom.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr int kSteps[] = {25, 33, 50, 67, 75, 90, 100, 110, 125, 150, 175, 200, 250, 300, 400};
constexpr wchar_t kWholePage[] = L"Whole page";
constexpr wchar_t kPageWidth[] = L"Page width";

}  // namespace

std::span<const int> ZoomSteps() {
  return kSteps;
}

int SteppedPercent(int percent, int steps) {
  for (; steps > 0; --steps) {
    const auto next = std::ranges::upper_bound(kSteps, percent);
    if (next != std::end(kSteps)) percent = *next;
  }
  for (; steps < 0; ++steps) {
    const auto next = std::ranges::lower_bound(kSteps, percent);
    if (next != std::begin(kSteps)) percent = *std::prev(next);
  }
  return std::clamp(percent, kLeastPercent, kMostPercent);
}

std::wstring ZoomText(const SheetZoom& zoom) {
  if (zoom.kind == SheetZoom::Kind::kWholePage) return kWholePage;
  if (zoom.kind == SheetZoom::Kind::kPageWidth) return kPageWidth;
  return NumberText(zoom.percent) + L" %";
}

std::optional<SheetZoom> ReadZoom(std::wstring_view text) {
  std::wstring trimmed = Trim(text);
  if (EqualsIgnoreCase(trimmed, kWholePage)) return SheetZoom{SheetZoom::Kind::kWholePage};
  if (EqualsIgnoreCase(trimmed, kPageWidth)) return SheetZoom{SheetZoom::Kind::kPageWidth};
  if (trimmed.ends_with(L'%')) trimmed.pop_back();
  const auto number = WholeNumber(trimmed);
  if (!number || *number <= 0) return std::nullopt;
  return SheetZoom{SheetZoom::Kind::kPercent,
                   static_cast<int>(std::clamp<long long>(*number, kLeastPercent, kMostPercent))};
}

}  // namespace varnel
