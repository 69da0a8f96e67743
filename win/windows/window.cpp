#include "win/windows/window.h"

#include <algorithm>

#include "win/graphics/system_rect.h"
#include "win/system/guard.h"
#include "win/windows/timer.h"

namespace varnel {

Window::~Window() {
  Destroy();
}

Rect Window::client() const {
  RECT rect = {};
  ::GetClientRect(handle_, &rect);
  return FromSystem(rect);
}

Rect Window::screen_rect() const {
  RECT rect = {};
  ::GetWindowRect(handle_, &rect);
  return FromSystem(rect);
}

Window* Window::FromHandle(HWND handle) {
  if (::GetClassLongPtrW(handle, GCLP_WNDPROC) != reinterpret_cast<ULONG_PTR>(&Procedure)) {
    return nullptr;
  }
  return reinterpret_cast<Window*>(::GetWindowLongPtrW(handle, GWLP_USERDATA));
}

bool EnsureClass(Ui& ui, const wchar_t* name, WNDPROC procedure, int extra) {
  WNDCLASSEXW description = {};
  description.cbSize = sizeof description;
  if (::GetClassInfoExW(ui.instance, name, &description)) return true;
  description.lpfnWndProc = procedure;
  description.cbWndExtra = extra;
  description.hInstance = ui.instance;
  description.hCursor = ::LoadCursorW(nullptr, MAKEINTRESOURCEW(32512));  // the arrow
  if (!ui.icon) ui.icon = ::LoadIconW(ui.instance, MAKEINTRESOURCEW(kApplicationIcon));
  description.hIcon = ui.icon;
  description.lpszClassName = name;
  return ::RegisterClassExW(&description) != 0;
}

bool Window::Create(const Creation& creation) {
  if (!EnsureClass(ui_, creation.class_name, &Procedure)) return false;
  const Rect& place = creation.place;
  return ::CreateWindowExW(creation.extended_style, creation.class_name, creation.title.c_str(),
                           creation.style, place.left, place.top, place.width(), place.height(),
                           creation.parent,
                           reinterpret_cast<HMENU>(static_cast<INT_PTR>(creation.id)), ui_.instance,
                           this) != nullptr;
}

void Window::Destroy() {
  if (handle_) ::DestroyWindow(handle_);
}

LRESULT Window::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_CLOSE || AsksForFrame(message)) return 0;
  return ::DefWindowProcW(handle_, message, wparam, lparam);
}

LRESULT CALLBACK Window::Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_NCCREATE) {
    auto* window = static_cast<Window*>(reinterpret_cast<CREATESTRUCTW*>(lparam)->lpCreateParams);
    window->handle_ = handle;
    window->dpi_ = static_cast<int>(::GetDpiForWindow(handle));
    ::SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
  }
  auto* window = reinterpret_cast<Window*>(::GetWindowLongPtrW(handle, GWLP_USERDATA));
  return window ? window->Guarded(message, wparam, lparam)
                : ::DefWindowProcW(handle, message, wparam, lparam);
}

LRESULT Window::Guarded(UINT message, WPARAM wparam, LPARAM lparam) noexcept {
  const Busy busy(*this);
  LRESULT result = 0;
  Guard(
      ui_.log, L"message",
      [&] {
        if (message == WM_DPICHANGED || message == WM_DPICHANGED_AFTERPARENT) {
          dpi_ = static_cast<int>(::GetDpiForWindow(handle_));
        }
        if (message == WM_TIMER) {
          OnTimer(wparam);
        } else {
          result = OnMessage(message, wparam, lparam);
        }
      },
      message);
  if (message == WM_NCDESTROY) {
    ::SetWindowLongPtrW(handle_, GWLP_USERDATA, 0);
    handle_ = nullptr;
  }
  return result;
}

bool Window::Key(const MSG& message) noexcept {
  const Busy busy(*this);
  // A key whose handling failed is not handled once more, by the system.
  bool dealt_with = true;
  Guard(
      ui_.log, L"key", [&] { dealt_with = OnKey(message); }, static_cast<unsigned>(message.wParam));
  return dealt_with;
}

void Window::OnTimer(UINT_PTR id) {
  const auto found = std::find_if(timers_.begin(), timers_.end(),
                                  [id](Timer* timer) { return timer->id() == id; });
  if (found != timers_.end()) (*found)->Tick();
}

void PlaceWindow(HWND window, const Rect& place, UINT flags) {
  RECT present = {};
  ::GetWindowRect(window, &present);
  ::MapWindowPoints(nullptr, ::GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&present),
                    2);
  if (FromSystem(present) == place) return;
  ::SetWindowPos(window, nullptr, place.left, place.top, place.width(), place.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE | flags);
}

void KeepOnTop(HWND window, bool on) {
  const bool is_on_top = (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  if (on == is_on_top) return;
  ::SetWindowPos(window, on ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

}  // namespace varnel
