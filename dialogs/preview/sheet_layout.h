// Where the sheets of a preview lie: in rows, in the middle of what shows them.
#pragma once

#include "base/geometry.h"
#include "dialogs/preview/sheet_zoom.h"

namespace varnel {

struct SheetRoom {
  Size paper;     // in twips
  int pages = 0;  // that are to be laid out
  Size view;      // what shows them, in pixels
  int dpi = kDefaultDpi;
  SheetZoom zoom;
  int columns = 1;        // sheets side by side, where there are so many
  int gap = 16;           // around and between sheets, in pixels
  int caption = 0;        // below each sheet, in pixels
  bool from_top = false;  // else in the middle, where there is room
  int extra_width = 0;    // of the view, which the sheets do not fill at page width: a scroll bar
};

// Points and rectangles are in pixels of the whole, from its upper left corner; `scroll` is the
// point of it at the view's upper left corner.
class SheetLayout {
 public:
  SheetLayout() = default;
  explicit SheetLayout(const SheetRoom& room);

  double pixels_per_twip() const { return scale_; }
  // What the zoom comes to.
  int percent() const;
  int columns() const { return columns_; }
  int pages() const { return room_.pages; }
  // All sheets with what is around them; at least as large as the view.
  Size whole() const { return whole_; }

  Rect Sheet(int page) const;  // pages count from 0
  // The pages that may be seen in a part of the whole; none when `first` > `last`.
  struct Pages {
    int first = 0;
    int last = -1;
  };
  Pages PagesIn(const Rect& part) const;
  // The page there, or -1.
  int PageAt(Point at) const;

  Point Bounded(Point scroll) const;
  // As near to `scroll` as lets the page be seen from its top, and in the middle where it is
  // narrower than the view.
  Point ScrollTo(int page, Point scroll) const;
  // As near to `scroll` as shows all of the page, or as much as can be.
  Point Revealing(int page, Point scroll) const;
  // The page that the user looks at: of those that show most of themselves the first.
  int PageShown(Point scroll) const;

 private:
  int RowHeight() const { return sheet_.height + room_.caption + room_.gap; }
  int Rows() const { return (room_.pages + columns_ - 1) / columns_; }

  SheetRoom room_;
  double scale_ = 0;
  Size sheet_{1, 1};
  int columns_ = 1;
  Size whole_;
  int left_ = 0;  // of the first column
  int top_ = 0;   // of the first row
};

// The scroll of `after` that keeps what `before` has at a point of the view (pixels from its
// corner) at that point, on its sheet.
Point KeptInPlace(const SheetLayout& before, Point scroll, Point at, const SheetLayout& after);

}  // namespace varnel
