#include "tests/rig/dialogs.h"

#include <algorithm>

namespace varnel::rig {

HWND FindDialog(const Program& program) {
  const std::vector<HWND> dialogs = FindForms(program, L"#32770");
  const auto shown = std::find_if(dialogs.begin(), dialogs.end(), IsShown);
  return shown == dialogs.end() ? nullptr : *shown;
}

HWND WaitForDialog(const Program& program, int deadline) {
  return WaitForForm(program, L"#32770", deadline);
}

std::wstring DialogText(HWND dialog) {
  std::wstring lines;
  for (HWND child : ChildrenOf(dialog)) {
    const std::wstring text = ClassOf(child) == L"Static" ? Text(child) : L"";
    if (text.empty()) continue;
    if (!lines.empty()) lines += L'\n';
    lines += text;
  }
  return lines;
}

void PressButton(HWND dialog, int id) {
  ::PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(static_cast<WORD>(id), BN_CLICKED),
                 reinterpret_cast<LPARAM>(::GetDlgItem(dialog, id)));
}

bool CloseDialog(HWND dialog, int id) {
  PressButton(dialog, id);
  return WaitUntil([dialog] { return !::IsWindow(dialog) || !IsShown(dialog); });
}

}  // namespace varnel::rig
