// The log of the calculator as a list on the panel: it asks for the lines that are to be seen, so a
// long log costs no more than a short one.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "theme/chrome_colours.h"
#include "theme/text_painter_win.h"
#include "theme/thumb_bar_win.h"

namespace varnel {

struct LogListLook {
  TextStyle text;            // its ground is the list's
  Colour selected = kBlack;  // also of the scroll bar
  Colour selected_without_focus = kBlack;
  bool operator==(const LogListLook&) const = default;
};

class LogList {
 public:
  using Line = std::size_t;  // counted from 0, below what ShowLines was told

  // `line_at` gives the text of a line; `on_click` is told of a click on one.
  LogList(Ui& ui, std::function<std::wstring(Line)> line_at, std::function<void(Line)> on_click)
      : ui_(ui),
        line_at_(std::move(line_at)),
        on_click_(std::move(on_click)),
        bar_(ui, [this](int line) { ScrollTo(line); }) {}

  // Makes the list view, hidden. False when the system refuses.
  bool Load(HWND parent, int id);
  HWND handle() const { return handle_; }

  // `place` in pixels of the parent; an empty one hides the list.
  void Place(const Rect& place, const LogListLook& look);

  // Shows a log of `count` lines, scrolled to `visible`, or to the last one when there is no such
  // line. Lines that are still there stay selected.
  void ShowLines(std::size_t count, Line visible);

  // Selects `line` alone.
  void Select(Line line);
  void SelectAll();
  // The selected lines, in their order.
  std::vector<Line> Selected() const;
  // The line that the keyboard is at.
  std::optional<Line> Focused() const;

  // Scrolls by so many lines, towards the end when positive, as far as there are any.
  void ScrollBy(int lines) { ScrollTo(Range().first + lines); }

  // Answers the list view's notification.
  LRESULT OnNotify(NMHDR& header);

 private:
  std::optional<Line> Next(int after, UINT flags) const;
  int LineHeight() const;
  ScrollRange Range() const;
  void ScrollTo(int line);
  bool AtEnd() const;
  void Arrange(bool at_end);
  void GiveText(LVITEMW& item) const;
  void Repaint(int line) { ListView_RedrawItems(handle_, line, line); }
  void DrawLine(HDC dc, Line line);
  void PaintLine(Surface& surface, const Rect& row, const std::wstring& text, TextStyle style);

  Ui& ui_;
  std::function<std::wstring(Line)> line_at_;
  std::function<void(Line)> on_click_;
  HWND handle_ = nullptr;
  Rect place_;
  LogListLook look_;
  UniqueFont font_;  // gives the lines their height
  ThumbBar bar_;
};

}  // namespace varnel
