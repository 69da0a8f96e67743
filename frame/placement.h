// Where windows may rest: the grid, the edges of the screens, and the memory of a window's place.
//
// The model's lengths are twips. A position is the same distance from the desktop's origin for
// every window, so it is converted by the system's resolution; a size is what the user sees, so it
// is converted by the resolution of the monitor that the window's corner is nearest to. Rectangles
// in pixels are those of the platform's virtual desktop. Without any monitor nothing is moved.
#pragma once

#include <string_view>
#include <vector>

#include "base/geometry.h"
#include "base/settings.h"

namespace varnel {

struct Monitor {
  Rect work_area;  // pixels, without task bars; an empty one is passed over
  int dpi = kDefaultDpi;
  Rect area = {};  // the whole of it; empty where nobody knows
};

struct Screens {
  std::vector<Monitor> monitors;  // the primary one first
  int system_dpi = kDefaultDpi;
};

// A window's place in twips.
struct Place {
  Point corner;
  Size size;
  bool operator==(const Place&) const = default;
};

// A window's size in pixels of a monitor with `dpi`.
Size PixelSize(Size twips, int dpi);

Rect PixelsFromPlace(const Place& place, const Screens& screens);
// The place of a window that is seen at `pixels`. What `meant`, the place it was to have, gives the
// same pixels for is taken from there, so that nothing drifts by the rounding.
Place PlaceFromPixels(const Rect& pixels, const Place& meant, const Screens& screens);

// Windows come to rest on multiples of this, in twips from the desktop's origin.
inline constexpr int kGridStep = 150;

// The last snapped position of a window.
struct SnappedPosition {
  int lngLEFTOLD = 0;
  int lngTOPOLD = 0;
};

// Moves `corner` (twips) to the nearest grid point, halves to the even line. True when that is
// another point than `old`, which is brought up to date.
bool SnapToGrid(Point& corner, SnappedPosition& old);

// `place` moved into the work area of the monitor that shows most of it, or else of the nearest
// one; a window that is larger than the area keeps its top left corner there.
Place KeepOnScreen(const Place& place, const Screens& screens);

// The size that the size grip gives `place`: on the grid, but never beyond the work area, and never
// smaller than kSmallestSize.
Size SnapSize(const Place& place, const Screens& screens);

// `place` with a size that is `across` and `down` twips more, held as SnapSize does; a direction
// without a change keeps its length as it is.
Size SteppedSize(const Place& place, int across, int down, const Screens& screens);

// Where a window comes to rest that was to be at `meant` and has been dragged to `seen` (pixels):
// snapped to the grid, then wholly in the work area of the monitor that shows most of it, with the
// size that `meant` has there.
Place RestAfterDrag(const Rect& seen, const Place& meant, SnappedPosition& old,
                    const Screens& screens);

// `place` brought wholly into the work area of the monitor nearest to its corner; a larger one is
// made smaller, though not below kSmallestSize. One that is exactly as large as the whole monitor
// was made so on purpose, and covers it.
Place FitPlace(const Place& place, const Screens& screens);

// The place of a form that has none stored, in a tiling of the primary monitor three wide and three
// high: the manager (or any index outside 0 to 7) in the first cell, the widgets after it.
Place DefaultPlace(int index, const Screens& screens);

// The numbers are those of the stored value "Window State".
enum class WindowState { kNormal = 0, kMinimised = 1, kMaximised = 2 };

// Writes the place of the form to its section "\Window"; of a minimised or maximised window only
// the state, of a window whose size is fixed no size.
void SavePosition(Settings& settings, std::wstring_view form_name, WindowState state,
                  const Place& place, bool include_size);

// The place that SavePosition wrote, as the user wished it: it may lie on a monitor that is gone,
// so that the window can return when the monitor does. Each unusable value gives that of
// `fallback`. The state is not read back: a window comes back normal, for nothing on a borderless
// one would show that it is minimised or maximised, or undo it.
Place ReadPosition(const Settings& settings, std::wstring_view form_name, const Place& fallback,
                   bool include_size);

}  // namespace varnel
