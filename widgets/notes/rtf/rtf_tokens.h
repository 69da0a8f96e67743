// RTF cut into tokens.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace varnel {

enum class RtfTokenKind : std::uint8_t {
  kEnd,
  kOpen,    // {
  kClose,   // }
  kWord,    // \name or \nameN
  kSymbol,  // \ and one character that is no letter: symbol
  kHex,     // \'hh: symbol is the byte
  kText,    // other bytes, without line ends: text
  kBinary   // \binN and its N bytes: text holds them
};

struct RtfToken {
  RtfTokenKind kind = RtfTokenKind::kEnd;
  std::size_t begin = 0;  // of all that belongs to the token, the blank after a word too
  std::size_t end = 0;
  std::string_view text;  // a word's name, or the bytes
  unsigned char symbol = 0;
  bool has_value = false;
  std::int32_t value = 0;  // limited to what 32 bits hold
};

// Reads tokens one after the other. Never fails: what is cut short at the end is taken as far as it
// goes, a \' without two hex digits is a symbol. `rtf` must outlive the tokens.
class RtfTokens {
 public:
  explicit RtfTokens(std::string_view rtf) : rtf_(rtf) {}

  // Gives kEnd for ever once all is read.
  RtfToken Next();
  // Tells whether a \bin named more bytes than there are.
  bool binary_was_cut() const { return binary_was_cut_; }

 private:
  RtfToken Escape();
  void TakeWord(RtfToken& token);
  bool Has(std::size_t at) const { return at < rtf_.size(); }

  std::string_view rtf_;
  std::size_t at_ = 0;
  bool binary_was_cut_ = false;
};

// The value of a hex digit, -1 for any other character.
constexpr int HexDigit(char digit) {
  if (digit >= '0' && digit <= '9') return digit - '0';
  if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
  if (digit >= 'A' && digit <= 'F') return digit - 'A' + 10;
  return -1;
}

}  // namespace varnel
