// The window that a board is drawn on: mouse, scrolling and painting, for every widget with boards.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "theme/thumb_bar_win.h"
#include "widgets/boards/drawing_board.h"
#include "win/graphics/surface.h"
#include "win/windows/accessible.h"
#include "win/windows/window.h"

namespace varnel {

// What a board's window asks and tells its form.
class BoardSurfaceOwner {
 public:
  virtual ~BoardSurfaceOwner() = default;
  // Paints `part` of the board as it is shown, without what floats, to the surface's upper left;
  // `part` lies in the board.
  virtual void PaintBoard(Surface& surface, const Rect& part) = 0;
  // The size of all that is shown, in pixels; what has no room is scrolled to.
  virtual Size BoardSize() const = 0;
  // A stroke has ended, or an object was merged.
  virtual void OnBoardChanged() = 0;
  // What is shown there is about to be painted anew.
  virtual void OnBoardRepaint(const Rect& /*shown*/) {}
  // What it says of itself to programs that read the screen aloud; `whole` may be empty.
  virtual AccessibleSource TellBoard() { return {}; }
  // The pointer is over that pixel of the board.
  virtual void OnPointer(Point /*at*/) {}
};

struct BoardSurfaceLook {
  Colour ground = kWhite;  // of the scroll bars
  Colour thumb = kBlack;
  int dpi = kDefaultDpi;
};

class BoardSurface : public Window {
 public:
  BoardSurface(Ui& ui, DrawingBoard& board, BoardSurfaceOwner& owner);

  // The window as a child of `parent`; `name` is what a screen reader calls it. False when the
  // system refuses.
  bool Load(HWND parent, int id, const std::wstring& name);
  // `place` in pixels of the parent; an empty one hides the window.
  void Place(const Rect& place, const BoardSurfaceLook& look);
  // What the board shows has another size, or all of it has changed.
  void Refresh() { Place(place_, look_); }

  // `shown`: pixels of the board.
  void Repaint(const Rect& shown);
  // The part of the board that is seen.
  Rect View() const;
  // By pixels, as far as there are any.
  void ScrollBy(int across, int down);
  bool scrollable() const { return !bar_place_.empty() || !across_place_.empty(); }
  // A turn of the wheel over the window; `across` scrolls sideways. With Ctrl it scales what
  // floats.
  void OnWheel(int turn, bool ctrl, bool across);

  // Ends a stroke as it is, as when the window loses the mouse.
  void EndStroke();

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void OnDown(Point at, BoardButton button);
  void OnMove(Point at, bool held);
  void OnUp();
  std::vector<Point> PointsSince(Point at);
  Point OnBoard(Point client) const { return {client.x + origin_.x, client.y + origin_.y}; }
  void ScrollTo(Point origin);
  std::optional<LRESULT> TellAccessible(WPARAM wparam, LPARAM lparam);
  void Paint();
  void PaintFloat(Surface& surface, const Rect& part) const;

  DrawingBoard& board_;
  BoardSurfaceOwner& owner_;
  ThumbBar bar_, across_bar_;
  Rect place_, bar_place_, across_place_;
  BoardSurfaceLook look_;
  Point origin_;                            // the board's pixel at the upper left
  int wheel_turn_ = 0;                      // not yet a whole step
  std::unique_ptr<Accessible> accessible_;  // once a program has asked for it
  MOUSEMOVEPOINT last_ = {};  // of the mouse that was drawn to, as the system keeps it
};

}  // namespace varnel
