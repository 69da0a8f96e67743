// Sees the messages of a system control before the control does.
//
// The system's own way (SetWindowSubclass) asks for a property of the window at each message, which
// some systems keep in another process; this one keeps the object with the window.
#pragma once

#include <windows.h>

#include <functional>
#include <vector>

namespace varnel {

struct ControlMessage {
  HWND control;
  UINT message;
  WPARAM wparam;
  LPARAM lparam;
};

class ControlHook {
 public:
  // Answers a message, mostly by PassOn. WM_NCDESTROY is the last that it is asked.
  using Handler = std::function<LRESULT(const ControlMessage&)>;

  explicit ControlHook(Handler handler) : handler_(std::move(handler)) {}
  ControlHook(const ControlHook&) = delete;
  ControlHook& operator=(const ControlHook&) = delete;
  // Controls that are still there go on without it.
  ~ControlHook();

  // Takes the messages of `control`, whose GWLP_USERDATA has to be free. All controls of one hook
  // are of one class. False when there is no such window.
  bool Attach(HWND control);

  // Hands a message to the control itself and returns its answer.
  LRESULT PassOn(const ControlMessage& message) const;

 private:
  static LRESULT CALLBACK Procedure(HWND control, UINT message, WPARAM wparam, LPARAM lparam);
  void Release(HWND control) const;

  Handler handler_;
  std::vector<HWND> controls_;
  WNDPROC system_ = nullptr;  // the controls' own procedure
};

}  // namespace varnel
