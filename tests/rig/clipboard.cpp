#include "tests/rig/clipboard.h"

namespace varnel::rig {
namespace {

constexpr std::size_t kMost = 1'000'000;

}  // namespace

Clipboard::Clipboard()
    : owner_(::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr,
                               nullptr)) {}

Clipboard::~Clipboard() {
  ::DestroyWindow(owner_);
}

std::wstring Clipboard::Text() const {
  return PastedText(owner_, kMost);
}

std::string Clipboard::Rtf() const {
  return PastedRtf(owner_, kMost);
}

}  // namespace varnel::rig
