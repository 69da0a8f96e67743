// What the user asks of every program's look.
#pragma once

#include <string>

namespace varnel {

// The system's high-contrast setting is on.
bool HighContrastWanted();

// The face of the platform's message boxes; empty when the system does not tell.
std::wstring InterfaceFont();

// The user works by keyboard and wants to see always where it goes to.
bool KeyboardPreferred();

}  // namespace varnel
