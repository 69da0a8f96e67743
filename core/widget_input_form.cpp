// The part of the widget frame that answers mouse, keys and menu commands.
#include <utility>

#include "core/core_settings.h"
#include "core/screens_win.h"
#include "core/sizes.h"
#include "core/widget_form.h"
#include "resources/control_ids.h"
#include "win/popup_menu.h"

namespace varnel {
namespace {

constexpr int kLeftButton = 1;

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
  // The second of two quick clicks counts like any other.
  if (code == BN_DBLCLK && buttons_.Find(id)) code = BN_CLICKED;
  if (code == BN_CLICKED && id == lablTBARTOP) {
    const Rect window = screen_rect();
    ShowMenu({window.left + layout_.bar_buttons[0].left, window.top + layout_.pfrBAR.bottom});
  } else if (code == BN_CLICKED && id == lablTBARTOP + 1) {
    OnMinimiseButton();
  } else if (code == BN_CLICKED && id == lablTBARTOP + 2) {
    OnCloseButton();
  } else {
    OnControl(id, code);
  }
}

void WidgetForm::OnCloseButton() {
  services_.program.WidgetCheck(index_);
}

void WidgetForm::RunCommand(int id) {
  services_.program.SetCurrentWidget(entry_.form_name);
  if (!RunOwnCommand(id)) services_.program.RunCommand(id);
}

void WidgetForm::ShowMenu(Point at) {
  services_.program.SetCurrentWidget(entry_.form_name);
  std::vector<MenuItem> items = MenuGroup();
  if (!items.empty()) items.push_back(MenuSeparator());
  for (MenuItem& item : services_.program.SharedMenu()) items.push_back(std::move(item));
  RunCommand(ShowPopupMenu(handle(), at, items));
}

void WidgetForm::OnContextMenu(LPARAM position) {
  if (position == -1) {  // asked for by key
    const Rect window = screen_rect();
    ShowMenu({window.left + layout_.title_text.left, window.top + layout_.pfrBAR.bottom});
  } else {
    ShowMenu({static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))});
  }
}

void WidgetForm::OnMouseOver(HWND control) {
  if (services_.program.closing() || !buttons_.OnMouseOver(control)) return;
  (buttons_.hovered()->on_bar ? tmrBARBTNS_ : tmrPANBTNS_).Start();
}

void WidgetForm::HoverTick(Timer& timer) {
  if (buttons_.MouseHasLeft()) timer.Stop();
}

void WidgetForm::OnLeftButtonDown(Point at) {
  if (layout_.pfrBAR.Contains(at)) {
    DragStart(kLeftButton);
  } else if (layout_.size_grip.Contains(at)) {
    sizing_ = true;
    ::SetCapture(handle());
  }
}

void WidgetForm::DragStart(int button) {
  if (button != kLeftButton) return;
  ::ReleaseCapture();
  ::SendMessageW(handle(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
  if (handle()) SnapAndKeep();
}

void WidgetForm::SnapAndKeep() {
  const Screens screens = CurrentScreens();
  Place place = PlaceFromPixels(screen_rect(), screens);
  SnapToGrid(place.corner, snapped_);
  place.size = place_.size;
  const Rect kept = KeepOnScreen(PixelsFromPlace(place, screens), screens);
  if (kept != PixelsFromPlace(place, screens)) place.corner = PlaceFromPixels(kept, screens).corner;
  MoveTo(place);
  SaveState();
}

void WidgetForm::MoveTo(const Place& place) {
  place_ = place;
  const Screens screens = CurrentScreens();
  const Rect pixels = PixelsFromPlace(FitPlace(place_, screens), screens);
  ::SetWindowPos(handle(), nullptr, pixels.left, pixels.top, pixels.width(), pixels.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void WidgetForm::DragSize() {
  const Screens screens = CurrentScreens();
  const Rect window = screen_rect();
  const Point mouse = MousePosition();
  // The grip's corner follows the mouse.
  const Rect wanted{window.left, window.top, mouse.x + Scaled(4, dpi()),
                    mouse.y + Scaled(4, dpi())};
  Place place = place_;
  place.size = SnapSize({place_.corner, PlaceFromPixels(wanted, screens).size}, screens);
  if (place.size != place_.size) MoveTo(place);
}

void WidgetForm::SetSize(int width, int height) {
  const Screens screens = CurrentScreens();
  const Place place{place_.corner, {width, height}};
  const Rect kept = KeepOnScreen(PixelsFromPlace(place, screens), screens);
  place_ = {PlaceFromPixels(kept, screens).corner, place.size};
  if (kept == PixelsFromPlace(place, screens)) place_.corner = place.corner;
  const Rect pixels = PixelsFromPlace(place_, screens);
  ::SetWindowPos(handle(), nullptr, pixels.left, pixels.top, pixels.width(), pixels.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
  SaveState();
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
  Place place = place_;
  if (sizing) {
    place.size =
        SnapSize({place_.corner, {place_.size.width + across, place_.size.height + down}}, screens);
  } else {
    place.corner = {place_.corner.x + across, place_.corner.y + down};
    SnapToGrid(place.corner, snapped_);
    place = FitPlace(place, screens);
  }
  MoveTo(place);
  SaveState();
  return true;
}

void WidgetForm::MoveToDefaultPlace() {
  MoveTo(DefaultPlace(index_, CurrentScreens()));
  snapped_ = {place_.corner.x, place_.corner.y};
  SaveState();
}

void WidgetForm::ReturnToScreen() {
  MoveTo(place_);
}

void WidgetForm::OnDpiChanged(const RECT& suggested) {
  ::SetWindowPos(handle(), nullptr, suggested.left, suggested.top, suggested.right - suggested.left,
                 suggested.bottom - suggested.top, SWP_NOZORDER | SWP_NOACTIVATE);
  Form_Resize();
  WidgetRefresh();
}

}  // namespace varnel
