// The system's extra controls: their library is loaded when the first of them is wanted, not at
// start-up.
#pragma once

#include <windows.h>

namespace varnel {

// Makes the window classes named by `classes` (ICC_ bits) known. False when this system has none.
bool LoadCommonControls(DWORD classes);

}  // namespace varnel
