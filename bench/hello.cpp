// The least that any program with a window costs: one window with a word in it.
#include <windows.h>

namespace {

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
  return ::DefWindowProcW(window, message, wparam, lparam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int) {
  WNDCLASSW description = {};
  description.lpfnWndProc = &Procedure;
  description.hInstance = instance;
  description.hbrBackground = ::GetSysColorBrush(COLOR_WINDOW);
  description.lpszClassName = L"hello";
  ::RegisterClassW(&description);
  ::CreateWindowExW(0, L"hello", L"hello", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 300, 200,
                    nullptr, nullptr, instance, nullptr);
  MSG message;
  while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
  return 0;
}
