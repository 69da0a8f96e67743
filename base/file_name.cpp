#include "base/file_name.h"

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

// U+061C, U+200E, U+200F, U+202A to U+202E and U+2066 to U+2069 steer the direction of text and can
// make a name read as another one; U+200B, U+2028, U+2029, U+2060 and U+FEFF cannot be seen.
bool IsHiddenOrDirection(wchar_t unit) {
  return unit == 0x061C || unit == 0x200B || unit == 0x200E || unit == 0x200F ||
         (unit >= 0x2028 && unit <= 0x202E) || unit == 0x2060 ||
         (unit >= 0x2066 && unit <= 0x2069) || unit == 0xFEFF;
}

bool IsForbidden(wchar_t unit) {
  constexpr std::wstring_view kPathSigns = L"<>:\"/\\|?*";
  const bool control = unit < 0x20 || (unit >= 0x7F && unit < 0xA0);
  return control || kPathSigns.find(unit) != std::wstring_view::npos || IsHiddenOrDirection(unit);
}

bool IsPortDigit(wchar_t unit) {
  return IsDigit(unit) || unit == 0x00B9 || unit == 0x00B2 || unit == 0x00B3;
}

bool IsDevice(std::wstring_view name) {
  constexpr std::array<std::wstring_view, 7> kDevices = {L"CON",    L"PRN",     L"AUX",   L"NUL",
                                                         L"CONIN$", L"CONOUT$", L"CLOCK$"};
  const std::wstring stem = Trim(name.substr(0, name.find(L'.')));
  if (stem.size() == 4 && IsPortDigit(stem[3])) {
    const auto port = std::wstring_view(stem).substr(0, 3);
    return EqualsIgnoreCase(port, L"COM") || EqualsIgnoreCase(port, L"LPT");
  }
  return std::any_of(kDevices.begin(), kDevices.end(),
                     [&](std::wstring_view device) { return EqualsIgnoreCase(stem, device); });
}

bool IsWellFormed(std::wstring_view text) {
  return WideFromUtf8(Utf8FromWide(text)) == text;
}

}  // namespace

std::optional<std::wstring> SafeFileName(std::wstring_view user_text) {
  const std::size_t first = user_text.find_first_not_of(L' ');
  const std::size_t last = user_text.find_last_not_of(L" .");
  if (last == std::wstring_view::npos || last - first >= kLongestFileName) return std::nullopt;
  const std::wstring_view name = user_text.substr(first, last - first + 1);
  if (std::any_of(name.begin(), name.end(), IsForbidden)) return std::nullopt;
  if (IsDevice(name) || !IsWellFormed(name)) return std::nullopt;
  return std::wstring(name);
}

}  // namespace varnel
