// The keyboard's messages and the focus, as commands know them.
#pragma once

#include <windows.h>

#include "frame/command_key.h"

namespace varnel {

// What a control has the focus for; kPanel for null.
Focus FocusOf(HWND control);

// The key that a message presses or types, with what is held; none (code 0) for other messages, and
// where the right Alt key is held to type a character.
CommandKey PressedKey(const MSG& message);

}  // namespace varnel
