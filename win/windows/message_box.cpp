#include "win/windows/message_box.h"

#include <optional>
#include <string>

#include "win/windows/window.h"

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

UINT StyleOf(MessageKind kind) {
  switch (kind) {
    case MessageKind::kQuestion:
      return MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2;
    case MessageKind::kPlainQuestion:
      return MB_YESNO;
    case MessageKind::kSaveQuestion:
      return MB_YESNOCANCEL | MB_ICONEXCLAMATION;
    case MessageKind::kInformation:
      break;
  }
  return MB_OK | MB_ICONINFORMATION;
}

}  // namespace

Answer AskForAnswer(HWND owner, const Message& message, Inserted inserted) {
  if (!::IsWindowVisible(owner)) owner = ::GetActiveWindow();
  if (!::IsWindowVisible(owner)) owner = nullptr;
  // The system takes the focus from what it disables, and does not give it back.
  HWND focus = ::GetFocus();
  std::optional<Window::Busy> busy;
  if (Window* form = Window::FromHandle(owner)) busy.emplace(*form);
  const int answer =
      ::MessageBoxW(owner, Filled(message.text, inserted).c_str(),
                    std::wstring(message.title).c_str(), MB_TOPMOST | StyleOf(message.kind));
  if (::GetActiveWindow() == owner && ::IsChild(owner, focus)) ::SetFocus(focus);
  if (answer == IDYES || answer == IDOK) return Answer::kYes;
  return answer == IDNO ? Answer::kNo : Answer::kCancel;
}

bool Ask(HWND owner, const Message& message, Inserted inserted) {
  return AskForAnswer(owner, message, inserted) == Answer::kYes;
}

}  // namespace varnel
