// The encodings that word lists come in.
#include <algorithm>
#include <array>

#include "base/text.h"
#include "widgets/notes/spelling/word_list.h"

namespace varnel {
namespace {

constexpr char32_t kNothing = 0xFFFD;

// What the bytes 0x80 to 0x9F of Windows-1252 stand for; the others are as in Unicode.
constexpr std::array<char32_t, 32> kWindows1252 = {
    0x20AC,   kNothing, 0x201A, 0x0192, 0x201E, 0x2026,   0x2020, 0x2021,
    0x02C6,   0x2030,   0x0160, 0x2039, 0x0152, kNothing, 0x017D, kNothing,
    kNothing, 0x2018,   0x2019, 0x201C, 0x201D, 0x2022,   0x2013, 0x2014,
    0x02DC,   0x2122,   0x0161, 0x203A, 0x0153, kNothing, 0x017E, 0x0178};

}  // namespace

std::string Utf8FromWindows1252(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 16);
  for (const char one : bytes) {
    const auto byte = static_cast<unsigned char>(one);
    if (byte < 0x80) {
      text.push_back(one);
      continue;
    }
    const char32_t point = byte < 0xA0 ? kWindows1252[byte - 0x80] : byte;
    text += Utf8FromWide(std::wstring(1, static_cast<wchar_t>(point)));
  }
  return text;
}

std::string EncodeWord(std::wstring_view word, WordEncoding encoding) {
  if (encoding == WordEncoding::kUtf8) return Utf8FromWide(word);
  std::string bytes;
  for (const wchar_t unit : word) {
    const auto point = static_cast<char32_t>(unit);
    if (point < 0x80 || (point >= 0xA0 && point < 0x100)) {
      bytes.push_back(static_cast<char>(point));
      continue;
    }
    const auto found = std::ranges::find(kWindows1252, point);
    if (found == kWindows1252.end() || point == kNothing) return {};
    bytes.push_back(static_cast<char>(0x80 + (found - kWindows1252.begin())));
  }
  return bytes;
}

}  // namespace varnel
