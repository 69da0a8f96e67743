// The spelling check: one for the whole program, whether the notes are open or not.
#pragma once

#include "frame/family_service.h"
#include "frame/services.h"
#include "widgets/notes/spelling/spell_checker.h"

namespace varnel {

class SpellService : public FamilyService {
 public:
  // Its dictionaries are in the folder "notes\" below the program's. `services` outlive it.
  explicit SpellService(Services& services);
  // Writes what could not be written before.
  ~SpellService() override;

  clsNOTsp& checker() { return checker_; }

 private:
  clsNOTsp checker_;
};

}  // namespace varnel
