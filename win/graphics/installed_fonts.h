// The fonts of this machine.
#pragma once

#include <string>
#include <vector>

namespace varnel {

// Every face that the system lists, each once, in the user's alphabetical order.
std::vector<std::wstring> InstalledFontFaces();

}  // namespace varnel
