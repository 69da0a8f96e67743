#include "frame/pressed_key_win.h"

#include <commctrl.h>
#include <richedit.h>

#include <algorithm>
#include <string_view>

#include "win/windows/window_text.h"

namespace varnel {
namespace {

static_assert(kKeyPageUp == VK_PRIOR && kKeyPageDown == VK_NEXT && kKeyDown == VK_DOWN);
static_assert(kKeyDelete == VK_DELETE && kKeyF24 == VK_F24 && kKeyPlus == VK_OEM_PLUS);

std::uint8_t Held() {
  const auto held = [](int key, int bit) { return ::GetKeyState(key) < 0 ? bit : 0; };
  return static_cast<std::uint8_t>(held(VK_SHIFT, kShiftHeld) | held(VK_CONTROL, kCtrlHeld) |
                                   held(VK_MENU, kAltHeld));
}

}  // namespace

Focus FocusOf(HWND control) {
  constexpr std::wstring_view kFields[] = {WC_EDITW, WC_COMBOBOXW, WC_LISTBOXW, MSFTEDIT_CLASS};
  const std::wstring name = ClassName(control);
  if (name == WC_LISTVIEWW) return Focus::kList;
  if (std::ranges::find(kFields, name) == std::end(kFields)) return Focus::kPanel;
  return ClassName(::GetParent(control)) == WC_LISTVIEWW ? Focus::kRename : Focus::kField;
}

CommandKey PressedKey(const MSG& message) {
  const auto code = static_cast<std::uint16_t>(message.wParam);
  const std::uint8_t held = Held();
  switch (message.message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: {
      const bool types = (held & kCtrlHeld) && ::GetKeyState(VK_RMENU) < 0;
      return types ? CommandKey{} : CommandKey{code, held};
    }
    case WM_CHAR: {
      const bool types = !(held & kCtrlHeld) || (held & kAltHeld);
      const bool small = code >= L'a' && code <= L'z';
      const auto letter = static_cast<std::uint16_t>(small ? code - L'a' + L'A' : code);
      return types ? CommandKey{letter, kTyped} : CommandKey{};
    }
    default:
      return {};
  }
}

}  // namespace varnel
