// The base of every window that the program draws itself.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "base/geometry.h"
#include "win/windows/ui.h"

namespace varnel {

class Timer;

class Window {
 public:
  explicit Window(Ui& ui) : ui_(ui) {}
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  HWND handle() const { return handle_; }
  // Dots to the inch of the monitor the window is on; 96 before it is created.
  int dpi() const { return handle_ ? dpi_ : kDefaultDpi; }
  Rect client() const;       // in pixels, corner 0, 0
  Rect screen_rect() const;  // in pixels of the screen
  bool visible() const { return ::IsWindowVisible(handle_) != FALSE; }

  // The window object behind a handle made by this class, or null for any other window.
  static Window* FromHandle(HWND handle);

  // A message is being handled, perhaps further down the call stack: not the time to destroy the
  // object, though its window may go.
  bool busy() const { return depth_ > 0; }

  // Keeps the object busy for a scope.
  class Busy {
   public:
    explicit Busy(Window& window) : window_(window) { ++window_.depth_; }
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;
    ~Busy() { --window_.depth_; }

   private:
    Window& window_;
  };

  // Gives OnKey a key message for this window or a control in it; true when it has been dealt with.
  bool Key(const MSG& message) noexcept;

 protected:
  struct Creation {
    const wchar_t* class_name = L"";
    std::wstring title;
    DWORD style = WS_POPUP;
    DWORD extended_style = 0;
    Rect place;  // in pixels of the screen, or of the parent's client area
    HWND parent = nullptr;
    int id = 0;  // of a child window
  };

  // Makes the system's window; the second step of construction. Five messages arrive before it
  // returns, so members have to be ready. False when the system refuses.
  [[nodiscard]] bool Create(const Creation& creation);
  void Destroy();

  // Sees a key message before anything else does; true when it has been dealt with. It may throw,
  // as OnMessage may.
  virtual bool OnKey(const MSG&) { return false; }

  // Handles one message; what it does not know goes to the next base and at last to the system,
  // except for WM_CLOSE: a window goes when the program decides so. It
  // may throw: the message is then logged and counts as handled with 0.
  virtual LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam);

  Ui& ui() const { return ui_; }

 private:
  friend class Timer;
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT Guarded(UINT message, WPARAM wparam, LPARAM lparam) noexcept;
  void OnTimer(UINT_PTR id);

  Ui& ui_;
  HWND handle_ = nullptr;
  int dpi_ = kDefaultDpi;  // kept, as the system looks through its monitors to tell
  int depth_ = 0;          // of messages within messages
  std::vector<Timer*> timers_;
};

// Whether a message is about the frame of a window. One that has none answers 0: the system would
// look up everything that frames are drawn with before it finds that there is nothing to draw.
inline bool AsksForFrame(UINT message) {
  return message == WM_NCCALCSIZE || message == WM_NCPAINT;
}

// Registers a window class with the program's icon on first use; false when the system refuses.
// `extra` is the bytes that `procedure` wants kept for each window.
bool EnsureClass(Ui& ui, const wchar_t* name, WNDPROC procedure, int extra = 0);

// Moves and sizes a window (pixels of the screen, of the parent for a child) and leaves its order
// among the others and the focus alone; does nothing where it is there already. `flags` are further
// SWP_ values.
void PlaceWindow(HWND window, const Rect& place, UINT flags = 0);

// Puts a window above all ordinary ones, or back among them, where it is and as it is; does
// nothing where it is so already.
void KeepOnTop(HWND window, bool on);

}  // namespace varnel
