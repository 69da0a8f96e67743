// How large the sheets of a preview are shown.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace varnel {

struct SheetZoom {
  enum class Kind { kWholePage, kPageWidth, kPercent };
  Kind kind = Kind::kWholePage;
  int percent = 100;  // kLeastPercent to kMostPercent
  bool operator==(const SheetZoom&) const = default;
};

inline constexpr int kLeastPercent = 25;
inline constexpr int kMostPercent = 400;

// The next of the usual steps above (`steps` positive) or below a percentage, so many times; it
// stops at either end.
int SteppedPercent(int percent, int steps);
// The usual steps, ascending.
std::span<const int> ZoomSteps();

// "Whole page", "Page width" or "125 %".
std::wstring ZoomText(const SheetZoom& zoom);
// The same, with or without the percent sign, in any case; what is beyond the limits becomes the
// nearer one. Nothing for any other text.
std::optional<SheetZoom> ReadZoom(std::wstring_view text);

}  // namespace varnel
