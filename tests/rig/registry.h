// The registry as a scene prepares and judges it.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace varnel::rig {

// A value as it is stored, whatever its type.
struct RawValue {
  DWORD type;
  std::string bytes;
};

// A key and everything below it. A `section` is the path below that key, empty for the key itself;
// reading opens nothing for writing and creates nothing.
class Registry {
 public:
  Registry(HKEY hive, std::wstring key) : hive_(hive), key_(std::move(key)) {}

  // The text of a text value without its final zeros; nothing when it is missing or no text.
  std::optional<std::wstring> Text(const std::wstring& section, const std::wstring& name) const;
  std::vector<std::wstring> ValueNames(const std::wstring& section) const;  // sorted

  // Each creates the keys that are missing; false when the value could not be stored. The text is
  // stored with its final zero; what is stored raw is stored as it stands, sensible or not.
  bool SetText(const std::wstring& section, const std::wstring& name,
               const std::wstring& text) const;
  bool SetRaw(const std::wstring& section, const std::wstring& name, const RawValue& value) const;
  void RemoveValue(const std::wstring& section, const std::wstring& name) const;
  // Removes the key itself with everything below it.
  void RemoveAll() const;

 private:
  std::wstring PathOf(const std::wstring& section) const;

  HKEY hive_;
  std::wstring key_;
};

}  // namespace varnel::rig
