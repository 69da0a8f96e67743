// The fixed table of the widgets, by the number that manager, menus and start-up flags share.
#pragma once

#include <string_view>

#include "base/settings.h"
#include "frame/form_entry.h"

namespace varnel {

struct WidgetEntry : FormEntry {
  int index;
  Setting start_load;  // flag: the widget opens at start-up
};

inline constexpr int kWidgetCount = 8;
inline constexpr FormEntry kManagerForm{L"frmVRNwg", L"Widget Varnel", L"Varnel Theme Settings",
                                        L'\xE108',   L'\xE118',        L""};

// The widget of that number or name; null when there is none.
const WidgetEntry* WidgetAt(int index);
const WidgetEntry* WidgetNamed(std::wstring_view form_name);
// The widget that users know by that title, in any case; null when there is none.
const WidgetEntry* WidgetTitled(std::wstring_view title);

// A widget or the manager by its form name; null when there is none.
const FormEntry* FormNamed(std::wstring_view form_name);

}  // namespace varnel
