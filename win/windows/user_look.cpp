#include "win/windows/user_look.h"

#include <windows.h>

namespace varnel {

bool HighContrastWanted() {
  HIGHCONTRASTW setting = {};
  setting.cbSize = sizeof setting;
  return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
         (setting.dwFlags & HCF_HIGHCONTRASTON);
}

std::wstring InterfaceFont() {
  NONCLIENTMETRICSW metrics = {};
  metrics.cbSize = sizeof metrics;
  if (!::SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)) return {};
  return metrics.lfMessageFont.lfFaceName;
}

// Not the setting for keyboard cues: that one is about underlined letters, and some systems have it
// on for everybody.
bool KeyboardPreferred() {
  BOOL preferred = FALSE;
  return ::SystemParametersInfoW(SPI_GETKEYBOARDPREF, 0, &preferred, 0) && preferred;
}

}  // namespace varnel
