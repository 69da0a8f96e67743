// The catalogue of this build: every widget and dialog there is.
#pragma once

#include "core/widget_catalogue_win.h"

namespace varnel {

const Catalogue& ProgramCatalogue();

}  // namespace varnel
