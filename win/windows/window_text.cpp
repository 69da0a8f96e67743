#include "win/windows/window_text.h"

namespace varnel {

std::wstring WindowText(HWND window) {
  std::wstring text(::GetWindowTextLengthW(window), L'\0');
  text.resize(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1));
  return text;
}

}  // namespace varnel
