#include "base/axis_map.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace varnel {

AxisMap::AxisMap(std::vector<Stop> stops) {
  for (std::size_t i = 0; i + 1 < stops.size(); ++i) {
    const Stop &from = stops[i], &to = stops[i + 1];
    if (to.shown <= from.shown || to.kept <= from.kept) continue;
    parts_.push_back({static_cast<double>(from.shown), static_cast<double>(from.kept),
                      static_cast<double>(to.shown - from.shown),
                      static_cast<double>(to.kept - from.kept)});
  }
  if (parts_.empty()) parts_.push_back({});
}

const AxisMap::Part& AxisMap::PartAt(double shown) const {
  const auto after = std::ranges::upper_bound(parts_, shown, {}, &Part::shown);
  return after == parts_.begin() ? *after : *std::prev(after);
}

const AxisMap::Part& AxisMap::PartOfKept(double kept) const {
  const auto after = std::ranges::upper_bound(parts_, kept, {}, &Part::kept);
  return after == parts_.begin() ? *after : *std::prev(after);
}

double AxisMap::Kept(double shown) const {
  const Part& part = PartAt(shown);
  return part.kept + (shown - part.shown) * part.kept_length / part.shown_length;
}

double AxisMap::Shown(double kept) const {
  const Part& part = PartOfKept(kept);
  const double place = part.shown + (kept - part.kept) * part.shown_length / part.kept_length;
  // What lies between this part and the next is not shown.
  const bool last = &part == &parts_.back();
  return last ? place : std::min(place, part.shown + part.shown_length);
}

}  // namespace varnel
