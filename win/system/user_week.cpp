#include "win/system/user_week.h"

#include <windows.h>

namespace varnel {
namespace {

int LocaleNumber(LCTYPE type, int most) {
  DWORD number = 0;
  const int units =
      ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, type | LOCALE_RETURN_NUMBER,
                        reinterpret_cast<wchar_t*>(&number), sizeof number / sizeof(wchar_t));
  return units > 0 && number <= static_cast<DWORD>(most) ? static_cast<int>(number) : 0;
}

}  // namespace

int UserFirstWeekday() {
  // The platform counts from Monday.
  return (LocaleNumber(LOCALE_IFIRSTDAYOFWEEK, 6) + 1) % 7;
}

int UserFirstWeekRule() {
  return LocaleNumber(LOCALE_IFIRSTWEEKOFYEAR, 2);
}

}  // namespace varnel
