#include "win/clipboard.h"

#include <algorithm>

namespace varnel {
namespace {

constexpr int kOpenTries = 10;
constexpr DWORD kOpenPauseMs = 10;

// Programs that watch the clipboard look into it whenever it changes, each for a moment.
bool OpenClipboardSoon(HWND owner) {
  for (int attempt = 1; !::OpenClipboard(owner); ++attempt) {
    if (attempt == kOpenTries) return false;
    ::Sleep(kOpenPauseMs);
  }
  return true;
}

}  // namespace

bool CopyText(HWND owner, const std::wstring& text) {
  if (!OpenClipboardSoon(owner)) return false;
  ::EmptyClipboard();
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, bytes);
  bool copied = false;
  if (void* target = memory ? ::GlobalLock(memory) : nullptr) {
    std::copy_n(text.c_str(), text.size() + 1, static_cast<wchar_t*>(target));
    ::GlobalUnlock(memory);
    copied = ::SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
  }
  // What the clipboard took belongs to it.
  if (memory && !copied) ::GlobalFree(memory);
  ::CloseClipboard();
  return copied;
}

std::wstring PastedText(HWND owner, std::size_t most) {
  std::wstring text;
  if (!OpenClipboardSoon(owner)) return text;
  HANDLE memory = ::GetClipboardData(CF_UNICODETEXT);
  if (const void* source = memory ? ::GlobalLock(memory) : nullptr) {
    const auto* units = static_cast<const wchar_t*>(source);
    const std::size_t held = ::GlobalSize(memory) / sizeof(wchar_t);
    text.assign(units, std::find(units, units + std::min(held, most), L'\0'));
    ::GlobalUnlock(memory);
  }
  ::CloseClipboard();
  return text;
}

}  // namespace varnel
