#include "core/settings_store.h"

#include <optional>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

std::optional<Hive> HiveFromText(std::wstring_view text) {
  const auto number = WholeNumber(text);
  if (number && number == WholeNumber(kCurrentUserText)) return Hive::kCurrentUser;
  if (number && number == WholeNumber(kLocalMachineText)) return Hive::kLocalMachine;
  return std::nullopt;
}

// The text that stored data stands for, untrimmed; empty when the data is unfit.
std::wstring_view StoredText(const std::optional<RegistryValue>& value) {
  if (!value || !value->is_text) return {};
  const std::wstring_view data = value->data;
  // Terminators are stored or not, depending on who wrote the value.
  const std::size_t length = data.find_last_not_of(L'\0') + 1;
  return length > kLongestSetting ? std::wstring_view() : data.substr(0, length);
}

}  // namespace

std::wstring RegistryRoot(std::wstring_view title) {
  return L"SOFTWARE\\" + std::wstring(title) + L"\\";
}

SettingsStore::SettingsStore(Registry& registry, std::wstring root)
    : registry_(registry), root_(std::move(root)) {}

std::wstring SettingsStore::KeyPath(std::wstring_view section) const {
  return root_ + std::wstring(section);
}

std::wstring SettingsStore::Read(std::wstring_view section, std::wstring_view name,
                                 std::wstring_view fallback) const {
  return GetKeyValue(Hive::kCurrentUser, KeyPath(section), name, fallback);
}

void SettingsStore::Write(std::wstring_view section, std::wstring_view name,
                          std::wstring_view value) {
  SetKeyValue(kCurrentUserText, KeyPath(section), name, value);
}

std::wstring SettingsStore::GetKeyValue(Hive hive, std::wstring_view section,
                                        std::wstring_view value_name,
                                        std::wstring_view default_value) const {
  const auto value = registry_.Query(hive, std::wstring(section), std::wstring(value_name));
  const std::wstring text = Trim(StoredText(value));
  return text.empty() ? Trim(default_value) : text;
}

void SettingsStore::SetKeyValue(std::wstring_view hive, std::wstring_view section,
                                std::wstring_view value_name, std::wstring_view value) {
  TrySetKeyValue(hive, section, value_name, value);
}

bool SettingsStore::TrySetKeyValue(std::wstring_view hive, std::wstring_view section,
                                   std::wstring_view value_name, std::wstring_view value) {
  const auto known = HiveFromText(hive);
  return known &&
         registry_.WriteText(*known, std::wstring(section), std::wstring(value_name), value);
}

}  // namespace varnel
