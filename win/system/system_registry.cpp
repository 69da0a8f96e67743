#include "win/system/system_registry.h"

#include <windows.h>

#include "win/system/handles.h"

namespace varnel {
namespace {

HKEY RootKey(Hive hive) {
  return hive == Hive::kLocalMachine ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
}

}  // namespace

std::optional<RegistryValue> SystemRegistry::Query(Hive hive, const std::wstring& path,
                                                   const std::wstring& name) const {
  HKEY opened = nullptr;
  if (::RegOpenKeyExW(RootKey(hive), path.c_str(), 0, KEY_ALL_ACCESS, &opened) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  const UniqueKey key(opened);
  DWORD type = 0;
  wchar_t units[kRegistryDataLimit];
  DWORD bytes = sizeof units;
  if (::RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, reinterpret_cast<BYTE*>(units),
                         &bytes) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  RegistryValue value;
  value.is_text = type == REG_SZ || type == REG_EXPAND_SZ;
  if (value.is_text) value.data.assign(units, bytes / sizeof(wchar_t));
  return value;
}

bool SystemRegistry::WriteText(Hive hive, const std::wstring& path, const std::wstring& name,
                               std::wstring_view text) {
  HKEY opened = nullptr;
  if (::RegCreateKeyExW(RootKey(hive), path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE,
                        nullptr, &opened, nullptr) != ERROR_SUCCESS) {
    return false;
  }
  const UniqueKey key(opened);
  // The system looks one unit past the text for a terminator: the copy has one.
  const std::wstring terminated(text);
  return ::RegSetValueExW(key.get(), name.c_str(), 0, REG_SZ,
                          reinterpret_cast<const BYTE*>(terminated.data()),
                          static_cast<DWORD>(text.size() * sizeof(wchar_t))) == ERROR_SUCCESS;
}

}  // namespace varnel
