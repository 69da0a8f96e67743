// The part of the widget frame that answers mouse, keys and menu commands.
#include <utility>

#include "frame/command.h"
#include "frame/screens_win.h"
#include "frame/sizes.h"
#include "frame/widget_form.h"
#include "resources/control_ids.h"
#include "win/popup_menu.h"

namespace varnel {
namespace {

Point MousePosition() {
  POINT point = {};
  ::GetCursorPos(&point);
  return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

bool KeyDown(int key) {
  return ::GetKeyState(key) < 0;
}

}  // namespace

void WidgetForm::OnCommand(int id, int code, HWND control) {
  if (!control) {
    // The system's own handling of Enter and Esc sends commands without a control.
    if (id == IDOK) ::SendMessageW(::GetFocus(), BM_CLICK, 0, 0);
    if (id != IDOK && id != IDCANCEL) RunCommand(id);
    return;
  }
  if (code == BN_DBLCLK && buttons_.Find(id) && SecondClickCounts(id)) code = BN_CLICKED;
  if (code == BN_CLICKED && id == lablTBARTOP) {
    const Rect window = screen_rect();
    ShowMenu({window.left + layout_.bar_buttons[0].left, window.top + layout_.pfrBAR.bottom});
  } else if (code == BN_CLICKED && id == lablTBARTOP + 1) {
    MinimiseToTaskBar(handle());
  } else if (code == BN_CLICKED && id == lablTBARTOP + 2) {
    OnCloseButton();
  } else {
    OnControl(id, code);
  }
}

void WidgetForm::OnCloseButton() {
  services_.program.WidgetCheck(index_);
}

bool WidgetForm::OnSightMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_CLOSE:
      // What the user does arrives as a system command: this comes from another program.
      services_.program.CloseFromOutside(index_);
      return true;
    case WM_SYSCOMMAND:
      return OnSystemCommand(wparam & 0xFFF0);
    case WM_SIZE:
      services_.program.SightChanged(index_);
      return false;
    case WM_WINDOWPOSCHANGED:
      if (reinterpret_cast<const WINDOWPOS*>(lparam)->flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)) {
        services_.program.SightChanged(index_);
      }
      return false;
    default:
      return false;
  }
}

bool WidgetForm::OnSystemCommand(WPARAM command) {
  switch (command) {
    case SC_CLOSE:
      OnCloseButton();
      return true;
    case SC_MINIMIZE:
      MinimiseToTaskBar(handle());
      return true;
    case SC_RESTORE:
      RefreshContent();
      BringIntoSight(handle(), SW_SHOWNORMAL, index_ != kManagerIndex);
      return true;
    default:
      return false;
  }
}

void WidgetForm::RunCommand(int id) {
  services_.program.SetCurrentWidget(entry_.form_name);
  if (id == CommandId(TopCommand())) {
    SetOnTop(!on_top_);
  } else if (!RunOwnCommand(id)) {
    services_.program.RunCommand(id);
  }
}

std::wstring_view WidgetForm::TopCommand() const {
  return entry_.top_command.empty() ? kTopCommand : entry_.top_command;
}

void WidgetForm::ShowMenu(Point at) {
  services_.program.SetCurrentWidget(entry_.form_name);
  std::vector<MenuItem> items = MenuGroup();
  if (!items.empty()) items.push_back(MenuSeparator());
  for (MenuItem& item : services_.program.SharedMenu()) {
    // The widget's own command stands in for the shared one: nobody wants both.
    if (item.id == CommandId(kTopCommand)) item.id = CommandId(TopCommand());
    items.push_back(std::move(item));
  }
  buttons_.AllowTooltip(false);  // it would lie over the menu
  const int chosen = ShowPopupMenu(handle(), at, items);
  if (handle()) buttons_.AllowTooltip(true);
  RunCommand(chosen);
}

void WidgetForm::OnContextMenu(LPARAM position) {
  // A menu would keep the end of the movement from the window, which would follow the mouse on.
  if (moving_ || sizing_) return;
  if (position == -1) {  // asked for by key
    const Rect window = screen_rect();
    ShowMenu({window.left + layout_.title_text.left, window.top + layout_.pfrBAR.bottom});
  } else {
    ShowMenu({static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))});
  }
}

bool WidgetForm::OnMouseOver(HWND control) {
  if (!services_.program.closing() && buttons_.OnMouseOver(control)) {
    (buttons_.hovered()->on_bar ? tmrBARBTNS_ : tmrPANBTNS_).Start();
  }
  const Rect grip = Within(screen_rect(), layout_.size_grip);
  if (control != handle() || !grip.Contains(MousePosition())) return false;
  ::SetCursor(::LoadCursorW(nullptr, MAKEINTRESOURCEW(32642)));  // the diagonal arrows
  return true;
}

void WidgetForm::HoverTick(Timer& timer) {
  if (buttons_.MouseHasLeft()) timer.Stop();
}

void WidgetForm::OnLeftButtonDown(Point at) {
  if (layout_.pfrBAR.Contains(at)) {
    DragStart();
  } else if (layout_.size_grip.Contains(at)) {
    sizing_ = true;
    ::SetCapture(handle());
  }
}

void WidgetForm::DragStart() {
  ::ReleaseCapture();
  moving_ = true;
  ::SendMessageW(handle(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
  moving_ = false;
  if (handle()) SnapAndKeep();
}

void WidgetForm::SnapAndKeep() {
  const Screens screens = CurrentScreens();
  Place place = {PlaceFromPixels(screen_rect(), place_, screens).corner, place_.size};
  SnapToGrid(place.corner, snapped_);
  Settle(KeepOnScreen(place, screens));
}

void WidgetForm::MoveTo(const Place& place) {
  place_ = place;
  const Screens screens = CurrentScreens();
  PlaceWindow(handle(), PixelsFromPlace(FitPlace(place_, screens), screens));
}

void WidgetForm::Settle(const Place& place) {
  MoveTo(place);
  SavePlace();
}

void WidgetForm::DragSize() {
  const Screens screens = CurrentScreens();
  const Rect window = screen_rect();
  const Point mouse = MousePosition();
  // The grip's corner follows the mouse.
  const Rect wanted{window.left, window.top, mouse.x + Scaled(4, dpi()),
                    mouse.y + Scaled(4, dpi())};
  Place place = PlaceFromPixels(wanted, place_, screens);
  place.size = SnapSize(place, screens);
  if (place != place_) MoveTo(place);
}

void WidgetForm::SetSize(int width, int height) {
  place_.size = {width, height};
  // Exactly as large as asked for, even where that is more than the work area.
  const Screens screens = CurrentScreens();
  PlaceWindow(handle(), PixelsFromPlace(KeepOnScreen(place_, screens), screens));
  SavePlace();
}

bool WidgetForm::OnKey(const MSG& message) {
  if (message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN) ShowFocus(true);
  if (message.message != WM_KEYDOWN || !KeyDown(VK_CONTROL)) return false;
  return message.wParam >= VK_LEFT && message.wParam <= VK_DOWN &&
         OnArrow(message.wParam, KeyDown(VK_SHIFT));
}

bool WidgetForm::OnArrow(WPARAM key, bool sizing) {
  const int across = key == VK_LEFT ? -kGridStep : key == VK_RIGHT ? kGridStep : 0;
  const int down = key == VK_UP ? -kGridStep : key == VK_DOWN ? kGridStep : 0;
  const Screens screens = CurrentScreens();
  Place place = PlaceFromPixels(screen_rect(), place_, screens);
  if (sizing) {
    place.size = {place.size.width + across, place.size.height + down};
    place.size = SnapSize(place, screens);
  } else {
    place.corner = {place.corner.x + across, place.corner.y + down};
    SnapToGrid(place.corner, snapped_);
    place = FitPlace(place, screens);
  }
  Settle(place);
  return true;
}

void WidgetForm::MoveToDefaultPlace() {
  Settle(DefaultPlace(index_, CurrentScreens()));
  snapped_ = {place_.corner.x, place_.corner.y};
}

void WidgetForm::ReturnToScreen() {
  if (!::IsIconic(handle())) MoveTo(place_);
}

void WidgetForm::OnDpiChanged(const RECT& suggested) {
  PlaceWindow(handle(), FromSystem(suggested));
  Form_Resize();
  WidgetRefresh();
}

}  // namespace varnel
