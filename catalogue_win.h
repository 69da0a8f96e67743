// The catalogue of this build: every widget and dialog there is.
#pragma once

#include "core/catalogue.h"

namespace varnel {

const Catalogue& ProgramCatalogue();

}  // namespace varnel
