// The window class of buttons that are drawn by their owner and have no frame.
#pragma once

namespace varnel {

// The name of a window class that is the system's own button but for a frame: its windows are all
// client area. It comes from the plain version of the controls, which the system has at hand, and
// is registered on first use. "BUTTON" where the system refuses.
const wchar_t* FramelessButtonClass();

}  // namespace varnel
