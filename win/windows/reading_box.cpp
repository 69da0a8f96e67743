#include "win/windows/reading_box.h"

#include "win/system/handles.h"
#include "win/windows/window.h"
#include "win/windows/window_text.h"

namespace varnel {

bool ReadingBox::Load(HWND parent, int id) {
  constexpr DWORD kStyle =
      WS_CHILD | WS_VISIBLE | WS_VSCROLL | ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL;
  handle_ = ::CreateWindowExW(0, L"EDIT", L"", kStyle, 0, 0, 0, 0, parent,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
  return handle_ != nullptr;
}

void ReadingBox::SetText(const std::wstring& text) {
  if (WindowText(handle_) != text) ::SetWindowTextW(handle_, text.c_str());
}

int ReadingBox::HeightFor(int width, HFONT font) {
  ::ShowScrollBar(handle_, SB_VERT, FALSE);
  ::SetWindowPos(handle_, nullptr, 0, 0, width, width, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  ::SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  const UniqueDc dc(::CreateCompatibleDC(nullptr));
  const SelectedObject selected(dc.get(), font);
  TEXTMETRICW metrics = {};
  ::GetTextMetricsW(dc.get(), &metrics);
  return static_cast<int>(::SendMessageW(handle_, EM_GETLINECOUNT, 0, 0)) * metrics.tmHeight;
}

void ReadingBox::Place(const Rect& place, int height) {
  ::ShowScrollBar(handle_, SB_VERT, height > place.height());
  PlaceWindow(handle_, place);
  ::ShowWindow(handle_, place.empty() ? SW_HIDE : SW_SHOWNA);
  ::InvalidateRect(handle_, nullptr, TRUE);
}

}  // namespace varnel
