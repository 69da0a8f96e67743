#include "base/text.h"

#include <algorithm>
#include <cstdint>

namespace varnel {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

wchar_t LowerAscii(wchar_t unit) {
  return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit - L'A' + L'a') : unit;
}

void AppendWide(std::wstring& out, char32_t point) {
  if constexpr (sizeof(wchar_t) == 2) {
    if (point >= 0x10000) {
      out.push_back(static_cast<wchar_t>(0xD800 + ((point - 0x10000) >> 10)));
      out.push_back(static_cast<wchar_t>(0xDC00 + ((point - 0x10000) & 0x3FF)));
      return;
    }
  }
  out.push_back(static_cast<wchar_t>(point));
}

void AppendUtf8(std::string& out, char32_t point) {
  const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
  if (point < 0x80) {
    put(point);
  } else if (point < 0x800) {
    put(0xC0 | point >> 6);
    put(0x80 | (point & 0x3F));
  } else if (point < 0x10000) {
    put(0xE0 | point >> 12);
    put(0x80 | (point >> 6 & 0x3F));
    put(0x80 | (point & 0x3F));
  } else {
    put(0xF0 | point >> 18);
    put(0x80 | (point >> 12 & 0x3F));
    put(0x80 | (point >> 6 & 0x3F));
    put(0x80 | (point & 0x3F));
  }
}

// Reads one code point from `bytes` at `at` and moves `at` past it (past one byte when malformed).
char32_t TakeUtf8(std::string_view bytes, std::size_t& at) {
  const auto byte = [&](std::size_t index) { return static_cast<std::uint8_t>(bytes[index]); };
  const std::uint8_t first = byte(at++);
  if (first < 0x80) return first;
  const int more = first >= 0xF0 && first < 0xF5 ? 3 : first >= 0xE0 ? 2 : first >= 0xC2 ? 1 : 0;
  if (more == 0 || first >= 0xF5 || at + more > bytes.size()) return kReplacement;
  char32_t point = first & (0x3F >> more);
  for (int i = 0; i < more; ++i) {
    if ((byte(at + i) & 0xC0) != 0x80) return kReplacement;
    point = point << 6 | (byte(at + i) & 0x3F);
  }
  constexpr char32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
  if (point < kLeast[more] || point > 0x10FFFF || (point >= 0xD800 && point < 0xE000)) {
    return kReplacement;
  }
  at += more;
  return point;
}

char32_t TakeWide(std::wstring_view text, std::size_t& at) {
  const auto unit = static_cast<char32_t>(text[at++]);
  if (unit >= 0xD800 && unit < 0xDC00 && at < text.size()) {
    const auto low = static_cast<char32_t>(text[at]);
    if (low >= 0xDC00 && low < 0xE000) {
      ++at;
      return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }
  }
  return (unit >= 0xD800 && unit < 0xE000) || unit > 0x10FFFF ? kReplacement : unit;
}

}  // namespace

std::wstring Trim(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(L' ');
  if (first == std::wstring_view::npos) return {};
  return std::wstring(text.substr(first, text.find_last_not_of(L' ') - first + 1));
}

bool EqualsIgnoreCase(std::wstring_view left, std::wstring_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](wchar_t a, wchar_t b) { return LowerAscii(a) == LowerAscii(b); });
}

bool EndsWithIgnoreCase(std::wstring_view text, std::wstring_view ending) {
  return text.size() >= ending.size() &&
         EqualsIgnoreCase(text.substr(text.size() - ending.size()), ending);
}

std::wstring WideFromUtf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  for (std::size_t at = 0; at < bytes.size();) AppendWide(text, TakeUtf8(bytes, at));
  return text;
}

std::string Utf8FromWide(std::wstring_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) AppendUtf8(bytes, TakeWide(text, at));
  return bytes;
}

}  // namespace varnel
