// What the user asks of every program's look.
#pragma once

namespace varnel {

// The system's high-contrast setting is on.
bool HighContrastWanted();

// The user works by keyboard and wants to see always where it goes to.
bool KeyboardPreferred();

}  // namespace varnel
