#include "win/system/local_time.h"

#include <windows.h>
// The automation headers need the base ones first.
#include <oleauto.h>

namespace varnel {
namespace {

SYSTEMTIME ToSystemTime(const LocalTime& time) {
  SYSTEMTIME system = {};
  system.wYear = static_cast<WORD>(time.year);
  system.wMonth = static_cast<WORD>(time.month);
  system.wDay = static_cast<WORD>(time.day);
  system.wDayOfWeek = static_cast<WORD>(time.weekday);
  system.wHour = static_cast<WORD>(time.hour);
  system.wMinute = static_cast<WORD>(time.minute);
  system.wSecond = static_cast<WORD>(time.second);
  return system;
}

}  // namespace

LocalTime SystemClock::Now() const {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wDayOfWeek, now.wHour, now.wMinute, now.wSecond};
}

std::wstring SystemTimeFormatter::Format(const LocalTime& time, std::wstring_view pattern) const {
  SYSTEMTIME system = ToSystemTime(time);
  VARIANT moment = {};
  moment.vt = VT_DATE;
  std::wstring pattern_text(pattern);
  BSTR result = nullptr;
  if (!::SystemTimeToVariantTime(&system, &moment.date) ||
      FAILED(::VarFormat(&moment, pattern_text.data(), 0, 0, 0, &result)) || !result) {
    return {};
  }
  std::wstring text(result, ::SysStringLen(result));
  ::SysFreeString(result);
  return text;
}

}  // namespace varnel
