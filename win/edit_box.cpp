#include "win/edit_box.h"

#include "win/window.h"
#include "win/window_text.h"

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
  PlaceWindow(box, place);
  ::SendMessageW(box, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void SetEditText(HWND box, const std::wstring& text) {
  if (WindowText(box) == text) return;
  ::SetWindowTextW(box, text.c_str());
  ::SendMessageW(box, EM_SETSEL, text.size(), text.size());
}

}  // namespace varnel
