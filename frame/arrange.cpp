#include "frame/arrange.h"

#include <algorithm>
#include <numeric>
#include <optional>

namespace varnel {
namespace {

constexpr int kCascadeStep = 3 * kGridStep;  // shows the title bar of the window before

// The first line of the grid, in twips, that is seen at `pixels` or beyond.
int LineFrom(int pixels, const Screens& screens) {
  const int twips = TwipsFromPixels(pixels, screens.system_dpi);
  int line = (twips / kGridStep - 1) * kGridStep;
  while (PixelsFromTwips(line, screens.system_dpi) < pixels) line += kGridStep;
  return line;
}

bool FitsIn(const Rect& area, const Rect& rect) {
  return Intersection(rect, area) == rect;
}

// The work area while windows are put into it, one after the other.
class Tray {
 public:
  // `gap`, in pixels, is kept between the windows and to the left and top edge.
  Tray(const Rect& area, int gap, const Screens& screens)
      : area_(area),
        gap_(gap),
        screens_(screens),
        across_{LineFrom(area.left + gap, screens)},
        down_{LineFrom(area.top + gap, screens)} {}

  // The corner for a window of that size (twips): as high as there is room, and there as far left.
  // A window that can move neither up nor left touches the area's edge or another window each way,
  // so no other corners have to be tried.
  std::optional<Point> Put(Size size) {
    for (const int top : down_) {
      for (const int left : across_) {
        // One that is wider or higher than the area is seen smaller.
        const Place fitted = FitPlace({{left, top}, size}, screens_);
        const Rect seen = PixelsFromPlace(fitted, screens_);
        if (fitted.corner != Point{left, top} || !FitsIn(area_, seen) || !IsFree(seen)) continue;
        Take(seen);
        return Point{left, top};
      }
    }
    return std::nullopt;
  }

 private:
  bool IsFree(const Rect& seen) const {
    return std::ranges::all_of(
        taken_, [&](const Rect& other) { return Intersection(seen, other).empty(); });
  }
  void Take(const Rect& seen) {
    taken_.push_back(Inset(seen, -gap_));
    across_.push_back(LineFrom(seen.right + gap_, screens_));
    down_.push_back(LineFrom(seen.bottom + gap_, screens_));
    std::ranges::sort(across_);
    std::ranges::sort(down_);
  }

  const Rect area_;
  const int gap_;
  const Screens& screens_;
  std::vector<Rect> taken_;
  std::vector<int> across_, down_;  // lines of the grid, in twips, that a corner may lie on
};

using Corners = std::vector<std::optional<Point>>;

Corners Packed(std::span<const Size> sizes, const std::vector<std::size_t>& order, Tray tray) {
  Corners corners(sizes.size());
  for (const std::size_t i : order) corners[i] = tray.Put(sizes[i]);
  return corners;
}

// The packing with most windows side by side; in their own order and with a gap where that is as
// good as any.
Corners BestPacking(std::span<const Size> sizes, const Rect& area, const Screens& screens) {
  std::vector<std::size_t> as_given(sizes.size());
  std::iota(as_given.begin(), as_given.end(), 0);
  std::vector<std::size_t> high_first = as_given;
  std::ranges::stable_sort(high_first, std::greater<>(),
                           [&](std::size_t i) { return sizes[i].height; });
  std::vector<std::size_t> large_first = as_given;
  std::ranges::stable_sort(large_first, std::greater<>(), [&](std::size_t i) {
    return static_cast<double>(sizes[i].width) * sizes[i].height;
  });
  const auto left_out = [](const Corners& corners) {
    return std::ranges::count_if(corners, [](const auto& corner) { return !corner; });
  };
  Corners best(sizes.size());
  for (const int gap : {PixelsFromTwips(kGridStep, screens.system_dpi), 0}) {
    for (const auto* order : {&as_given, &high_first, &large_first}) {
      Corners corners = Packed(sizes, *order, Tray(area, gap, screens));
      if (left_out(corners) < left_out(best)) best = std::move(corners);
    }
  }
  return best;
}

// Where the `number`th window without room of its own lies, counted from 0: one step further than
// the one before, from the area's corner again where the next step would leave the area.
Point CascadeCorner(int number, Size size, const Rect& area, const Screens& screens) {
  const Point start = {LineFrom(area.left, screens), LineFrom(area.top, screens)};
  const Rect seen = PixelsFromPlace({start, size}, screens);
  const int room = std::min(area.right - seen.right, area.bottom - seen.bottom);
  const int steps = std::max(0, TwipsFromPixels(room, screens.system_dpi) / kCascadeStep);
  const int away = number % (steps + 1) * kCascadeStep;
  return {start.x + away, start.y + away};
}

}  // namespace

std::vector<Place> Arranged(std::span<const Size> sizes, const Screens& screens) {
  const auto primary = std::ranges::find_if(
      screens.monitors, [](const Monitor& monitor) { return !monitor.work_area.empty(); });
  if (primary == screens.monitors.end()) return {};
  const Rect& area = primary->work_area;
  const Corners corners = BestPacking(sizes, area, screens);
  std::vector<Place> places;
  int cascaded = 0;
  for (std::size_t i = 0; i < sizes.size(); ++i) {
    const Point corner =
        corners[i] ? *corners[i] : CascadeCorner(cascaded++, sizes[i], area, screens);
    places.push_back({corner, sizes[i]});
  }
  return places;
}

}  // namespace varnel
