// Which windows stay above others: all by one setting, or one as its user chose for it.
#pragma once

#include <string_view>

#include "base/settings.h"

namespace varnel {

// What was chosen for the window of that form; kOnTop where nothing was.
bool StaysOnTop(const Settings& settings, std::wstring_view form_name);

// Keeps the choice for one window.
void ChooseOnTop(Settings& settings, std::wstring_view form_name, bool on);

// Forgets it: the window goes by kOnTop again.
void ForgetOnTop(Settings& settings, std::wstring_view form_name);

}  // namespace varnel
