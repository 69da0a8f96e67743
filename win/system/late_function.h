// Functions of system libraries that are loaded only when first needed, and from the system folder
// only. What the program imports statically is limited to libraries that cannot be planted beside
// it.
#pragma once

#include <windows.h>

namespace varnel {

// The address of `name` in `library`, or null when this system has none. The library stays loaded.
FARPROC LateAddress(const wchar_t* library, const char* name);

template <class Function>
Function* LateFunction(const wchar_t* library, const char* name) {
  return reinterpret_cast<Function*>(reinterpret_cast<void*>(LateAddress(library, name)));
}

}  // namespace varnel
