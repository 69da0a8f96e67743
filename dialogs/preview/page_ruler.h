// The rulers beside a sheet, and margins that are dragged along them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/length_text.h"
#include "frame/pages/page_setup.h"

namespace varnel {

struct RulerMark {
  int at = 0;    // twips from the paper's edge
  int rank = 0;  // 0 has a label, 1 is half of that, 2 the finest
  std::wstring label;
  bool operator==(const RulerMark&) const = default;
};

// The marks of a ruler along `length` twips: millimetres or parts of an inch, as dense as leaves
// `least` pixels between two of the finest and six times as many between two with a label.
std::vector<RulerMark> RulerMarks(int length, double pixels_per_twip, LengthUnit unit, int least);

// Which margin's end lies within `reach` twips of a place on the ruler; of two the nearer one.
std::optional<PageEdge> EdgeNear(const PageSetup& setup, bool across, int at, int reach);

// A margin that is being dragged, from where it was taken.
class MarginDrag {
 public:
  // `at`: the place on the ruler where the pointer took it, in twips from the paper's edge.
  MarginDrag(const PageSetup& setup, PageEdge edge, int at, LengthUnit unit);

  PageEdge edge() const { return edge_; }
  const PageMargins& start() const { return start_; }
  // The margins with the pointer at another place: in whole millimetres or sixteenths of an inch,
  // or to the twip when `fine`.
  PageMargins To(int at, bool fine) const;

 private:
  Size paper_;
  PageMargins start_;
  PageEdge edge_;
  int hold_;  // from the margin's end to where the pointer has it
  LengthUnit unit_;
};

}  // namespace varnel
