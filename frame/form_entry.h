// What the frame has to know of the form that it is drawn around.
#pragma once

#include <string_view>

namespace varnel {

struct FormEntry {
  std::wstring_view form_name;
  std::wstring_view title;          // as shown to the user
  std::wstring_view theme_caption;  // of the theme dialog opened from this form
  wchar_t glyph = 0;                // in the font "Icon-works": the form is closed
  wchar_t open_glyph = 0;           // the same, filled: the form is open
  std::wstring_view top_command;    // of its menu: keep on top; may be empty
};

inline constexpr FormEntry kNoForm{};

// The number of the form that is no widget: the manager.
inline constexpr int kManagerIndex = -1;

}  // namespace varnel
