#include "tests/rig/forms.h"

#include <algorithm>

namespace varnel::rig {
namespace {

HWND ShownForm(const Program& program, std::wstring_view name) {
  const std::vector<HWND> forms = FindForms(program, name);
  const auto shown = std::find_if(forms.begin(), forms.end(), IsShown);
  return shown == forms.end() ? nullptr : *shown;
}

// A frame around other controls, which the mouse goes through.
bool IsGroupBox(HWND window) {
  return ClassOf(window) == L"Button" &&
         (::GetWindowLongPtrW(window, GWL_STYLE) & BS_TYPEMASK) == BS_GROUPBOX;
}

}  // namespace

std::vector<HWND> TopLevelWindows(const Program& program) {
  struct Search {
    DWORD process_id;
    std::vector<HWND> found;
  } search{program.id(), {}};
  ::EnumWindows(
      [](HWND window, LPARAM data) -> BOOL {
        auto& search = *reinterpret_cast<Search*>(data);
        DWORD owner = 0;
        ::GetWindowThreadProcessId(window, &owner);
        if (owner == search.process_id) search.found.push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

std::vector<HWND> FindForms(const Program& program, std::wstring_view name) {
  std::vector<HWND> forms = TopLevelWindows(program);
  std::erase_if(forms, [name](HWND window) { return ClassOf(window) != name; });
  return forms;
}

HWND FindForm(const Program& program, std::wstring_view name) {
  const std::vector<HWND> forms = FindForms(program, name);
  return forms.empty() ? nullptr : forms.front();
}

HWND WaitForForm(const Program& program, std::wstring_view name, int deadline) {
  HWND form = nullptr;
  WaitUntil([&] { return (form = ShownForm(program, name)) != nullptr; }, deadline);
  // Keys that come while the program still starts up would lose the modifiers they were pressed
  // with.
  if (form) program.WaitUntilIdle(deadline);
  return form;
}

bool WaitForNoForm(const Program& program, std::wstring_view name, int deadline) {
  return WaitUntil([&] { return ShownForm(program, name) == nullptr; }, deadline);
}

std::wstring ClassOf(HWND window) {
  wchar_t name[257] = {};  // a class name has at most 256 units
  return std::wstring(name, static_cast<std::size_t>(::GetClassNameW(window, name, 257)));
}

Rect RectOf(HWND window) {
  RECT rect = {};
  ::GetWindowRect(window, &rect);
  return {rect.left, rect.top, rect.right, rect.bottom};
}

Point CentreOf(HWND window) {
  const Rect rect = RectOf(window);
  return {rect.left + rect.width() / 2, rect.top + rect.height() / 2};
}

bool IsShown(HWND window) {
  return ::IsWindowVisible(window) != FALSE;
}

bool IsEnabled(HWND window) {
  return ::IsWindowEnabled(window) != FALSE;
}

bool IsTopmost(HWND window) {
  return (::GetWindowLongPtrW(window, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
}

std::optional<int> AlphaOf(HWND window) {
  BYTE alpha = 0;
  DWORD flags = 0;
  if (!::GetLayeredWindowAttributes(window, nullptr, &alpha, &flags) || !(flags & LWA_ALPHA)) {
    return std::nullopt;
  }
  return alpha;
}

bool Activate(HWND window) {
  ::SetForegroundWindow(window);
  return WaitUntil([window] {
    const HWND focus = FocusedWindow();
    return focus && (focus == window || ::IsChild(window, focus));
  });
}

HWND FocusedWindow() {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  return ::GetGUIThreadInfo(0, &info) ? info.hwndFocus : nullptr;
}

HWND WindowAt(Point point) {
  HWND found = ::WindowFromPoint({point.x, point.y});
  // Group boxes let the mouse through, which the system asks about only within a process.
  while (found && IsGroupBox(found)) {
    do {
      found = ::GetWindow(found, GW_HWNDNEXT);
    } while (found && !(IsShown(found) && RectOf(found).Contains(point)));
  }
  return found;
}

LRESULT Send(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  DWORD_PTR result = 0;
  ::SendMessageTimeoutW(window, message, wparam, lparam, SMTO_ABORTIFHUNG | SMTO_ERRORONEXIT,
                        kPatience, &result);
  return static_cast<LRESULT>(result);
}

bool EndSession(const Program& program) {
  const std::vector<HWND> windows = TopLevelWindows(program);
  const bool agreed = std::all_of(windows.begin(), windows.end(), [](HWND window) {
    return Send(window, WM_QUERYENDSESSION, 0, static_cast<LPARAM>(ENDSESSION_LOGOFF)) != 0;
  });
  for (HWND window : windows) {
    Send(window, WM_ENDSESSION, agreed, static_cast<LPARAM>(ENDSESSION_LOGOFF));
  }
  return agreed;
}

}  // namespace varnel::rig
