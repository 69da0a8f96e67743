#include "win/windows/control_hook.h"

namespace varnel {

ControlHook::~ControlHook() {
  for (HWND control : controls_) Release(control);
}

bool ControlHook::Attach(HWND control) {
  if (!control) return false;
  ::SetWindowLongPtrW(control, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  const LONG_PTR system =
      ::SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
  if (!system) return false;
  system_ = reinterpret_cast<WNDPROC>(system);
  controls_.push_back(control);
  return true;
}

LRESULT ControlHook::PassOn(const ControlMessage& message) const {
  return ::CallWindowProcW(system_, message.control, message.message, message.wparam,
                           message.lparam);
}

void ControlHook::Release(HWND control) const {
  ::SetWindowLongPtrW(control, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(system_));
  ::SetWindowLongPtrW(control, GWLP_USERDATA, 0);
}

LRESULT CALLBACK ControlHook::Procedure(HWND control, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* hook = reinterpret_cast<ControlHook*>(::GetWindowLongPtrW(control, GWLP_USERDATA));
  if (message == WM_NCDESTROY) {
    hook->Release(control);
    std::erase(hook->controls_, control);
  }
  return hook->handler_({control, message, wparam, lparam});
}

}  // namespace varnel
