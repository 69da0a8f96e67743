#include "frame/screens_win.h"

#include <windows.h>

#include "win/graphics/surface.h"
#include "win/windows/monitors.h"

namespace varnel {

Screens CurrentScreens() {
  Screens screens;
  for (const MonitorInfo& monitor : Monitors()) {
    screens.monitors.push_back({monitor.work_area, monitor.dpi, monitor.area});
  }
  screens.system_dpi = SystemDpi();
  return screens;
}

Size ScreenSizeAt(const Rect& pixels) {
  const MonitorInfo monitor = MonitorAt(pixels);
  return {TwipsFromPixels(monitor.area.width(), monitor.dpi),
          TwipsFromPixels(monitor.area.height(), monitor.dpi)};
}

}  // namespace varnel
