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

std::string CodePageFromWide(std::wstring_view text) {
  const int length = static_cast<int>(text.size());
  const auto convert = [&](char* to, int room) {
    return ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, to, room, nullptr, nullptr);
  };
  const int needed = convert(nullptr, 0);
  std::string bytes(static_cast<std::size_t>(needed), '\0');
  convert(bytes.data(), needed);
  return bytes;
}

}  // namespace varnel
