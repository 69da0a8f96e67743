// A registry in memory, for tests of engines; it can refuse writes, one hive at a time.
#pragma once

#include <map>
#include <set>
#include <string>
#include <tuple>

#include "base/registry.h"

namespace varnel::test {

class MemoryRegistry : public Registry {
 public:
  using Place = std::tuple<Hive, std::wstring, std::wstring>;

  std::optional<RegistryValue> Query(Hive hive, const std::wstring& path,
                                     const std::wstring& name) const override {
    const auto found = values.find({hive, path, name});
    if (found == values.end() || found->second.data.size() > kRegistryDataLimit) {
      return std::nullopt;
    }
    return found->second;
  }
  bool WriteText(Hive hive, const std::wstring& path, const std::wstring& name,
                 std::wstring_view text) override {
    if (refused.contains(hive)) return false;
    values[{hive, path, name}] = {true, std::wstring(text)};
    return true;
  }

  std::map<Place, RegistryValue> values;
  std::set<Hive> refused;
};

}  // namespace varnel::test
