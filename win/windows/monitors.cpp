#include "win/windows/monitors.h"

#include <algorithm>

#include "win/graphics/system_rect.h"
#include "win/system/late_function.h"

namespace varnel {
namespace {

int MonitorDpi(HMONITOR monitor) {
  using GetDpi = HRESULT WINAPI(HMONITOR, int, UINT*, UINT*);
  UINT across = 0;
  UINT down = 0;
  auto* get_dpi = LateFunction<GetDpi>(L"shcore.dll", "GetDpiForMonitor");
  return get_dpi && SUCCEEDED(get_dpi(monitor, 0, &across, &down)) ? static_cast<int>(across)
                                                                   : SystemDpi();
}

MonitorInfo Describe(HMONITOR monitor, bool* primary) {
  MONITORINFO info = {};
  info.cbSize = sizeof info;
  if (!::GetMonitorInfoW(monitor, &info)) {
    return {{0, 0, 1024, 768}, {0, 0, 1024, 768}, SystemDpi()};
  }
  if (primary) *primary = info.dwFlags & MONITORINFOF_PRIMARY;
  return {FromSystem(info.rcMonitor), FromSystem(info.rcWork), MonitorDpi(monitor)};
}

BOOL CALLBACK AddMonitor(HMONITOR monitor, HDC, RECT*, LPARAM parameter) {
  auto& monitors = *reinterpret_cast<std::vector<MonitorInfo>*>(parameter);
  bool primary = false;
  const MonitorInfo entry = Describe(monitor, &primary);
  monitors.insert(primary ? monitors.begin() : monitors.end(), entry);
  return TRUE;
}

}  // namespace

std::vector<MonitorInfo> Monitors() {
  std::vector<MonitorInfo> monitors;
  ::EnumDisplayMonitors(nullptr, nullptr, &AddMonitor, reinterpret_cast<LPARAM>(&monitors));
  if (monitors.empty()) monitors.push_back(MonitorAt({}));
  return monitors;
}

MonitorInfo MonitorAt(const Rect& pixels) {
  const RECT rect = ToSystem(pixels);
  return Describe(::MonitorFromRect(&rect, MONITOR_DEFAULTTONEAREST), nullptr);
}

int SystemDpi() {
  return static_cast<int>(::GetDpiForSystem());
}

}  // namespace varnel
