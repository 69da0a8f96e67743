#include "tests/rig/registry.h"

#include <algorithm>

#include "win/handles.h"

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

// All that `next` (an enumeration of names by index) gives for the key.
template <class Next>
std::vector<std::wstring> Names(const UniqueKey& key, Next next) {
  std::vector<std::wstring> names;
  std::wstring buffer(kNameUnits, L'\0');
  for (DWORD i = 0; key; ++i) {
    DWORD length = kNameUnits;
    if (next(key.get(), i, buffer.data(), &length) != ERROR_SUCCESS) break;
    names.push_back(buffer.substr(0, length));
  }
  std::sort(names.begin(), names.end());
  return names;
}

void AddSections(HKEY hive, const std::wstring& root, const std::wstring& below,
                 std::vector<std::wstring>& sections) {
  const std::wstring path = below.empty() ? root : root + L"\\" + below;
  const auto next = [](HKEY key, DWORD index, wchar_t* name, DWORD* length) {
    return ::RegEnumKeyExW(key, index, name, length, nullptr, nullptr, nullptr, nullptr);
  };
  for (const std::wstring& name : Names(Open(hive, path), next)) {
    sections.push_back(below.empty() ? name : below + L"\\" + name);
    AddSections(hive, root, std::wstring(sections.back()), sections);
  }
}

}  // namespace

std::optional<RawValue> Registry::Raw(const std::wstring& section, const std::wstring& name) const {
  const UniqueKey key = Open(hive_, PathOf(section));
  RawValue value;
  DWORD size = 0;
  if (!key || ::RegQueryValueExW(key.get(), name.c_str(), nullptr, nullptr, nullptr, &size) !=
                  ERROR_SUCCESS) {
    return std::nullopt;
  }
  size += sizeof(wchar_t);  // room for the zero that some systems add to a text stored without
  value.bytes.resize(size);
  if (::RegQueryValueExW(key.get(), name.c_str(), nullptr, &value.type,
                         reinterpret_cast<BYTE*>(value.bytes.data()), &size) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  value.bytes.resize(size);
  return value;
}

std::optional<std::wstring> Registry::Text(const std::wstring& section,
                                           const std::wstring& name) const {
  const std::optional<RawValue> raw = Raw(section, name);
  if (!raw || (raw->type != REG_SZ && raw->type != REG_EXPAND_SZ)) return std::nullopt;
  std::wstring text(raw->bytes.size() / sizeof(wchar_t), L'\0');
  raw->bytes.copy(reinterpret_cast<char*>(text.data()), text.size() * sizeof(wchar_t));
  while (text.ends_with(L'\0')) text.pop_back();
  return text;
}

std::vector<std::wstring> Registry::ValueNames(const std::wstring& section) const {
  return Names(
      Open(hive_, PathOf(section)), [](HKEY key, DWORD index, wchar_t* name, DWORD* length) {
        return ::RegEnumValueW(key, index, name, length, nullptr, nullptr, nullptr, nullptr);
      });
}

std::vector<std::wstring> Registry::Sections() const {
  std::vector<std::wstring> sections;
  AddSections(hive_, key_, L"", sections);
  std::sort(sections.begin(), sections.end());
  return sections;
}

std::map<std::wstring, std::wstring> Registry::AllTexts() const {
  std::map<std::wstring, std::wstring> texts;
  for (const std::wstring& section : Sections()) {
    for (const std::wstring& name : ValueNames(section)) {
      if (const auto text = Text(section, name)) texts[section + L"\\" + name] = *text;
    }
  }
  return texts;
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

std::optional<std::wstring> RunAtLogon(HKEY hive, const std::wstring& name) {
  const Registry version(hive, L"Software\\Microsoft\\Windows\\CurrentVersion");
  return version.Text(L"Run", name);
}

}  // namespace varnel::rig
