#include "base/settings.h"

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr std::size_t kLongestText = 30'000;

std::wstring PartName(std::wstring_view name, int part) {
  return std::wstring(name) + L" part " + NumberText(part);
}

}  // namespace

std::wstring Settings::Read(const Setting& setting) const {
  return Read(setting.section, setting.name, setting.fallback);
}

void Settings::Write(const Setting& setting, std::wstring_view value) {
  Write(setting.section, setting.name, value);
}

long long ReadNumber(const Settings& settings, const Setting& setting, long long low,
                     long long high) {
  const auto value = WholeNumber(settings.Read(setting));
  if (value && *value >= low && *value <= high) return *value;
  return WholeNumber(setting.fallback).value_or(0);
}

bool ReadCheck(const Settings& settings, const Setting& setting) {
  return LeadingNumber(settings.Read(setting)) == 1;
}

bool ReadFlag(const Settings& settings, const Setting& setting) {
  for (const std::wstring& text : {settings.Read(setting), std::wstring(setting.fallback)}) {
    if (EqualsIgnoreCase(text, L"True")) return true;
    if (EqualsIgnoreCase(text, L"False")) return false;
    if (const auto number = WholeNumber(text)) return *number != 0;
  }
  return false;
}

void WriteLongText(Settings& settings, std::wstring_view section, std::wstring_view name,
                   std::wstring_view value) {
  const std::wstring trimmed = Trim(value).substr(0, kLongestText);
  std::wstring_view rest = trimmed;
  // The first part is written as it is, so it must not end in a blank where more follows.
  std::size_t first = rest.size();
  if (first > kLongestSetting) first = rest.find_last_not_of(L' ', kLongestSetting - 1) + 1;
  settings.Write(section, name, rest.substr(0, first));
  rest.remove_prefix(first);
  int part = 2;
  for (; !rest.empty(); ++part) {
    const std::wstring_view piece = rest.substr(0, kLongestSetting - 2);
    settings.Write(section, PartName(name, part), L"|" + std::wstring(piece) + L"|");
    rest.remove_prefix(piece.size());
  }
  // What a longer text has left behind must not follow this one.
  if (!settings.Read(section, PartName(name, part), L"").empty()) {
    settings.Write(section, PartName(name, part), L"");
  }
}

std::wstring ReadLongText(const Settings& settings, std::wstring_view section,
                          std::wstring_view name) {
  std::wstring text = settings.Read(section, name, L"");
  for (int part = 2; !text.empty() && text.size() < kLongestText; ++part) {
    const std::wstring piece = settings.Read(section, PartName(name, part), L"");
    if (piece.size() < 3 || piece.front() != L'|' || piece.back() != L'|') break;
    text.append(piece, 1, piece.size() - 2);
  }
  return Trim(text.substr(0, kLongestText));
}

void WriteCheck(Settings& settings, const Setting& setting, bool on) {
  settings.Write(setting, on ? L"1" : L"0");
}

void WriteFlag(Settings& settings, const Setting& setting, bool on) {
  settings.Write(setting, on ? L"True" : L"False");
}

}  // namespace varnel
