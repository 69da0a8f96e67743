#include "frame/placement.h"

#include <algorithm>
#include <limits>
#include <string>

#include "base/number_text.h"
#include "frame/sizes.h"

namespace varnel {
namespace {

// In twips. The platform's window coordinates end at 32767 pixels.
constexpr int kFarthest = 500'000;
constexpr int kLeastStoredSize = 600;  // still to be seen and seized

constexpr Point kTilingStart{150, 150};  // from the corner of the work area
constexpr Size kTilingPitch{6150, 3600};
constexpr int kTilingColumns = 3;
constexpr int kTilingCells = 9;

int NearestGridLine(int twips) {
  constexpr long long kLastLine = std::numeric_limits<int>::max() / kGridStep;
  const long long line = RoundHalfEven(static_cast<double>(twips) / kGridStep);
  return static_cast<int>(std::clamp(line, -kLastLine, kLastLine) * kGridStep);
}

// The length that two spans share; negative: the gap between them.
double SharedLength(int start, int end, int other_start, int other_end) {
  return static_cast<double>(std::min(end, other_end)) - std::max(start, other_start);
}

// How near `area` is to `rect`: the area that they share, or else the squared distance, negative.
double Nearness(const Rect& rect, const Rect& area) {
  const double across = SharedLength(rect.left, rect.right, area.left, area.right);
  const double down = SharedLength(rect.top, rect.bottom, area.top, area.bottom);
  if (across > 0 && down > 0) return across * down;
  const double away_across = std::min(across, 0.0);
  const double away_down = std::min(down, 0.0);
  return -(away_across * away_across + away_down * away_down);
}

Point PixelCorner(const Place& place, const Screens& screens) {
  return {PixelsFromTwips(place.corner.x, screens.system_dpi),
          PixelsFromTwips(place.corner.y, screens.system_dpi)};
}

// The monitor that shows most of `pixels`, or else the nearest one; null without any monitor.
const Monitor* NearestMonitor(const Rect& pixels, const Screens& screens) {
  const Monitor* nearest = nullptr;
  for (const Monitor& monitor : screens.monitors) {
    if (monitor.work_area.empty()) continue;
    if (nearest == nullptr ||
        Nearness(pixels, monitor.work_area) > Nearness(pixels, nearest->work_area)) {
      nearest = &monitor;
    }
  }
  return nearest;
}

const Monitor* MonitorAt(Point pixel, const Screens& screens) {
  return NearestMonitor(RectAt(pixel, {1, 1}), screens);
}

int DpiAt(Point pixel, const Screens& screens) {
  const Monitor* monitor = MonitorAt(pixel, screens);
  return monitor == nullptr ? screens.system_dpi : monitor->dpi;
}

// The part of the monitor where a window of `size` pixels belongs.
const Rect& RoomFor(Size size, const Monitor& monitor) {
  const Size whole = {monitor.area.width(), monitor.area.height()};
  return size == whole ? monitor.area : monitor.work_area;
}

// `place` with a window of `size` pixels, moved to where it belongs on the monitor.
Place MovedInside(const Place& place, Size size, const Monitor& monitor, const Screens& screens) {
  const Rect& area = RoomFor(size, monitor);
  const Point corner = PixelCorner(place, screens);
  const Point inside = {std::max(std::min(corner.x, area.right - size.width), area.left),
                        std::max(std::min(corner.y, area.bottom - size.height), area.top)};
  return PlaceFromPixels(RectAt(inside, size), place, screens);
}

Place FittedTo(const Monitor& monitor, const Place& place, const Screens& screens) {
  const Size size = PixelSize(place.size, monitor.dpi);
  const Rect& area = RoomFor(size, monitor);
  const Size smallest = PixelSize(kSmallestSize, monitor.dpi);
  const Size fitted = {std::min(size.width, std::max(area.width(), smallest.width)),
                       std::min(size.height, std::max(area.height(), smallest.height))};
  return MovedInside(place, fitted, monitor, screens);
}

const Monitor* PrimaryMonitor(const Screens& screens) {
  const auto found = std::ranges::find_if(
      screens.monitors, [](const Monitor& monitor) { return !monitor.work_area.empty(); });
  return found == screens.monitors.end() ? nullptr : &*found;
}

// The values of one form's section.
class WindowSection {
 public:
  explicit WindowSection(std::wstring_view form_name)
      : section_(std::wstring(form_name) + L"\\Window") {}

  void Write(Settings& settings, std::wstring_view name, int value) const {
    settings.Write(section_, name, NumberText(value));
  }
  int Read(const Settings& settings, std::wstring_view name, int fallback, int low,
           int high) const {
    const std::wstring text = NumberText(fallback);
    return static_cast<int>(ReadNumber(settings, {section_, name, text}, low, high));
  }

 private:
  std::wstring section_;
};

constexpr std::wstring_view kStateName = L"Window State";
constexpr std::wstring_view kLeftName = L"Left";
constexpr std::wstring_view kTopName = L"Top";
constexpr std::wstring_view kWidthName = L"Width";
constexpr std::wstring_view kHeightName = L"Height";

}  // namespace

Size PixelSize(Size twips, int dpi) {
  return {PixelsFromTwips(twips.width, dpi), PixelsFromTwips(twips.height, dpi)};
}

Rect PixelsFromPlace(const Place& place, const Screens& screens) {
  const Point corner = PixelCorner(place, screens);
  return RectAt(corner, PixelSize(place.size, DpiAt(corner, screens)));
}

Place PlaceFromPixels(const Rect& pixels, const Place& meant, const Screens& screens) {
  const auto twips = [](int now, int then, int meant_twips, int dpi) {
    return now == then ? meant_twips : TwipsFromPixels(now, dpi);
  };
  const int dpi = DpiAt({pixels.left, pixels.top}, screens);
  const Point corner = PixelCorner(meant, screens);
  const Size size = PixelSize(meant.size, dpi);
  return {{twips(pixels.left, corner.x, meant.corner.x, screens.system_dpi),
           twips(pixels.top, corner.y, meant.corner.y, screens.system_dpi)},
          {twips(pixels.width(), size.width, meant.size.width, dpi),
           twips(pixels.height(), size.height, meant.size.height, dpi)}};
}

bool SnapToGrid(Point& corner, SnappedPosition& old) {
  corner = {NearestGridLine(corner.x), NearestGridLine(corner.y)};
  const bool moved = corner != Point{old.lngLEFTOLD, old.lngTOPOLD};
  old = {corner.x, corner.y};
  return moved;
}

Place KeepOnScreen(const Place& place, const Screens& screens) {
  const Monitor* monitor = NearestMonitor(PixelsFromPlace(place, screens), screens);
  if (monitor == nullptr) return place;
  return MovedInside(place, PixelSize(place.size, monitor->dpi), *monitor, screens);
}

Size SnapSize(const Place& place, const Screens& screens) {
  Size size = {NearestGridLine(place.size.width), NearestGridLine(place.size.height)};
  const Point corner = PixelCorner(place, screens);
  if (const Monitor* monitor = MonitorAt(corner, screens)) {
    const Rect& area = monitor->work_area;
    size = {std::min(size.width, TwipsFromPixels(area.right - corner.x, monitor->dpi)),
            std::min(size.height, TwipsFromPixels(area.bottom - corner.y, monitor->dpi))};
  }
  return {std::max(size.width, kSmallestSize.width), std::max(size.height, kSmallestSize.height)};
}

Size SteppedSize(const Place& place, int across, int down, const Screens& screens) {
  Place wanted = place;
  wanted.size = {place.size.width + across, place.size.height + down};
  const Size snapped = SnapSize(wanted, screens);
  return {across == 0 ? place.size.width : snapped.width,
          down == 0 ? place.size.height : snapped.height};
}

Place RestAfterDrag(const Rect& seen, const Place& meant, SnappedPosition& old,
                    const Screens& screens) {
  Place place = {PlaceFromPixels(seen, meant, screens).corner, meant.size};
  SnapToGrid(place.corner, old);
  const Monitor* monitor = NearestMonitor(seen, screens);
  if (monitor == nullptr) return place;
  return MovedInside(place, PixelSize(place.size, monitor->dpi), *monitor, screens);
}

Place FitPlace(const Place& place, const Screens& screens) {
  const Monitor* monitor = MonitorAt(PixelCorner(place, screens), screens);
  return monitor == nullptr ? place : FittedTo(*monitor, place, screens);
}

Place DefaultPlace(int index, const Screens& screens) {
  const int cell = index < 0 || index + 1 >= kTilingCells ? 0 : index + 1;
  const Point offset = {kTilingStart.x + cell % kTilingColumns * kTilingPitch.width,
                        kTilingStart.y + cell / kTilingColumns * kTilingPitch.height};
  const Monitor* primary = PrimaryMonitor(screens);
  if (primary == nullptr) return {offset, DefaultSize()};
  const Rect& area = primary->work_area;
  const Point corner = {NearestGridLine(TwipsFromPixels(area.left, screens.system_dpi) + offset.x),
                        NearestGridLine(TwipsFromPixels(area.top, screens.system_dpi) + offset.y)};
  return FittedTo(*primary, {corner, DefaultSize()}, screens);
}

void SavePosition(Settings& settings, std::wstring_view form_name, WindowState state,
                  const Place& place, bool include_size) {
  const WindowSection section(form_name);
  section.Write(settings, kStateName, static_cast<int>(state));
  if (state != WindowState::kNormal) return;
  section.Write(settings, kLeftName, place.corner.x);
  section.Write(settings, kTopName, place.corner.y);
  if (!include_size) return;
  section.Write(settings, kWidthName, place.size.width);
  section.Write(settings, kHeightName, place.size.height);
}

Place ReadPosition(const Settings& settings, std::wstring_view form_name, const Place& fallback,
                   bool include_size) {
  const WindowSection section(form_name);
  const auto coordinate = [&](std::wstring_view name, int otherwise) {
    return section.Read(settings, name, otherwise, -kFarthest, kFarthest);
  };
  const auto length = [&](std::wstring_view name, int otherwise) {
    return section.Read(settings, name, otherwise, kLeastStoredSize, kFarthest);
  };
  Place place = fallback;
  place.corner = {coordinate(kLeftName, fallback.corner.x),
                  coordinate(kTopName, fallback.corner.y)};
  if (include_size) {
    place.size = {length(kWidthName, fallback.size.width),
                  length(kHeightName, fallback.size.height)};
  }
  return place;
}

}  // namespace varnel
