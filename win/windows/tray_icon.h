// The program's icon in the notification area.
#pragma once

#include <windows.h>

#include <string>

namespace varnel {

class TrayIcon {
 public:
  // The owner receives `message` with the icon's id 1 in wparam and a mouse message in lparam.
  TrayIcon(HWND owner, UINT message, HICON icon, std::wstring tip);
  TrayIcon(const TrayIcon&) = delete;
  TrayIcon& operator=(const TrayIcon&) = delete;
  ~TrayIcon() { Remove(); }

  static constexpr UINT kId = 1;

  // Puts the icon there. False when the shell is not ready to take it: try again later.
  bool Add();
  // Takes it away; without effect when it is not there.
  void Remove();
  bool shown() const { return shown_; }
  // The shell has forgotten its icons (it has been started anew).
  void Forget() { shown_ = false; }

 private:
  bool Tell(DWORD request);

  HWND owner_;
  UINT message_;
  HICON icon_;
  std::wstring tip_;
  bool shown_ = false;
};

}  // namespace varnel
