// A dictionary: a list of words, looked up in any case and by how they sound.
#pragma once

#include <cstdint>
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

// How many codes there are: six digits from 0 to 6.
inline constexpr std::uint32_t kPhoneticCodes = 7 * 7 * 7 * 7 * 7 * 7;

// The code of a word, as its six digits: how its first six characters sound. B, f, p and v give 1;
// c, g, j, q, s, x and z 2; d and t 3; l 4; m and n 5; r 6; everything else, k too, gives no digit.
// Places without one are 0 at the end.
std::wstring PhoneticCode(std::wstring_view word);
// The same code as a number below kPhoneticCodes.
std::uint32_t PhoneticKey(std::wstring_view word);

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

  // True when the list has the word. Its own words that are exact must be equal, case included;
  // the others may differ from it in case.
  bool Holds(std::wstring_view word) const;

  // The indices of the words with a code (below kPhoneticCodes), in the order of the list. They are
  // sorted when first asked for.
  std::span<const std::uint32_t> Bucket(std::uint32_t key) const;

  // Adds a word at the end. False when it is empty, too long, not fit for a line, or the list full.
  bool Add(std::wstring_view word);

 private:
  struct Entry {
    std::uint32_t at = 0;      // in bytes_
    std::uint16_t length = 0;  // bytes
    bool exact = false;
  };
  struct Slot {
    std::uint32_t hash = 0;
    std::uint32_t entry = 0;  // index + 1; 0: free
  };

  void AddLine(std::size_t at, std::size_t length);
  void MakeTable();
  void Insert(std::uint32_t index);
  bool Matches(std::uint32_t index, std::string_view word, std::string_view folded) const;

  std::string bytes_;  // UTF-8
  WordEncoding encoding_ = WordEncoding::kUtf8;
  std::vector<Entry> entries_;
  std::vector<Slot> table_;                    // a power of two, at most three quarters full
  mutable std::vector<std::uint32_t> sorted_;  // entries by code
  mutable std::vector<std::uint32_t> starts_;  // of each code in sorted_
};

// The text of bytes in Windows-1252 as UTF-8; the five bytes without a meaning become U+FFFD.
std::string Utf8FromWindows1252(std::string_view bytes);
// One word in the encoding of a list; empty when it cannot be written in that.
std::string EncodeWord(std::wstring_view word, WordEncoding encoding);

}  // namespace varnel
