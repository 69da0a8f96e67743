#include "theme/theme_store.h"

#include <string>

namespace varnel {
namespace {

std::wstring ValueName(std::wstring_view form, const ThemeField& field) {
  return std::wstring(form).append(L"Theme-").append(field.name);
}

}  // namespace

ThemeRecord LoadTheme(const Settings& settings, std::wstring_view form,
                      const SystemColours& system) {
  ThemeRecord theme;
  for (const ThemeField& field : kThemeFields) {
    const std::wstring fallback = FieldText(theme, field);
    SetFieldText(theme, field, settings.Read(kThemeSection, ValueName(form, field), fallback));
  }
  DeriveOnLoad(theme, system);
  return theme;
}

void SaveTheme(Settings& settings, std::wstring_view form, const ThemeRecord& theme) {
  for (const ThemeField& field : kThemeFields) {
    settings.Write(kThemeSection, ValueName(form, field), FieldText(theme, field));
  }
}

}  // namespace varnel
