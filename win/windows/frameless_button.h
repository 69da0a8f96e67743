// The window class of buttons that are drawn by their owner and have no frame.
#pragma once

#include <windows.h>

namespace varnel {

// Such a button asks its parent what to tell programs that read the screen aloud: the button's
// handle is in the second parameter, the first is that of WM_GETOBJECT. A result of 0 leaves the
// answer to the system.
inline constexpr UINT kButtonAsked = WM_APP + 90;

// The name of a window class that is the system's own button but for a frame: its windows are all
// client area. It comes from the plain version of the controls, which the system has at hand, and
// is registered on first use. "BUTTON" where the system refuses.
const wchar_t* FramelessButtonClass();

}  // namespace varnel
