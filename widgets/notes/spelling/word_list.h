// A dictionary: a list of words, looked up in any case and by how they sound.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace varnel {

// What a list may hold at most; longer lines and further words are passed over.
inline constexpr std::size_t kLongestListWord = 64;  // characters
inline constexpr std::size_t kMostListWords = 1'000'000;
inline constexpr std::size_t kLargestWordList = 64 * 1024 * 1024;  // bytes of a file worth reading

enum class WordEncoding { kUtf8, kWindows1252 };

// The code of a word, as its six digits: how its first six characters sound. B, f, p and v give 1;
// c, g, j, q, s, x and z 2; d and t 3; l 4; m and n 5; r 6; everything else, k too, gives no digit.
// Places without one are 0 at the end.
std::wstring PhoneticCode(std::wstring_view word);
// The same code as a number, by which words are sorted.
std::uint32_t PhoneticKey(std::wstring_view word);

// A bit for each letter of a folded text: its code modulo 32. Apostrophes have none.
inline std::uint32_t LetterBit(char32_t folded) {
  return folded == U'\'' ? 0 : 1U << (folded & 31U);
}
std::uint32_t LettersOf(std::wstring_view folded);

// The words keep the order of the file. Looking up neither allocates nor walks buckets where a word
// is plain ASCII: a table over the bytes of the list answers.
class WordList {
 public:
  WordList() = default;
  // Reads the bytes of a file: a word a line, ended by CR, LF or both, in UTF-8 or Windows-1252,
  // whichever fits better. Lines with control characters or bytes that mean nothing are passed
  // over.
  explicit WordList(std::string_view bytes);

  std::size_t count() const { return entries_.size(); }
  // Of the file; a list of ASCII alone counts as UTF-8.
  WordEncoding encoding() const { return encoding_; }

  // A word in UTF-8, index < count().
  std::string_view Bytes(std::size_t index) const;
  std::wstring Word(std::size_t index) const;
  // True for a name or a word that begins with no letter: it is only ever written as it stands.
  bool IsExact(std::size_t index) const { return entries_[index].exact; }

  // Which letters a word has (LettersOf its folded form).
  std::uint32_t Letters(std::size_t index) const { return entries_[index].letters; }
  // True for a word of small ASCII letters and signs, which is its own folded form.
  bool IsPlain(std::size_t index) const { return entries_[index].plain; }

  // True when the list has the word. Its own words that are exact must be equal, case included;
  // the others may differ from it in case.
  bool Holds(std::wstring_view word) const;

  // A word by its code.
  struct Coded {
    std::uint32_t key = 0;  // PhoneticKey
    std::uint32_t index = 0;
    auto operator<=>(const Coded&) const = default;
  };
  // The words with a code, in the order of the list. All are sorted by code when first asked for.
  std::span<const Coded> Bucket(std::uint32_t key) const;

  // Adds a word at the end. False when it is empty, too long, not fit for a line, or the list full.
  bool Add(std::wstring_view word);

 private:
  struct Entry {
    std::uint32_t at = 0;  // in bytes_
    std::uint32_t letters = 0;
    std::uint16_t length = 0;  // bytes
    bool exact = false;
    bool plain = false;
  };
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t entry = 0;  // index + 1; 0: free
  };

  std::optional<std::uint32_t> AddLine(std::size_t at, std::size_t length);
  void MakeTable(std::span<const std::uint32_t> hashes);
  void Insert(std::uint32_t index, std::uint32_t hash);
  bool Matches(std::uint32_t index, std::string_view word, std::string_view folded) const;

  std::string bytes_;  // UTF-8
  WordEncoding encoding_ = WordEncoding::kUtf8;
  std::vector<Entry> entries_;
  std::vector<Slot> table_;            // a power of two, at most three quarters full
  mutable std::vector<Coded> sorted_;  // empty until asked for
};

// The text of bytes in Windows-1252 as UTF-8; the five bytes without a meaning become U+FFFD.
std::string Utf8FromWindows1252(std::string_view bytes);
// One word in the encoding of a list; empty when it cannot be written in that.
std::string EncodeWord(std::wstring_view word, WordEncoding encoding);

}  // namespace varnel
