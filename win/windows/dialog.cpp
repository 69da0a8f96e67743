#include "win/windows/dialog.h"

#include "win/system/guard.h"
#include "win/windows/window.h"
#include "win/windows/window_text.h"

namespace varnel {

bool Dialog::Open(HWND owner) {
  if (!handle_) {
    opener_ = ::GetActiveWindow();
    EnsureClass(ui_, form_name_, ::DefDlgProcW, DLGWINDOWEXTRA);
    ::CreateDialogParamW(ui_.instance, form_name_, owner, &Procedure,
                         reinterpret_cast<LPARAM>(this));
    if (!handle_) return false;
  } else {
    OnReopen();
  }
  ::ShowWindow(handle_, SW_SHOW);
  // A message box that the dialog is waiting for comes before it.
  ::SetForegroundWindow(::GetLastActivePopup(handle_));
  return true;
}

void Dialog::Close() {
  if (!handle_) return;
  // Back to where the user came from; the system would go by the order of the windows.
  if (::GetActiveWindow() == handle_ && ::IsWindowVisible(opener_)) ::SetForegroundWindow(opener_);
  ::DestroyWindow(handle_);
}

std::wstring Dialog::ControlText(int id) const {
  return WindowText(Control(id));
}

void Dialog::SetControlText(int id, const std::wstring& text) {
  ::SetWindowTextW(Control(id), text.c_str());
}

void Dialog::SetChecked(int id, bool on) {
  ::CheckDlgButton(handle_, id, on ? BST_CHECKED : BST_UNCHECKED);
}

// Enter presses the button that has the focus, however it came there; the system only sees to that
// where the focus came by key.
bool Dialog::AnswerDefaultButton() const {
  HWND focus = ::GetFocus();
  const LRESULT kind =
      ::IsChild(handle_, focus) ? ::SendMessageW(focus, WM_GETDLGCODE, 0, 0) : LRESULT{0};
  if ((kind & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) == 0) return false;
  ::SetWindowLongPtrW(handle_, DWLP_MSGRESULT, MAKELONG(::GetDlgCtrlID(focus), DC_HASDEFID));
  return true;
}

INT_PTR CALLBACK Dialog::Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_INITDIALOG) {
    ::SetWindowLongPtrW(handle, DWLP_USER, lparam);
    reinterpret_cast<Dialog*>(lparam)->handle_ = handle;
  }
  auto* dialog = reinterpret_cast<Dialog*>(::GetWindowLongPtrW(handle, DWLP_USER));
  return dialog ? dialog->Guarded(message, wparam, lparam) : FALSE;
}

Dialog* Dialog::FromHandle(HWND handle) {
  if (::GetWindowLongPtrW(handle, DWLP_DLGPROC) != reinterpret_cast<LONG_PTR>(&Procedure)) {
    return nullptr;
  }
  return reinterpret_cast<Dialog*>(::GetWindowLongPtrW(handle, DWLP_USER));
}

bool Dialog::Key(const MSG& message) noexcept {
  bool dealt_with = true;
  Guard(ui_.log, form_name_, [&] { dealt_with = OnKey(message); });
  return dealt_with;
}

INT_PTR Dialog::Guarded(UINT message, WPARAM wparam, LPARAM lparam) noexcept {
  INT_PTR result = FALSE;
  Guard(
      ui_.log, form_name_, [&] { result = Handle(message, wparam, lparam); }, message);
  return result;
}

INT_PTR Dialog::Handle(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_INITDIALOG:
      OnOpen();
      return TRUE;
    case DM_GETDEFID:
      return AnswerDefaultButton();
    case WM_COMMAND:
      OnCommand(LOWORD(wparam), HIWORD(wparam));
      return TRUE;
    case WM_NCDESTROY:
      ::SetWindowLongPtrW(handle_, DWLP_USER, 0);
      handle_ = nullptr;
      return FALSE;
    default:
      return OnMessage(message, wparam, lparam);
  }
}

}  // namespace varnel
