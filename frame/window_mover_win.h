// Where a widget's window is: moved and sized by mouse and keys, kept on the screens of the moment,
// remembered in the settings.
#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "frame/placement.h"
#include "frame/screens_win.h"
#include "win/windows/window.h"

namespace varnel {

class WindowMover {
 public:
  // `window`, which has to be borderless, and `settings` outlive the mover; `form_name` names the
  // section of the settings. `screens` tells the screens of the moment.
  WindowMover(Window& window, Settings& settings, std::wstring_view form_name,
              std::function<Screens()> screens = CurrentScreens);

  // Reads the place from the settings; `index` chooses the default place where none is stored.
  // Gives where the window is to be made, in pixels of the screen.
  Rect Restore(int index);
  // Writes the place to the settings; of a minimised or maximised window only that it is so.
  void Save();

  const Place& place() const { return place_; }
  // Shows the window at `place` as far as the screens allow, and saves it. The grid starts anew.
  void Settle(const Place& place);
  // Exactly as large as asked for (twips), even where that is more than the work area.
  void SetSize(Size size);

  // The mouse has gone down on what moves the window; returns when it is let go.
  void DragByBar();
  // The mouse has gone down on what sizes the window.
  void DragByGrip();
  // The window follows the mouse at present.
  bool dragging() const { return moving_ || sizing_; }

  // One step of the grid in a direction (-1, 0 or 1 each).
  void MoveByStep(Point direction);
  void SizeByStep(Point direction);

  // Deals with the messages that change or concern the place. Nothing: the message is another, or
  // wants to be dealt with further.
  std::optional<LRESULT> OnMessage(UINT message, WPARAM wparam, LPARAM lparam);

 private:
  void ShowAt(const Place& place);
  void FollowGrip();
  void ReturnToScreen();
  void OnDpiChanged(int dpi, Point suggested);

  Window& window_;
  Settings& settings_;
  const std::wstring_view form_name_;
  const std::function<Screens()> screens_;
  Place place_;  // as the user wished it; the window may have had to go elsewhere
  SnappedPosition snapped_;
  bool sizing_ = false;
  bool moving_ = false;  // the system moves the window after the mouse
};

}  // namespace varnel
