#include "frame/pages/page_setup.h"

#include <algorithm>

namespace varnel {
namespace {

// Brings two margins of one direction to what a side of the paper has room for.
void FitPair(int side, int& one, int& other) {
  one = std::max(one, 0);
  other = std::max(other, 0);
  const long long room = std::max(side - kLeastColumn, 0);
  const long long wished = static_cast<long long>(one) + other;
  if (wished <= room) return;
  one = static_cast<int>(one * room / wished);
  other = static_cast<int>(room) - one;
}

int& Member(PageMargins& margins, PageEdge edge) {
  switch (edge) {
    case PageEdge::kLeft:
      return margins.left;
    case PageEdge::kTop:
      return margins.top;
    case PageEdge::kRight:
      return margins.right;
    default:
      return margins.bottom;
  }
}

PageEdge Opposite(PageEdge edge) {
  constexpr PageEdge kOpposites[] = {PageEdge::kRight, PageEdge::kBottom, PageEdge::kLeft,
                                     PageEdge::kTop};
  return kOpposites[static_cast<std::size_t>(edge)];
}

bool IsEmpty(const PageLine& line) {
  return std::ranges::all_of(line, [](const std::wstring& text) { return text.empty(); });
}

}  // namespace

PageMargins FittedMargins(Size paper, const PageMargins& wished) {
  PageMargins fitted = wished;
  FitPair(paper.width, fitted.left, fitted.right);
  FitPair(paper.height, fitted.top, fitted.bottom);
  return fitted;
}

int MarginOf(const PageMargins& margins, PageEdge edge) {
  PageMargins copy = margins;
  return Member(copy, edge);
}

PageMargins WithMargin(Size paper, const PageMargins& margins, PageEdge edge, int twips) {
  PageMargins changed = FittedMargins(paper, margins);
  const bool across = edge == PageEdge::kLeft || edge == PageEdge::kRight;
  const int most =
      (across ? paper.width : paper.height) - kLeastColumn - MarginOf(changed, Opposite(edge));
  Member(changed, edge) = std::clamp(twips, 0, std::max(most, 0));
  return changed;
}

Rect ColumnOf(const PageSetup& setup) {
  PageMargins margins = setup.margins;
  if (!IsEmpty(setup.texts.header)) margins.top = std::max(margins.top, kHeaderRoom);
  if (!IsEmpty(setup.texts.footer)) margins.bottom = std::max(margins.bottom, kHeaderRoom);
  margins = FittedMargins(setup.paper, margins);
  return {margins.left, margins.top, setup.paper.width - margins.right,
          setup.paper.height - margins.bottom};
}

}  // namespace varnel
