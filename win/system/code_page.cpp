#include "win/system/code_page.h"

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
  constexpr std::size_t kMostBytesPerUnit = 4;
  const int length = static_cast<int>(text.size());
  std::string bytes(text.size() * kMostBytesPerUnit, '\0');
  bytes.resize(static_cast<std::size_t>(
      ::WideCharToMultiByte(CP_ACP, 0, text.data(), length, bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr)));
  return bytes;
}

std::wstring CharacterOfPage(int page, std::string_view bytes) {
  wchar_t units[4] = {};
  const int length = ::MultiByteToWideChar(static_cast<UINT>(page), MB_ERR_INVALID_CHARS,
                                           bytes.data(), static_cast<int>(bytes.size()), units, 4);
  return std::wstring(units, static_cast<std::size_t>(length));
}

int SystemCodePage() {
  return static_cast<int>(::GetACP());
}

}  // namespace varnel
