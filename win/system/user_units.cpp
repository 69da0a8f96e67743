#include "win/system/user_units.h"

#include <windows.h>

namespace varnel {

LengthUnit UserLengthUnit() {
  DWORD imperial = 0;
  ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IMEASURE | LOCALE_RETURN_NUMBER,
                    reinterpret_cast<wchar_t*>(&imperial), sizeof imperial / sizeof(wchar_t));
  return imperial == 1 ? LengthUnit::kInches : LengthUnit::kMillimetres;
}

wchar_t UserDecimal() {
  wchar_t sign[4] = {};
  const int units = ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, sign, 4);
  return units == 2 ? sign[0] : L'.';
}

}  // namespace varnel
