// Settings kept in memory, for tests of engines.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/settings.h"
#include "base/text.h"

namespace varnel::test {

class MemorySettings : public Settings {
 public:
  using Settings::Read;
  using Settings::Write;

  std::wstring Read(std::wstring_view section, std::wstring_view name,
                    std::wstring_view fallback) const override {
    const auto found = values.find({std::wstring(section), std::wstring(name)});
    const std::wstring text = found == values.end() ? L"" : Trim(found->second);
    return text.empty() ? Trim(fallback) : text;
  }
  void Write(std::wstring_view section, std::wstring_view name, std::wstring_view value) override {
    values[{std::wstring(section), std::wstring(name)}] = value;
    written.emplace_back(name);
  }

  std::map<std::pair<std::wstring, std::wstring>, std::wstring> values;
  std::vector<std::wstring> written;  // the names, as they came
};

}  // namespace varnel::test
