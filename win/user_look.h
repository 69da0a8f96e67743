// What the user asks of every program's look.
#pragma once

namespace varnel {

// The system's high-contrast setting is on.
bool HighContrastWanted();

}  // namespace varnel
