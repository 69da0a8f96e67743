// What every window of the program shares.
#pragma once

#include <windows.h>

#include "win/graphics/fonts.h"
#include "win/system/debug_log.h"

namespace varnel {

// The number of the program's icon among its resources.
inline constexpr int kApplicationIcon = 1;

struct Ui {
  HINSTANCE instance = nullptr;
  DebugLog log;
  FontCache fonts;
  HICON icon = nullptr;  // of all windows; loaded with the first of them
};

}  // namespace varnel
