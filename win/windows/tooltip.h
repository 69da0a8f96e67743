// The short texts that appear when the mouse rests on a button without words.
#pragma once

#include <windows.h>

#include <string>

namespace varnel {

// One for all buttons of a form. Its window is made when the first text is wanted and goes with the
// form's.
class Tooltip {
 public:
  // `text` appears when the mouse rests on `control`, which it has just come to; an empty one does
  // not.
  void Attach(HWND form, HWND control, const std::wstring& text);
  // The text of the last Attach has become another; one that is shown changes where it is.
  void Update(const std::wstring& text);
  // What is shown, or was about to be, goes; nothing appears until the next Attach.
  void Detach();

 private:
  HWND window_ = nullptr;
  HWND form_ = nullptr;
  HWND control_ = nullptr;  // the last one; each is attached anew, for its text may have changed
  std::wstring text_;
};

}  // namespace varnel
