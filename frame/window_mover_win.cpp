#include "frame/window_mover_win.h"

#include <utility>

#include "win/graphics/system_rect.h"

namespace varnel {
namespace {

constexpr int kGripInset = 4;  // from the window's corner to the mouse that drags it

}  // namespace

WindowMover::WindowMover(Window& window, Settings& settings, std::wstring_view form_name,
                         std::function<Screens()> screens)
    : window_(window), settings_(settings), form_name_(form_name), screens_(std::move(screens)) {}

Rect WindowMover::Restore(int index) {
  const Screens screens = screens_();
  place_ = ReadPosition(settings_, form_name_, DefaultPlace(index, screens), true);
  snapped_ = {place_.corner.x, place_.corner.y};
  return PixelsFromPlace(FitPlace(place_, screens), screens);
}

void WindowMover::Save() {
  if (!window_.handle()) return;
  const WindowState state = ::IsIconic(window_.handle())   ? WindowState::kMinimised
                            : ::IsZoomed(window_.handle()) ? WindowState::kMaximised
                                                           : WindowState::kNormal;
  SavePosition(settings_, form_name_, state, place_, true);
}

void WindowMover::ShowAt(const Place& place) {
  place_ = place;
  const Screens screens = screens_();
  PlaceWindow(window_.handle(), PixelsFromPlace(FitPlace(place_, screens), screens));
}

void WindowMover::Settle(const Place& place) {
  snapped_ = {place.corner.x, place.corner.y};
  ShowAt(place);
  Save();
}

void WindowMover::SetSize(Size size) {
  place_.size = size;
  const Screens screens = screens_();
  PlaceWindow(window_.handle(), PixelsFromPlace(KeepOnScreen(place_, screens), screens));
  Save();
}

void WindowMover::DragByBar() {
  ::ReleaseCapture();
  moving_ = true;
  ::SendMessageW(window_.handle(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
  moving_ = false;
  if (!window_.handle()) return;
  ShowAt(RestAfterDrag(window_.screen_rect(), place_, snapped_, screens_()));
  Save();
}

void WindowMover::DragByGrip() {
  sizing_ = true;
  ::SetCapture(window_.handle());
}

void WindowMover::FollowGrip() {
  const Screens screens = screens_();
  const Rect seen = window_.screen_rect();
  POINT mouse = {};
  ::GetCursorPos(&mouse);
  const int inset = Scaled(kGripInset, window_.dpi());
  Place place = PlaceFromPixels(
      {seen.left, seen.top, static_cast<int>(mouse.x) + inset, static_cast<int>(mouse.y) + inset},
      place_, screens);
  place.size = SnapSize(place, screens);
  if (place != place_) ShowAt(place);
}

void WindowMover::MoveByStep(Point direction) {
  const Screens screens = screens_();
  Place place = PlaceFromPixels(window_.screen_rect(), place_, screens);
  place.corner = {place.corner.x + direction.x * kGridStep,
                  place.corner.y + direction.y * kGridStep};
  SnapToGrid(place.corner, snapped_);
  ShowAt(FitPlace(place, screens));
  Save();
}

void WindowMover::SizeByStep(Point direction) {
  const Screens screens = screens_();
  Place place = PlaceFromPixels(window_.screen_rect(), place_, screens);
  place.size = SteppedSize(place, direction.x * kGridStep, direction.y * kGridStep, screens);
  ShowAt(place);
  Save();
}

void WindowMover::ReturnToScreen() {
  // While the mouse holds the window, it decides; what has changed counts when it is let go.
  if (!dragging() && !::IsIconic(window_.handle())) ShowAt(place_);
}

// The size always comes from the place: the one suggested is scaled from what the window has, which
// was scaled already when it was put across the monitors' border.
void WindowMover::OnDpiChanged(int dpi, Point suggested) {
  if (moving_) {
    PlaceWindow(window_.handle(), RectAt(suggested, PixelSize(place_.size, dpi)));
  } else {
    ReturnToScreen();
  }
}

std::optional<LRESULT> WindowMover::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_MOUSEMOVE:
      if (!sizing_) return std::nullopt;
      FollowGrip();
      return 0;
    case WM_LBUTTONUP:
      if (!sizing_) return std::nullopt;
      ::ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      if (!std::exchange(sizing_, false)) return std::nullopt;
      ReturnToScreen();
      Save();
      return 0;
    case WM_DISPLAYCHANGE:
    case WM_SETTINGCHANGE:
      ReturnToScreen();
      return std::nullopt;
    case WM_GETDPISCALEDSIZE: {
      const Size size = PixelSize(place_.size, static_cast<int>(wparam));
      *reinterpret_cast<SIZE*>(lparam) = {size.width, size.height};
      return TRUE;
    }
    case WM_DPICHANGED: {
      const Rect suggested = FromSystem(*reinterpret_cast<const RECT*>(lparam));
      OnDpiChanged(HIWORD(wparam), {suggested.left, suggested.top});
      return std::nullopt;
    }
    default:
      return std::nullopt;
  }
}

}  // namespace varnel
