#include "win/message_box.h"

#include <optional>
#include <string>

#include "win/window.h"

namespace varnel {
namespace {

using Inserted = std::initializer_list<std::wstring_view>;

std::wstring Filled(std::wstring_view text, Inserted inserted) {
  std::wstring filled;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::size_t number = text[i] == L'%' && i + 1 < text.size() ? text[i + 1] - L'1' : 9;
    if (number < inserted.size()) {
      filled += inserted.begin()[number];
      ++i;
    } else {
      filled += text[i];
    }
  }
  return filled;
}

}  // namespace

bool Ask(HWND owner, const Message& message, Inserted inserted) {
  if (!::IsWindowVisible(owner)) owner = ::GetActiveWindow();
  if (!::IsWindowVisible(owner)) owner = nullptr;
  // The system takes the focus from what it disables, and does not give it back.
  HWND focus = ::GetFocus();
  std::optional<Window::Busy> busy;
  if (Window* form = Window::FromHandle(owner)) busy.emplace(*form);
  const bool question = message.kind == MessageKind::kQuestion;
  const int answer = ::MessageBoxW(
      owner, Filled(message.text, inserted).c_str(), std::wstring(message.title).c_str(),
      MB_TOPMOST |
          (question ? MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2 : MB_OK | MB_ICONINFORMATION));
  if (::GetActiveWindow() == owner && ::IsChild(owner, focus)) ::SetFocus(focus);
  return answer == (question ? IDYES : IDOK);
}

}  // namespace varnel
