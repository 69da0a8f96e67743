#include "core/start_options.h"

#include "base/path.h"
#include "core/core_settings.h"

namespace varnel {

std::wstring RunAtLogonCommand(std::wstring_view program_folder, std::wstring_view base_name) {
  return AddTrailingSeparator(std::wstring(program_folder)) + std::wstring(base_name) + L".exe";
}

void WriteRunAtLogon(SettingsStore& store, std::wstring_view command) {
  const std::wstring_view data = ReadCheck(store, kProgramLaunch) ? command : L"";
  const bool for_machine =
      store.TrySetKeyValue(kLocalMachineText, kRunKey, kApplicationTitle, data);
  // An entry of the user's own, made when the machine's list was out of reach, would start the
  // program a second time, or when it should not start at all.
  const bool for_user =
      !store.GetKeyValue(Hive::kCurrentUser, kRunKey, kApplicationTitle, L"").empty();
  if (!for_machine) {
    store.SetKeyValue(kCurrentUserText, kRunKey, kApplicationTitle, data);
  } else if (for_user) {
    store.SetKeyValue(kCurrentUserText, kRunKey, kApplicationTitle, L"");
  }
}

}  // namespace varnel
