#include "widgets/notes/text/utf16_units.h"

namespace varnel {

std::wstring Utf16Units(std::wstring_view text) {
  std::wstring units;
  units.reserve(text.size());
  for (const wchar_t unit : text) {
    const auto point = static_cast<char32_t>(unit);
    if (point >= 0x10000) {
      units.push_back(static_cast<wchar_t>(0xD800 + ((point - 0x10000) >> 10)));
      units.push_back(static_cast<wchar_t>(0xDC00 + ((point - 0x10000) & 0x3FF)));
    } else {
      units.push_back(unit);
    }
  }
  return units;
}

}  // namespace varnel
