// A window that shows pages as sheets of paper: the large one with rulers, and the thumbs.
#pragma once

#include <cstdint>
#include <list>
#include <optional>

#include "dialogs/preview/page_ruler.h"
#include "dialogs/preview/preview_pages_win.h"
#include "dialogs/preview/sheet_layout.h"
#include "win/windows/painted_window.h"
#include "win/windows/timer.h"

namespace varnel {

// What a view tells its dialog.
class SheetViewOwner {
 public:
  virtual ~SheetViewOwner() = default;
  // Another page is looked at, or was chosen.
  virtual void OnPage(int page) = 0;
  // Ctrl and the wheel were turned at a point of the view.
  virtual void OnZoom(int steps, Point at) = 0;
  // A margin is dragged; `done` when it was let go.
  virtual void OnMargins(const PageMargins& margins, bool done) = 0;
};

class SheetView : public PaintedWindow {
 public:
  enum class Kind { kSheets, kThumbs };

  SheetView(Ui& ui, Kind kind, PreviewPages& pages, SheetViewOwner& owner, LengthUnit unit);

  // `name` is what a screen reader calls it. False when the system refuses.
  bool Load(HWND parent, int id, const wchar_t* name);
  void Unload() { Destroy(); }

  // How the sheets are shown from now on. What is at `at`, a point of the view, stays there.
  void Show(const SheetZoom& zoom, int columns, std::optional<Point> at = {});
  // There are other pages, or they look different.
  void Refresh();

  // The page that is looked at, from 0; of thumbs the one that is marked.
  int page() const { return page_; }
  void GoTo(int page);
  // Scrolls by so many parts of the view, or pixels.
  void ScrollBy(int across, int down);
  void ScrollByViews(int views);
  // Puts a margin that is being dragged back; false when none is.
  bool CancelDrag();
  int percent() const { return layout_.percent(); }
  const SheetLayout& layout() const { return layout_; }

 private:
  struct KeptSheet {
    int page;
    Size size;
    int version;
    Surface surface;
    bool fine;  // otherwise painted quickly, until there is time
  };

  // What a scroll bar shows.
  struct ScrollRange {
    int whole = -1;
    int part = 0;
    int at = 0;
    bool operator==(const ScrollRange&) const = default;
  };

  void Paint(Surface& surface) override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void OnScrollBar(int bar, int request);
  void OnWheel(WPARAM wparam, LPARAM lparam, bool across);
  void OnDown(Point at);
  void OnMove(Point at);
  void OnUp(bool keep);
  bool OnCursor();
  bool TakeKey(WPARAM key);

  Rect View() const;                // the window without its rulers
  int Ruler() const;                // how thick one is; 0 for thumbs
  SheetLayout::Pages Seen() const;  // at least in part
  void LayOut();
  bool ScrollTo(Point scroll);  // true when that is elsewhere
  void SetScrollBars();
  bool FollowScroll();  // true when another page is looked at now
  void TellPage();
  Rect SheetInWindow(int page) const;
  // The place on a ruler in twips of the page that is looked at.
  int OnPaper(Point at, bool across) const;
  std::optional<PageEdge> EdgeAt(Point at) const;

  void PaintSheet(Surface& surface, int page);
  void PaintKept(Surface& surface, int page, bool fine);
  void PaintRulers(Surface& surface);
  void PaintRuler(Surface& surface, bool across);
  void PaintMarks(Surface& surface, bool across, const Rect& ruler, int origin);
  void PaintGuide(Surface& surface);
  const Surface* Kept(int page, Size size);
  void Keep(int page, Size size, bool fine);
  KeptSheet* FindKept(int page, Size size);
  // Paints what is in sight finely, and what comes into sight next, so that scrolling has only to
  // show it; one sheet at a time, so that nothing waits for long.
  void PaintAhead();
  bool PaintFinely(int page);

  Kind kind_;
  PreviewPages& pages_;
  SheetViewOwner& owner_;
  LengthUnit unit_;
  SheetZoom zoom_;
  int columns_ = 1;
  SheetLayout layout_;
  Point scroll_;
  ScrollRange down_;
  ScrollRange across_;
  int page_ = 0;
  bool asked_for_ = false;  // the page was asked for: it stays the one until the user scrolls
  int wheel_turn_ = 0;
  std::optional<MarginDrag> drag_;
  PagePainter painter_;
  std::list<KeptSheet> kept_;  // the latest first
  Timer ahead_;
  Timer bars_;
};

}  // namespace varnel
