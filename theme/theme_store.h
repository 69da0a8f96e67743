// Themes in the settings store, one set of values for each widget form.
#pragma once

#include <string_view>

#include "base/settings.h"
#include "theme/theme_record.h"

namespace varnel {

inline constexpr std::wstring_view kThemeSection = L"frmTHEME\\Details";

// The style folder last shown in the theme dialog.
inline constexpr Setting kThemeFolderSetting{kThemeSection, L"Theme-folder", L"Soft"};

// The theme stored for the form of that name. A field that is missing or unreadable (see
// SetFieldText) has its default; the two derived colours are those of a theme just loaded.
ThemeRecord LoadTheme(const Settings& settings, std::wstring_view form,
                      const SystemColours& system);

// Stores the eight fields.
void SaveTheme(Settings& settings, std::wstring_view form, const ThemeRecord& theme);

}  // namespace varnel
