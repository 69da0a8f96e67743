#include "win/windows/window_text.h"

namespace varnel {

std::wstring WindowText(HWND window) {
  std::wstring text(::GetWindowTextLengthW(window), L'\0');
  text.resize(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()) + 1));
  return text;
}

std::wstring ClassName(HWND window) {
  wchar_t name[257] = {};  // the longest that there is
  return std::wstring(name, static_cast<std::size_t>(::GetClassNameW(window, name, 257)));
}

}  // namespace varnel
