// What tests with windows of their own share.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "win/system/com.h"
#include "win/windows/common_controls.h"
#include "win/windows/window.h"

namespace varnel::test {

// A folder that belongs to this run; not made yet.
inline std::wstring TemporaryFolder() {
  wchar_t path[MAX_PATH] = {};
  ::GetTempPathW(MAX_PATH, path);
  return std::wstring(path) + L"varnel platform test " + std::to_wstring(::GetCurrentProcessId());
}

// Handles the thread's messages until `done`, at the longest for so many milliseconds.
inline bool RunMessagesUntil(const std::function<bool()>& done, DWORD milliseconds = 5000) {
  const DWORD end = ::GetTickCount() + milliseconds;
  MSG message;
  while (!done()) {
    if (::GetTickCount() >= end) return false;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      ::TranslateMessage(&message);
      ::DispatchMessageW(&message);
    }
    ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
  return true;
}

inline void RunMessagesFor(DWORD milliseconds) {
  RunMessagesUntil([] { return false; }, milliseconds);
}

// A shown window, with what the platform's wrappers want around them.
class HostWindow : public Window {
 public:
  explicit HostWindow(Ui& ui) : Window(ui) {
    Creation creation;
    creation.class_name = L"VarnelTestHost";
    creation.style = WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN;
    creation.place = {40, 40, 640, 440};
    EXPECT_TRUE(Create(creation));
  }

  // Sees each message first; true when it has been dealt with, with 0 as its answer.
  std::function<bool(UINT, WPARAM, LPARAM)> on_message;

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (on_message && on_message(message, wparam, lparam)) return 0;
    return Window::OnMessage(message, wparam, lparam);
  }
};

class Hosted : public ::testing::Test {
 protected:
  Hosted() { UseThemedControls(); }

  ComApartment apartment_;
  Ui ui_{::GetModuleHandleW(nullptr), {}, {}};
  HostWindow host_{ui_};
};

}  // namespace varnel::test
