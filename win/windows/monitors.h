// The screens as the system reports them.
#pragma once

#include <windows.h>

#include <vector>

#include "base/geometry.h"

namespace varnel {

struct MonitorInfo {
  Rect area;       // the whole screen, in pixels of the virtual desktop
  Rect work_area;  // without taskbars
  int dpi = kDefaultDpi;
};

// All monitors, the primary one first; never empty (a lone 1024 x 768 one if the system tells
// none).
std::vector<MonitorInfo> Monitors();

// The monitor that shows most of `pixels`, or else the nearest one.
MonitorInfo MonitorAt(const Rect& pixels);

// The system's own resolution, which positions on the screen are measured with.
int SystemDpi();

}  // namespace varnel
