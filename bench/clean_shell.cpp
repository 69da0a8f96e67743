// Ends the hidden tooltips that Wine's shell keeps of every tray icon it ever had. They lie above
// all windows and each is asked about whenever a program changes the order of windows, so that
// without this every start of a program with a tray icon would make the next one slower.
#include <windows.h>

#include <cwchar>

namespace {

BOOL CALLBACK EndTooltip(HWND window, LPARAM shell) {
  wchar_t name[32];
  ::GetClassNameW(window, name, 32);
  const bool tooltip = std::wcscmp(name, L"tooltips_class32") == 0;
  if (tooltip && ::GetWindow(window, GW_OWNER) == reinterpret_cast<HWND>(shell)) {
    ::SendMessageW(window, WM_CLOSE, 0, 0);
  }
  return TRUE;
}

}  // namespace

int wmain() {
  HWND shell = ::FindWindowW(L"Shell_TrayWnd", nullptr);
  return shell && ::EnumWindows(&EndTooltip, reinterpret_cast<LPARAM>(shell)) ? 0 : 1;
}
