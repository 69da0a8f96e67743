#include "win/windows/tooltip.h"

#include <commctrl.h>

#include "win/windows/common_controls.h"

namespace varnel {

void Tooltip::Attach(HWND form, HWND control, const std::wstring& text) {
  if (!window_ && !text.empty() && LoadCommonControls(ICC_BAR_CLASSES)) {
    // It appears on forms in the background too: widgets seldom have the focus.
    window_ =
        ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                          WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr, nullptr, nullptr);
  }
  if (!window_) return;
  std::wstring shown = text;
  TTTOOLINFOW tool = {};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = form;
  tool.uId = reinterpret_cast<UINT_PTR>(control_);
  if (control_) ::SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  control_ = text.empty() ? nullptr : control;
  if (!control_) return;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  tool.lpszText = shown.data();
  ::SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void Tooltip::Allow(bool allowed) {
  if (window_) ::SendMessageW(window_, TTM_ACTIVATE, allowed, 0);
}

}  // namespace varnel
