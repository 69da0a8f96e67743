// A label of a widget's panel: its window text is what it shows.
#pragma once

#include <memory>

#include "theme/text_painter_win.h"
#include "win/windows/accessible.h"
#include "win/windows/painted_window.h"

namespace varnel {

class ThemedLabel : public PaintedWindow {
 public:
  using PaintedWindow::PaintedWindow;

  // `id` is the control's number in `parent`. False when the system refuses.
  bool Load(HWND parent, int id);

  // Shows `text`; a text that is shown already costs nothing and repaints nothing.
  void SetText(const std::wstring& text);
  // Paints only what follows the first `units` UTF-16 units, until another text is set: for a text
  // that is too long to be seen whole. The window text stays.
  void ScrollTo(std::size_t units);

  // Places the label (pixels of the parent) and sets how it is painted.
  void Place(const Rect& box, const TextStyle& style);
  void Show(bool shown);

 protected:
  // Fills the label with what its text stands on.
  virtual void PaintGround(Surface& surface);

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void Paint(Surface& surface) override;

  std::wstring shown_text_;
  std::size_t first_seen_ = 0;  // of its units
  TextStyle style_;
  std::unique_ptr<Accessible> accessible_;  // once a program has asked for it
};

}  // namespace varnel
