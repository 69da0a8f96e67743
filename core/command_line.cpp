#include "core/command_line.h"

#include <algorithm>

#include "base/number_text.h"
#include "base/path.h"
#include "base/text.h"
#include "core/widget_index.h"

namespace varnel {
namespace {

bool IsKeyUnit(wchar_t unit) {
  return (unit >= L'A' && unit <= L'Z') || (unit >= L'a' && unit <= L'z') || IsDigit(unit) ||
         unit == L' ' || unit == L'-' || unit == L'_';
}

bool IsKeyName(std::wstring_view text) {
  constexpr std::size_t kLongestKey = 64;
  return !text.empty() && text.size() <= kLongestKey && std::ranges::all_of(text, IsKeyUnit);
}

}  // namespace

CommandLine ParseCommandLine(std::span<const std::wstring> words) {
  CommandLine line;
  for (std::size_t i = 0; i < words.size(); ++i) {
    // A switch is never the value of the one before it.
    const bool has_value = i + 1 < words.size() && !words[i + 1].starts_with(L'/');
    if (EqualsIgnoreCase(words[i], L"/tray")) {
      line.to_tray = true;
    } else if (EqualsIgnoreCase(words[i], L"/quit")) {
      line.quit = true;
    } else if (has_value && EqualsIgnoreCase(words[i], L"/show")) {
      if (const WidgetEntry* widget = WidgetTitled(words[++i])) line.show = widget->index;
    } else if (has_value && EqualsIgnoreCase(words[i], L"/settings")) {
      const std::wstring key = Trim(words[++i]);
      if (IsKeyName(key)) line.settings_title = key;
    } else if (has_value && EqualsIgnoreCase(words[i], L"/data")) {
      const std::wstring& folder = words[++i];
      if (IsAbsolutePath(folder)) line.program_folder = folder;
    }
  }
  return line;
}

}  // namespace varnel
