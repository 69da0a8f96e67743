// The platform's registry as engines see it: raw values, so that what a stored value means is
// decided in one place.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varnel {

enum class Hive { kCurrentUser, kLocalMachine };

// Larger data is never handed out; no setting comes near it.
inline constexpr std::size_t kRegistryDataLimit = 4096;  // units

struct RegistryValue {
  bool is_text = false;  // stored as a text, plain or expandable; other types have no `data`
  std::wstring data;     // exactly the stored units, with whatever terminators were stored
};

class Registry {
 public:
  virtual ~Registry() = default;

  // Nothing when the key or the value is missing, unreadable or longer than kRegistryDataLimit.
  virtual std::optional<RegistryValue> Query(Hive hive, const std::wstring& path,
                                             const std::wstring& name) const = 0;
  // Stores exactly the units of `text`, without counting a terminator, as a plain text; creates
  // every missing key of `path`. False when nothing was stored.
  virtual bool WriteText(Hive hive, const std::wstring& path, const std::wstring& name,
                         std::wstring_view text) = 0;
};

}  // namespace varnel
