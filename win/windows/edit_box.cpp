#include "win/windows/edit_box.h"

#include "win/windows/window.h"
#include "win/windows/window_text.h"

namespace varnel {

HWND CreateEditBox(HWND parent, int id, DWORD style, int most) {
  // Not of size zero: a box without room scrolls what is put into it out of sight for good.
  constexpr int kFirstWidth = 400;
  constexpr int kFirstHeight = 40;
  HWND box = ::CreateWindowExW(0, L"EDIT", L"",
                               WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL | style, 0, 0,
                               kFirstWidth, kFirstHeight, parent,
                               reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  ::SendMessageW(box, EM_LIMITTEXT, most, 0);
  return box;
}

void PlaceEditBox(HWND box, const Rect& place, HFONT font) {
  ::SendMessageW(box, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
  // The font brings margins of its own, which grow with it and take effect sooner or later.
  ::SendMessageW(box, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
  PlaceWindow(box, place);
  // What was scrolled out of sight, for want of room, stays there unless the caret goes to it.
  DWORD first = 0;
  DWORD last = 0;
  ::SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&last));
  ::SendMessageW(box, EM_SETSEL, 0, 0);
  ::SendMessageW(box, EM_SCROLLCARET, 0, 0);
  ::SendMessageW(box, EM_SETSEL, first, last);
}

void SetEditText(HWND box, const std::wstring& text) {
  if (WindowText(box) == text) return;
  ::SetWindowTextW(box, text.c_str());
  ::SendMessageW(box, EM_SETSEL, text.size(), text.size());
}

}  // namespace varnel
