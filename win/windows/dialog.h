// The base of the program's dialogs: DIALOGEX resources that carry their form's name both as
// resource name and as window class, opened without blocking the rest of the program.
#pragma once

#include <windows.h>

#include <string>

#include "win/windows/ui.h"

namespace varnel {

class Dialog {
 public:
  Dialog(Ui& ui, const wchar_t* form_name) : ui_(ui), form_name_(form_name) {}
  Dialog(const Dialog&) = delete;
  Dialog& operator=(const Dialog&) = delete;
  virtual ~Dialog() { Close(); }

  // Shows the dialog, or brings it to the front when it is open. False when it cannot be made.
  bool Open(HWND owner);
  void Close();
  HWND handle() const { return handle_; }
  bool open() const { return handle_ != nullptr; }

  // The dialog object behind a handle made by this class, or null for any other window.
  static Dialog* FromHandle(HWND handle);

  // Gives OnKey a key message for the dialog or a control in it; true when it has been dealt with.
  bool Key(const MSG& message) noexcept;

 protected:
  // Called once the controls exist, before they are seen.
  virtual void OnOpen() {}
  // Called when the dialog is asked for while it is open.
  virtual void OnReopen() {}
  // A command of control `id` with the control's notification code. IDOK and IDCANCEL come here
  // too.
  virtual void OnCommand(int id, int code) = 0;
  // Any other message; true when it has been dealt with.
  virtual bool OnMessage(UINT, WPARAM, LPARAM) { return false; }
  // Sees a key message before the system's own keyboard handling does; true when it has been dealt
  // with.
  virtual bool OnKey(const MSG&) { return false; }

  Ui& ui() const { return ui_; }
  HWND Control(int id) const { return ::GetDlgItem(handle_, id); }
  std::wstring ControlText(int id) const;
  void SetControlText(int id, const std::wstring& text);
  bool Checked(int id) const { return ::IsDlgButtonChecked(handle_, id) == BST_CHECKED; }
  void SetChecked(int id, bool on);
  void Enable(int id, bool on) { ::EnableWindow(Control(id), on); }

 private:
  static INT_PTR CALLBACK Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam);
  INT_PTR Guarded(UINT message, WPARAM wparam, LPARAM lparam) noexcept;
  INT_PTR Handle(UINT message, WPARAM wparam, LPARAM lparam);
  bool AnswerDefaultButton() const;

  Ui& ui_;
  const wchar_t* form_name_;
  HWND handle_ = nullptr;
  HWND opener_ = nullptr;  // the window that was active before
};

}  // namespace varnel
