#include "widgets/notes/spelling/spell_service_win.h"

#include "base/path.h"
#include "win/system/resource_data.h"
#include "win/windows/ui.h"

namespace varnel {

SpellService::SpellService(Services& services)
    : checker_(services.files, services.settings,
               AddTrailingSeparator(services.program_folder) + L"notes\\",
               [&services] { return ResourceData(services.ui.instance, L"WORDS", L"DATA"); }) {}

SpellService::~SpellService() {
  checker_.DatabaseSave();
}

}  // namespace varnel
