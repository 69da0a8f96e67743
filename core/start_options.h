// Starting with the user's logon.
#pragma once

#include <string>
#include <string_view>

#include "core/settings_store.h"

namespace varnel {

inline constexpr std::wstring_view kRunKey = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

// The program file as the start-up list names it: folder, with a separator, base name and ".exe".
std::wstring RunAtLogonCommand(std::wstring_view program_folder, std::wstring_view base_name);

// Brings the start-up list in line with the setting kProgramLaunch: the value named after the
// program holds `command`, or is empty when the setting is off. The machine's list is written;
// where that is refused, for lack of rights, the user's own. Failures are silent.
void WriteRunAtLogon(SettingsStore& store, std::wstring_view command);

}  // namespace varnel
