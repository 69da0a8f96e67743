#include "win/user_look.h"

#include <windows.h>

namespace varnel {

bool HighContrastWanted() {
  HIGHCONTRASTW setting = {};
  setting.cbSize = sizeof setting;
  return ::SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
         (setting.dwFlags & HCF_HIGHCONTRASTON);
}

}  // namespace varnel
