// The hidden form that owns the icon in the notification area.
#pragma once

#include <memory>

#include "frame/program.h"
#include "win/windows/timer.h"
#include "win/windows/tray_icon.h"
#include "win/windows/window.h"

namespace varnel {

class TrayForm : public Window {  // frmSTRtr
 public:
  TrayForm(Ui& ui, Program& program);

  // Creates the hidden window and adds the icon; a shell that is not ready yet is asked again every
  // two seconds, ten times at most.
  void Load();
  // Removes the icon (a no-op when none is there) and the window.
  void Unload();

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  void OnTrayMouse(UINT mouse_message);
  void AddIcon();
  HICON TrayIconSelect() const;

  Program& program_;
  UINT taskbar_created_ = 0;
  std::unique_ptr<TrayIcon> icon_;
  int tries_ = 0;
  Timer retry_;
};

}  // namespace varnel
