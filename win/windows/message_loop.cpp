#include "win/windows/message_loop.h"

#include "win/system/guard.h"
#include "win/windows/dialog.h"
#include "win/windows/window.h"

namespace varnel {
namespace {

bool IsKeyMessage(const MSG& message) {
  return message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
}

// True when the key message has been dealt with.
bool HandleKey(MSG& message) {
  HWND top = ::GetAncestor(message.hwnd, GA_ROOT);
  if (Window* window = Window::FromHandle(top); window && window->Key(message)) return true;
  if (Dialog* dialog = Dialog::FromHandle(top); dialog && dialog->Key(message)) return true;
  return ::IsDialogMessageW(top, &message) != FALSE;
}

}  // namespace

int RunMessageLoop(const Ui& ui) {
  MSG message;
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    Guard(ui.log, L"message loop", [&] {
      if (IsKeyMessage(message) && HandleKey(message)) return;
      ::TranslateMessage(&message);
      ::DispatchMessageW(&message);
    });
  }
  return static_cast<int>(message.wParam);
}

}  // namespace varnel
