// One axis of a picture that is kept at one size and shown at another, part by part.
#pragma once

#include <vector>

namespace varnel {

// Between two stops places move evenly; a part that is not shown at all has two stops at the same
// shown place.
class AxisMap {
 public:
  struct Stop {
    int shown = 0;  // pixels of the view
    int kept = 0;   // pixels of the picture
    bool operator==(const Stop&) const = default;
  };
  // A part of the axis: from one stop to the next.
  struct Part {
    double shown = 0;  // where it begins
    double kept = 0;
    double shown_length = 1;
    double kept_length = 1;
  };

  // Every place is shown where it is kept.
  AxisMap() : AxisMap({{0, 0}, {1, 1}}) {}
  // `stops` in rising order, in both; without two that differ in both it is as without any.
  explicit AxisMap(std::vector<Stop> stops);

  // Places beyond the ends move as the part next to them.
  double Kept(double shown) const;
  double Shown(double kept) const;
  // The part that shows a place; where several begin there, the last.
  const Part& PartAt(double shown) const;

 private:
  const Part& PartOfKept(double kept) const;

  std::vector<Part> parts_;  // those that are shown
};

}  // namespace varnel
