// The text of an INI file in memory: values are looked up and set in place, all else stays as it
// is.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace varnel {

// Reads as the platform's profile functions do: section and key names without regard to the case of
// A to Z, the first section of a name and the first key in it win, lines that start with ";" are
// comments, blanks and tabs around names and values and then one pair of quotes around a value do
// not count. A line without "=" is no key. Lines end with CR, LF or both.
//
// UTF-16 (little endian, with a byte-order mark), UTF-8 and, where the bytes are not valid UTF-8,
// Latin-1 are read and written back as they were. The one change of encoding: a value that is not
// plain ASCII turns a text of single bytes into UTF-16 with a mark, the only form in which the
// profile functions read every character.
class IniText {
 public:
  // What the profile functions hand out of a longer value (a buffer of 400 with its final zero).
  static constexpr std::size_t kLongestValue = 399;

  IniText() = default;
  // Nothing when `bytes` hold a zero character: that is no text and is best left alone.
  static std::optional<IniText> FromBytes(std::string_view bytes);
  std::string Bytes() const;

  // The value, at most kLongestValue units of it; empty when there is none.
  std::wstring Value(std::wstring_view section, std::wstring_view key) const;

  // Puts `value`, its control characters made blanks, in place of the key's value; where the key is
  // missing, it is added as the last of its section, and a missing section at the end of the text.
  // `section` must not hold "]", `key` not "=", neither a line end.
  void SetValue(std::wstring_view section, std::wstring_view key, std::wstring_view value);

 private:
  enum class Encoding { kUtf8, kLatin1, kUtf16 };
  struct Span {
    std::size_t begin = 0;
    std::size_t end = 0;
  };
  struct Place {
    std::optional<Span> value;             // what follows the "="
    std::optional<std::size_t> insertion;  // where the section's next key goes
  };

  Place Find(std::wstring_view section, std::wstring_view key) const;
  std::size_t Start() const;  // after the byte-order mark
  // The line that starts at `at`, without its end, and the start of the next one.
  Span LineAt(std::size_t at) const;
  std::size_t AfterLineEnd(std::size_t at) const;
  void UseUtf16();

  std::wstring text_;  // with the byte-order mark, if there is one
  Encoding encoding_ = Encoding::kUtf8;
};

}  // namespace varnel
