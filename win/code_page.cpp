#include "win/code_page.h"

#include <windows.h>

namespace varnel {

std::wstring WideFromCodePage(std::string_view bytes) {
  const int length = static_cast<int>(bytes.size());
  // No code page makes more units than there are bytes.
  std::wstring text(bytes.size(), L'\0');
  text.resize(static_cast<std::size_t>(
      ::MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, text.data(), length)));
  return text;
}

}  // namespace varnel
