// The resolution that programs find.
#pragma once

#include "tests/rig/registry.h"

namespace varnel::rig {

// Programs started while it lives take the screen to have that many dots per inch.
class ScreenDpi {
 public:
  explicit ScreenDpi(int dpi) : desktop_(HKEY_CURRENT_USER, L"Control Panel\\Desktop") {
    const DWORD value = static_cast<DWORD>(dpi);
    desktop_.SetRaw(L"", L"LogPixels",
                    {REG_DWORD, std::string(reinterpret_cast<const char*>(&value), sizeof value)});
  }
  ScreenDpi(const ScreenDpi&) = delete;
  ScreenDpi& operator=(const ScreenDpi&) = delete;
  ~ScreenDpi() { desktop_.RemoveValue(L"", L"LogPixels"); }

 private:
  Registry desktop_;
};

}  // namespace varnel::rig
