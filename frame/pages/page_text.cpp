#include "frame/pages/page_text.h"

#include <algorithm>
#include <cstdlib>

namespace varnel {
namespace {

constexpr int kTwipsPerHalfPoint = 10;
constexpr int kGap = 20;  // twips; less is rounding

// Raised and lowered letters stand on a base line of their own.
bool SameLine(const PlacedText& one, const PlacedText& next) {
  const int height = std::max(one.font.half_points, next.font.half_points) * kTwipsPerHalfPoint;
  const bool beside =
      one.right_to_left || next.right_to_left || next.left + kGap >= one.left + one.width();
  return beside && std::abs(one.base_line - next.base_line) < height;
}

}  // namespace

std::wstring PageText(const Page& page) {
  std::wstring text;
  const PlacedText* before = nullptr;
  for (const PlacedText& placed : page.texts) {
    if (before && !SameLine(*before, placed)) {
      text += L"\r\n";
    } else if (before && placed.left > before->left + before->width() + kGap) {
      text += L' ';
    }
    text += placed.text;
    before = &placed;
  }
  return text.empty() ? text : text + L"\r\n";
}

}  // namespace varnel
