// Bytes of the code pages that RTF files are written in.
#pragma once

#include <string>
#include <string_view>

namespace varnel {

inline constexpr int kUtf8CodePage = 65001;
// The stand-in page of symbol fonts: byte B is U+F000 + B.
inline constexpr int kSymbolCodePage = 42;

// What the platform knows of code pages with two bytes a character (932, 936, 949, 950, 1361).
class DoubleByteReader {
 public:
  virtual ~DoubleByteReader() = default;
  // The character of `pair`, one or two bytes; empty when they mean nothing.
  virtual std::wstring Character(int page, std::string_view pair) const = 0;
};

// How many bytes the character has that begins with `first`: 1 to 4. 1 for every single-byte page.
int CharacterLength(int page, unsigned char first);

// The character that `bytes`, as many as CharacterLength told or fewer, stand for in UTF-16 units:
// U+FFFD when they mean nothing. An unknown page is read as 1252. `pairs` may be null: then every
// character of two bytes means nothing.
std::wstring DecodeCharacter(int page, std::string_view bytes, const DoubleByteReader* pairs);

// The code page of a font's charset; `system_page` for charset 1 and those unknown.
int CodePageOfCharset(int charset, int system_page);

}  // namespace varnel
