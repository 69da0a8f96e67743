// hello [TIMERS]: the least that any program with a window costs, one window with a word in it, and
// with that many timers of 100 ms that do nothing. Their phases are spread, as those of timers are
// that belong to several windows.
#include <windows.h>

#include <cwchar>

namespace {

constexpr UINT kTickMs = 100;

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_DESTROY) {
    ::PostQuitMessage(0);
    return 0;
  }
  if (message == WM_PAINT) {
    PAINTSTRUCT paint;
    HDC dc = ::BeginPaint(window, &paint);
    ::TextOutW(dc, 8, 8, L"hello", 5);
    ::EndPaint(window, &paint);
    return 0;
  }
  if (message == WM_TIMER) return 0;
  return ::DefWindowProcW(window, message, wparam, lparam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t* words, int) {
  WNDCLASSW description = {};
  description.lpfnWndProc = &Procedure;
  description.hInstance = instance;
  description.hbrBackground = ::GetSysColorBrush(COLOR_WINDOW);
  description.lpszClassName = L"hello";
  ::RegisterClassW(&description);
  HWND window = ::CreateWindowExW(0, L"hello", L"hello", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40,
                                  300, 200, nullptr, nullptr, instance, nullptr);
  const long timers = std::wcstol(words, nullptr, 10);
  for (long i = 1; i <= timers; ++i) {
    ::SetTimer(window, static_cast<UINT_PTR>(i), kTickMs, nullptr);
    if (i < timers) ::Sleep(static_cast<DWORD>(kTickMs / timers));
  }
  MSG message;
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
  return 0;
}
