// Starting with the user's logon.
#pragma once

#include <string>
#include <string_view>

#include "core/command_line.h"
#include "core/settings_store.h"

namespace varnel {

inline constexpr std::wstring_view kRunKey = L"Software\\Microsoft\\Windows\\CurrentVersion\\Run";

// What the start-up list starts: the program file (folder, with a separator, base name and ".exe"),
// and where `line` names other settings or another folder, in quotes and with the same switches.
std::wstring RunAtLogonCommand(std::wstring_view program_folder, std::wstring_view base_name,
                               const CommandLine& line);

// The name of the value in the start-up list: the program's, with other settings their title in
// brackets behind it, so that programs with settings of their own start beside each other.
std::wstring RunValueName(const CommandLine& line);

// Brings the start-up list in line with the setting kProgramLaunch: the value `name` holds
// `command`, or is empty when the setting is off. The machine's list is written;
// where that is refused, for lack of rights, the user's own. Failures are silent.
void WriteRunAtLogon(SettingsStore& store, std::wstring_view name, std::wstring_view command);

}  // namespace varnel
