// Settings as every room sees them: texts in named sections, always readable.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace varnel {

// One setting, declared once and shared by its readers and writers.
struct Setting {
  std::wstring_view section;   // form name + "\Details" or "\Window", list prefix + ...
  std::wstring_view name;      // the value's name
  std::wstring_view fallback;  // what an absent or unreadable value reads as
};

class Settings {
 public:
  virtual ~Settings() = default;

  // The stored text without outer blanks, or `fallback` (trimmed) when nothing usable is stored.
  virtual std::wstring Read(std::wstring_view section, std::wstring_view name,
                            std::wstring_view fallback) const = 0;
  // Stores `value`; a failure is silent and leaves what was stored before.
  virtual void Write(std::wstring_view section, std::wstring_view name,
                     std::wstring_view value) = 0;

  std::wstring Read(const Setting& setting) const;
  void Write(const Setting& setting, std::wstring_view value);
};

// A whole number within `low` to `high`; anything else stored reads as the setting's fallback.
long long ReadNumber(const Settings& settings, const Setting& setting, long long low,
                     long long high);

// A check box: true only when the leading number of the stored text is 1.
bool ReadCheck(const Settings& settings, const Setting& setting);

// A boolean: "True"/"False" in any case or a number (zero is false); anything else reads as the
// setting's fallback.
bool ReadFlag(const Settings& settings, const Setting& setting);

// The longest text that one value can hold, in UTF-16 units; a longer one reads as the default.
inline constexpr std::size_t kLongestSetting = 254;

// A text of up to 30,000 units, without outer blanks. What one value cannot hold goes on in the
// values `name` + " part 2", " part 3" and so on, each between two "|" that keep its blanks; an
// empty one ends the text. A longer text loses its end.
void WriteLongText(Settings& settings, std::wstring_view section, std::wstring_view name,
                   std::wstring_view value);
std::wstring ReadLongText(const Settings& settings, std::wstring_view section,
                          std::wstring_view name);

void WriteCheck(Settings& settings, const Setting& setting, bool on);  // "1" or "0"
void WriteFlag(Settings& settings, const Setting& setting, bool on);   // "True" or "False"

}  // namespace varnel
