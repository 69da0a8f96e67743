#include "win/windows/tooltip.h"

#include <commctrl.h>

#include "win/windows/common_controls.h"

namespace varnel {
namespace {

TTTOOLINFOW ToolOf(HWND form, HWND control) {
  TTTOOLINFOW tool = {};
  tool.cbSize = sizeof tool;
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = form;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  return tool;
}

}  // namespace

void Tooltip::Attach(HWND form, HWND control, const std::wstring& text) {
  if (!window_ && !text.empty() && LoadCommonControls(ICC_BAR_CLASSES)) {
    // It appears on forms in the background too: widgets seldom have the focus.
    window_ =
        ::CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                          WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr, nullptr, nullptr);
  }
  if (!window_) return;
  Detach();
  if (text.empty()) return;
  std::wstring shown = text;
  TTTOOLINFOW tool = ToolOf(form, control);
  tool.lpszText = shown.data();
  if (::SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool))) {
    form_ = form;
    control_ = control;
    text_ = text;
  }
}

void Tooltip::Update(const std::wstring& text) {
  if (!control_ || text == text_) return;
  if (text.empty()) return Detach();
  text_ = text;
  TTTOOLINFOW tool = ToolOf(form_, control_);
  tool.lpszText = text_.data();
  ::SendMessageW(window_, TTM_UPDATETIPTEXTW, 0, reinterpret_cast<LPARAM>(&tool));
}

// Switching the window off alone would let a tooltip appear that already waits for its moment.
void Tooltip::Detach() {
  if (!control_) return;
  TTTOOLINFOW tool = ToolOf(form_, control_);
  ::SendMessageW(window_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  control_ = nullptr;
}

}  // namespace varnel
