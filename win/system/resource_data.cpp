#include "win/system/resource_data.h"

namespace varnel {

std::string_view ResourceData(HINSTANCE instance, const wchar_t* name, const wchar_t* type) {
  HRSRC found = ::FindResourceW(instance, name, type);
  HGLOBAL loaded = found ? ::LoadResource(instance, found) : nullptr;
  const void* bytes = loaded ? ::LockResource(loaded) : nullptr;
  if (!bytes) return {};
  return {static_cast<const char*>(bytes), ::SizeofResource(instance, found)};
}

}  // namespace varnel
