// The loop that the program runs in.
#pragma once

#include "win/windows/ui.h"

namespace varnel {

// Runs messages until the program posts its quit message; gives that message's exit code. Keys go
// first to OnKey of the top-level window or dialog, then to the system's keyboard handling for
// dialogs.
int RunMessageLoop(const Ui& ui);

}  // namespace varnel
