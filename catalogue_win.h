// The catalogue of this build: every widget, dialog and family service there is.
#pragma once

#include <span>

#include "core/widget_catalogue_win.h"

namespace varnel {

std::span<const Family> ProgramFamilies();

}  // namespace varnel
