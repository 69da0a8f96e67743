#include "core/start_options.h"

#include "base/path.h"
#include "base/text.h"
#include "core/core_settings.h"

namespace varnel {

namespace {

// A word of a command line. A "\\" before the closing quote would take it for a letter.
std::wstring Quoted(std::wstring_view word) {
  return L"\"" + std::wstring(word) + (word.ends_with(L'\\') ? L"\\\"" : L"\"");
}

bool HasOwnSettings(const CommandLine& line) {
  return !EqualsIgnoreCase(line.settings_title, kApplicationTitle);
}

}  // namespace

std::wstring RunAtLogonCommand(std::wstring_view program_folder, std::wstring_view base_name,
                               const CommandLine& line) {
  const std::wstring program =
      AddTrailingSeparator(std::wstring(program_folder)) + std::wstring(base_name) + L".exe";
  std::wstring switches;
  if (HasOwnSettings(line)) switches += L" /settings " + Quoted(line.settings_title);
  if (!line.program_folder.empty()) switches += L" /data " + Quoted(line.program_folder);
  return switches.empty() ? program : Quoted(program) + switches;
}

std::wstring RunValueName(const CommandLine& line) {
  const std::wstring name(kApplicationTitle);
  return HasOwnSettings(line) ? name + L" (" + line.settings_title + L")" : name;
}

void WriteRunAtLogon(SettingsStore& store, std::wstring_view name, std::wstring_view command) {
  const std::wstring_view data = ReadCheck(store, kProgramLaunch) ? command : L"";
  const bool for_machine = store.TrySetKeyValue(kLocalMachineText, kRunKey, name, data);
  // An entry of the user's own, made when the machine's list was out of reach, would start the
  // program a second time, or when it should not start at all.
  const bool for_user = !store.GetKeyValue(Hive::kCurrentUser, kRunKey, name, L"").empty();
  if (!for_machine) {
    store.SetKeyValue(kCurrentUserText, kRunKey, name, data);
  } else if (for_user) {
    store.SetKeyValue(kCurrentUserText, kRunKey, name, L"");
  }
}

}  // namespace varnel
