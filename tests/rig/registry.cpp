#include "tests/rig/registry.h"

#include <algorithm>

#include "win/system/handles.h"

namespace varnel::rig {
namespace {

constexpr DWORD kNameUnits = 16'384;  // the longest name of a value, with its final zero

UniqueKey Open(HKEY hive, const std::wstring& path) {
  HKEY key = nullptr;
  ::RegOpenKeyExW(hive, path.c_str(), 0, KEY_READ, &key);
  return UniqueKey(key);
}

UniqueKey Create(HKEY hive, const std::wstring& path) {
  HKEY key = nullptr;
  ::RegCreateKeyExW(hive, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key, nullptr);
  return UniqueKey(key);
}

}  // namespace

std::optional<std::wstring> Registry::Text(const std::wstring& section,
                                           const std::wstring& name) const {
  const UniqueKey key = Open(hive_, PathOf(section));
  DWORD type = REG_NONE;
  DWORD size = 0;
  if (!key ||
      ::RegQueryValueExW(key.get(), name.c_str(), nullptr, &type, nullptr, &size) !=
          ERROR_SUCCESS ||
      (type != REG_SZ && type != REG_EXPAND_SZ)) {
    return std::nullopt;
  }
  size += sizeof(wchar_t);  // room for the zero that some systems add to a text stored without
  std::wstring text(size / sizeof(wchar_t), L'\0');
  if (::RegQueryValueExW(key.get(), name.c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(text.data()), &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  text.resize(size / sizeof(wchar_t));
  while (text.ends_with(L'\0')) text.pop_back();
  return text;
}

std::vector<std::wstring> Registry::ValueNames(const std::wstring& section) const {
  const UniqueKey key = Open(hive_, PathOf(section));
  std::vector<std::wstring> names;
  std::wstring buffer(kNameUnits, L'\0');
  for (DWORD i = 0; key; ++i) {
    DWORD length = kNameUnits;
    if (::RegEnumValueW(key.get(), i, buffer.data(), &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      break;
    }
    names.push_back(buffer.substr(0, length));
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool Registry::SetText(const std::wstring& section, const std::wstring& name,
                       const std::wstring& text) const {
  const char* bytes = reinterpret_cast<const char*>(text.c_str());
  return SetRaw(section, name, {REG_SZ, std::string(bytes, (text.size() + 1) * sizeof(wchar_t))});
}

bool Registry::SetRaw(const std::wstring& section, const std::wstring& name,
                      const RawValue& value) const {
  const UniqueKey key = Create(hive_, PathOf(section));
  return key && ::RegSetValueExW(key.get(), name.c_str(), 0, value.type,
                                 reinterpret_cast<const BYTE*>(value.bytes.data()),
                                 static_cast<DWORD>(value.bytes.size())) == ERROR_SUCCESS;
}

void Registry::RemoveValue(const std::wstring& section, const std::wstring& name) const {
  ::RegDeleteKeyValueW(hive_, PathOf(section).c_str(), name.c_str());
}

void Registry::RemoveAll() const {
  ::RegDeleteTreeW(hive_, key_.c_str());
}

std::wstring Registry::PathOf(const std::wstring& section) const {
  return section.empty() ? key_ : key_ + L"\\" + section;
}

}  // namespace varnel::rig
