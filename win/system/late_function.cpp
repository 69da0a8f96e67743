#include "win/system/late_function.h"

namespace varnel {

FARPROC LateAddress(const wchar_t* library, const char* name) {
  HMODULE module = ::LoadLibraryExW(library, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
  return module ? ::GetProcAddress(module, name) : nullptr;
}

}  // namespace varnel
