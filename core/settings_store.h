// The settings store: every setting is a text in the registry, one key to a form or purpose.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/registry.h"
#include "base/settings.h"

namespace varnel {

// The predefined handles of the hives as decimal text, the form in which SetKeyValue takes them.
inline constexpr std::wstring_view kCurrentUserText = L"-2147483647";
inline constexpr std::wstring_view kLocalMachineText = L"-2147483646";

// The root key of a program's settings: "SOFTWARE\" + `title` + "\".
std::wstring RegistryRoot(std::wstring_view title);

class SettingsStore : public Settings {
 public:
  // `registry` outlives the store. `root` is the key path, ending in "\", to which the sections of
  // Read and Write are appended; both work on the current user's hive.
  SettingsStore(Registry& registry, std::wstring root);

  using Settings::Read;
  using Settings::Write;
  std::wstring Read(std::wstring_view section, std::wstring_view name,
                    std::wstring_view fallback) const override;
  void Write(std::wstring_view section, std::wstring_view name, std::wstring_view value) override;

  // The text stored under the whole key path `section`, without its terminators and outer blanks.
  // A missing, empty, blank, too long or non-text value gives the trimmed `default_value`.
  std::wstring GetKeyValue(Hive hive, std::wstring_view section, std::wstring_view value_name,
                           std::wstring_view default_value) const;

  // Stores `value` under the whole key path `section`. A failure, or a hive text that is neither
  // of the two above, is silent and stores nothing.
  void SetKeyValue(std::wstring_view hive, std::wstring_view section, std::wstring_view value_name,
                   std::wstring_view value);

  // SetKeyValue for callers that must know: false when nothing was stored.
  bool TrySetKeyValue(std::wstring_view hive, std::wstring_view section,
                      std::wstring_view value_name, std::wstring_view value);

 private:
  std::wstring KeyPath(std::wstring_view section) const;

  Registry& registry_;
  std::wstring root_;
};

}  // namespace varnel
