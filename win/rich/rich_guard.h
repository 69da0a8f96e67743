// What a rich edit control may take in by itself when something is dropped on it: text, formatted
// text that its owner has looked at, and pictures that do nothing. No object of another program
// gets in, let alone runs.
#pragma once

#include <windows.h>

#include <richole.h>

#include <functional>
#include <string>

#include "win/system/com.h"

namespace varnel {

// Tells whether formatted text (as it was dropped, not looked into) may go into the control as it
// is; otherwise its plain text goes.
using RtfGate = std::function<bool(const std::string& rtf)>;

// An empty gate lets no formatted text in.
ComPointer<IRichEditOleCallback> MakeRichGuard(RtfGate gate);

}  // namespace varnel
