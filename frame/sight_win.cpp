#include "frame/sight_win.h"

namespace varnel {
namespace {

void MakeTool(HWND window, bool tool) {
  constexpr LONG_PTR kBoth = WS_EX_TOOLWINDOW | WS_EX_APPWINDOW;
  const LONG_PTR style = ::GetWindowLongPtrW(window, GWL_EXSTYLE);
  const LONG_PTR wanted = (style & ~kBoth) | (tool ? WS_EX_TOOLWINDOW : WS_EX_APPWINDOW);
  if (style == wanted) return;
  // The shell looks at the style when a window is shown.
  ::ShowWindow(window, SW_HIDE);
  ::SetWindowLongPtrW(window, GWL_EXSTYLE, wanted);
}

}  // namespace

Sight SightOf(HWND window) {
  if (!::IsWindowVisible(window)) return Sight::kHidden;
  return ::IsIconic(window) ? Sight::kMinimised : Sight::kShown;
}

void MinimiseToTaskBar(HWND window) {
  MakeTool(window, false);
  ::ShowWindow(window, SW_MINIMIZE);
}

void BringIntoSight(HWND window, int command, bool tool) {
  MakeTool(window, tool);
  ::ShowWindow(window, command);
}

}  // namespace varnel
