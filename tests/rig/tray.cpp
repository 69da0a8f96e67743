#include "tests/rig/tray.h"

#include <windows.h>

#include "tests/rig/forms.h"
#include "tests/rig/picture.h"

namespace varnel::rig {

std::optional<Point> TrayIcon() {
  HWND taskbar = ::FindWindowW(L"Shell_TrayWnd", nullptr);
  if (!taskbar || !IsShown(taskbar)) return std::nullopt;
  const Rect bar = RectOf(taskbar);
  const Rect place = {bar.right - bar.height(), bar.top, bar.right, bar.bottom};
  // The icons are drawn on the taskbar itself, which is plain where there is none.
  if (Picture(place).Colours().size() < 2) return std::nullopt;
  return Point{place.left + place.width() / 2, place.top + place.height() / 2};
}

std::optional<Point> WaitForTrayIcon(int deadline) {
  std::optional<Point> icon;
  WaitUntil([&] { return (icon = TrayIcon()).has_value(); }, deadline);
  return icon;
}

bool WaitForEmptyTray(int deadline) {
  return WaitUntil([] { return !TrayIcon(); }, deadline);
}

void AnnounceTaskbar() {
  ::PostMessageW(HWND_BROADCAST, ::RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
}

}  // namespace varnel::rig
