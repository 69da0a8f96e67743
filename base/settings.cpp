#include "base/settings.h"

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {

std::wstring Settings::Read(const Setting& setting) const {
  return Read(setting.section, setting.name, setting.fallback);
}

void Settings::Write(const Setting& setting, std::wstring_view value) {
  Write(setting.section, setting.name, value);
}

long long ReadNumber(const Settings& settings, const Setting& setting, long long low,
                     long long high) {
  const auto value = WholeNumber(settings.Read(setting));
  if (value && *value >= low && *value <= high) return *value;
  return WholeNumber(setting.fallback).value_or(0);
}

bool ReadCheck(const Settings& settings, const Setting& setting) {
  return LeadingNumber(settings.Read(setting)) == 1;
}

bool ReadFlag(const Settings& settings, const Setting& setting) {
  for (const std::wstring& text : {settings.Read(setting), std::wstring(setting.fallback)}) {
    if (EqualsIgnoreCase(text, L"True")) return true;
    if (EqualsIgnoreCase(text, L"False")) return false;
    if (const auto number = WholeNumber(text)) return *number != 0;
  }
  return false;
}

void WriteCheck(Settings& settings, const Setting& setting, bool on) {
  settings.Write(setting, on ? L"1" : L"0");
}

void WriteFlag(Settings& settings, const Setting& setting, bool on) {
  settings.Write(setting, on ? L"True" : L"False");
}

}  // namespace varnel
