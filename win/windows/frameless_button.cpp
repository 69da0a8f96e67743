#include "win/windows/frameless_button.h"

#include <windows.h>

#include "win/windows/window.h"

namespace varnel {
namespace {

constexpr wchar_t kName[] = L"VarnelButton";
constexpr wchar_t kSystemName[] = L"BUTTON";

WNDPROC system_procedure = nullptr;

LRESULT CALLBACK Procedure(HWND button, UINT message, WPARAM wparam, LPARAM lparam) {
  if (AsksForFrame(message)) return 0;
  if (message == WM_GETOBJECT && static_cast<LONG>(lparam) == OBJID_CLIENT) {
    const LRESULT answer =
        ::SendMessageW(::GetParent(button), kButtonAsked, wparam, reinterpret_cast<LPARAM>(button));
    if (answer) return answer;
  }
  return ::CallWindowProcW(system_procedure, button, message, wparam, lparam);
}

// What the process was started with, which names no version of the controls, stands above what the
// thread uses else.
bool GetPlainButton(WNDCLASSEXW& description) {
  description = {};
  description.cbSize = sizeof description;
  ULONG_PTR cookie = 0;
  const bool plain = ::ActivateActCtx(nullptr, &cookie);
  const bool found = ::GetClassInfoExW(nullptr, kSystemName, &description);
  if (plain) ::DeactivateActCtx(0, cookie);
  return found;
}

bool Register() {
  WNDCLASSEXW description;
  if (!GetPlainButton(description)) return false;
  system_procedure = description.lpfnWndProc;
  description.lpfnWndProc = &Procedure;
  description.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
  description.hInstance = ::GetModuleHandleW(nullptr);
  description.lpszClassName = kName;
  return ::RegisterClassExW(&description) != 0;
}

}  // namespace

const wchar_t* FramelessButtonClass() {
  static const bool registered = Register();
  return registered ? kName : kSystemName;
}

}  // namespace varnel
