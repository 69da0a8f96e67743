// The system's registry.
#pragma once

#include "base/registry.h"

namespace varnel {

class SystemRegistry : public Registry {
 public:
  std::optional<RegistryValue> Query(Hive hive, const std::wstring& path,
                                     const std::wstring& name) const override;
  bool WriteText(Hive hive, const std::wstring& path, const std::wstring& name,
                 std::wstring_view text) override;
};

}  // namespace varnel
