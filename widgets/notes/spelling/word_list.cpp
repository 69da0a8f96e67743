#include "widgets/notes/spelling/word_list.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "base/letters.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kMostUtf8Bytes = 4;  // of one character

bool IsAscii(std::string_view bytes) {
  return std::ranges::all_of(bytes,
                             [](char one) { return static_cast<unsigned char>(one) < 0x80; });
}

// True when most bytes beyond ASCII are sequences of UTF-8.
bool LooksLikeUtf8(std::string_view bytes) {
  std::size_t good = 0;
  std::size_t bad = 0;
  for (std::size_t at = 0; at < bytes.size();) {
    // Eight bytes of ASCII at a time.
    std::uint64_t eight = 0x8080808080808080U;
    if (at + sizeof(eight) <= bytes.size()) std::memcpy(&eight, &bytes[at], sizeof(eight));
    if ((eight & 0x8080808080808080U) == 0) {
      at += sizeof(eight);
      continue;
    }
    const auto byte = static_cast<unsigned char>(bytes[at++]);
    if (byte < 0x80) continue;
    const std::size_t more = byte >= 0xF0 ? 3 : byte >= 0xE0 ? 2 : byte >= 0xC2 ? 1 : 0;
    std::size_t follow = 0;
    while (follow < more && at + follow < bytes.size() && (bytes[at + follow] & 0xC0) == 0x80) {
      ++follow;
    }
    (more > 0 && follow == more ? good : bad) += 1;
    at += follow;
  }
  return good >= bad;
}

constexpr char FoldedAscii(char one) {
  return one >= 'A' && one <= 'Z' ? static_cast<char>(one + ('a' - 'A')) : one;
}

std::string Folded(std::string_view word) {
  return Utf8FromWide(FoldCase(WideFromUtf8(word)));
}

// FNV-1a (Fowler, Noll, Vo; 32 bits), its upper half mixed into the lower.
class Hash {
 public:
  void Take(char byte) { value_ = (value_ ^ static_cast<unsigned char>(byte)) * 16777619U; }
  std::uint32_t value() const { return value_ ^ value_ >> 15; }

 private:
  std::uint32_t value_ = 2166136261U;
};

std::uint32_t HashOf(std::string_view folded) {
  Hash hash;
  for (const char one : folded) hash.Take(one);
  return hash.value();
}

bool EqualsFolded(std::string_view word, std::string_view folded) {
  if (IsAscii(word)) {
    return std::ranges::equal(word, folded, {}, FoldedAscii);
  }
  return Folded(word) == folded;
}

// What one pass over a line of UTF-8 tells.
struct LineFacts {
  bool is_word = false;  // neither too long nor with control characters or undecodable bytes
  bool plain = true;
  std::uint32_t hash = 0;  // of the folded form
  std::uint32_t letters = 0;
};

LineFacts FactsOfWide(std::string_view line) {
  const std::wstring word = WideFromUtf8(line);
  LineFacts facts;
  facts.is_word = word.size() <= kLongestListWord && word.find(L'\xFFFD') == std::wstring::npos;
  facts.plain = false;
  const std::wstring folded = FoldCase(word);
  facts.hash = HashOf(Utf8FromWide(folded));
  facts.letters = LettersOf(folded);
  return facts;
}

LineFacts FactsOf(std::string_view line) {
  LineFacts facts;
  Hash hash;
  unsigned char beyond_ascii = 0;
  bool control = false;
  for (const char one : line) {
    const char small = FoldedAscii(one);
    hash.Take(small);
    beyond_ascii |= static_cast<unsigned char>(one) & 0x80;
    control |= static_cast<unsigned char>(one) < 0x20 || one == 0x7F;
    facts.plain &= small == one;
    facts.letters |= LetterBit(static_cast<unsigned char>(small));
  }
  if (line.empty() || control || line.size() > kLongestListWord * kMostUtf8Bytes) return facts;
  if (beyond_ascii != 0) return FactsOfWide(line);
  facts.is_word = line.size() <= kLongestListWord;
  facts.hash = hash.value();
  return facts;
}

// Whether a word is its own upper-case form in the first character.
bool BeginsExact(std::string_view word) {
  if (static_cast<unsigned char>(word.front()) < 0x80) {
    return word.front() < 'a' || word.front() > 'z';
  }
  return !HasCapital(CharacterAt(WideFromUtf8(word), 0).point);
}

// The digits by which "a" to "z" are coded; 0: none.
constexpr std::string_view kDigits = "01230120020455012623010202";
static_assert(kDigits.size() == 26);

template <typename Unit>
std::array<unsigned char, 6> CodeDigits(std::basic_string_view<Unit> word) {
  std::array<unsigned char, 6> digits = {};
  std::size_t place = 0;
  for (const Unit unit : word.substr(0, digits.size())) {
    const Unit small = unit >= 'A' && unit <= 'Z' ? static_cast<Unit>(unit + ('a' - 'A')) : unit;
    if (small < 'a' || small > 'z') continue;
    const auto digit =
        static_cast<unsigned char>(kDigits[static_cast<std::size_t>(small - 'a')] - '0');
    if (digit != 0) digits[place++] = digit;
  }
  return digits;
}

template <typename Unit>
std::uint32_t KeyOf(std::basic_string_view<Unit> word) {
  std::uint32_t key = 0;
  for (const unsigned char digit : CodeDigits(word)) key = key * 7 + digit;
  return key;
}

}  // namespace

std::uint32_t LettersOf(std::wstring_view folded) {
  std::uint32_t letters = 0;
  for (const wchar_t unit : folded) letters |= LetterBit(static_cast<char32_t>(unit));
  return letters;
}

std::wstring PhoneticCode(std::wstring_view word) {
  std::wstring code;
  for (const unsigned char digit : CodeDigits(word)) {
    code.push_back(static_cast<wchar_t>(L'0' + digit));
  }
  return code;
}

std::uint32_t PhoneticKey(std::wstring_view word) {
  return KeyOf(word);
}

WordList::WordList(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) {
    bytes.remove_prefix(kByteOrderMark.size());
  } else if (!LooksLikeUtf8(bytes)) {
    encoding_ = WordEncoding::kWindows1252;
  }
  bytes = bytes.substr(0, kLargestWordList);
  bytes_ = encoding_ == WordEncoding::kUtf8 ? std::string(bytes) : Utf8FromWindows1252(bytes);
  entries_.reserve(bytes_.size() / 8);  // a little more than English words take
  std::vector<std::uint32_t> hashes;
  hashes.reserve(entries_.capacity());
  for (std::size_t at = 0; at < bytes_.size();) {
    std::size_t end = at;
    while (end < bytes_.size() && bytes_[end] != '\r' && bytes_[end] != '\n') ++end;
    if (const auto hash = AddLine(at, end - at)) hashes.push_back(*hash);
    at = end + 1;
  }
  MakeTable(hashes);
}

std::optional<std::uint32_t> WordList::AddLine(std::size_t at, std::size_t length) {
  if (length == 0 || entries_.size() >= kMostListWords) return std::nullopt;
  const std::string_view line = std::string_view(bytes_).substr(at, length);
  const LineFacts facts = FactsOf(line);
  if (!facts.is_word) return std::nullopt;
  entries_.push_back({static_cast<std::uint32_t>(at), facts.letters,
                      static_cast<std::uint16_t>(length), BeginsExact(line), facts.plain});
  return facts.hash;
}

// Makes the table anew, for all entries. Slots are fetched ahead, because each is somewhere else.
void WordList::MakeTable(std::span<const std::uint32_t> hashes) {
  std::size_t size = 16;
  while (size * 3 / 4 <= hashes.size()) size *= 2;
  table_.assign(size, {});
  constexpr std::size_t kAhead = 16;
  for (std::size_t i = 0; i < hashes.size(); ++i) {
    if (i + kAhead < hashes.size()) __builtin_prefetch(&table_[hashes[i + kAhead] & (size - 1)], 1);
    Insert(static_cast<std::uint32_t>(i), hashes[i]);
  }
}

void WordList::Insert(std::uint32_t index, std::uint32_t hash) {
  const std::size_t mask = table_.size() - 1;
  std::size_t slot = hash & mask;
  while (table_[slot].entry != 0) slot = (slot + 1) & mask;
  table_[slot] = {hash, index + 1};
}

std::string_view WordList::Bytes(std::size_t index) const {
  return std::string_view(bytes_).substr(entries_[index].at, entries_[index].length);
}

std::wstring WordList::Word(std::size_t index) const {
  return WideFromUtf8(Bytes(index));
}

bool WordList::Matches(std::uint32_t index, std::string_view word, std::string_view folded) const {
  if (IsExact(index)) return Bytes(index) == word;
  return IsPlain(index) ? Bytes(index) == folded : EqualsFolded(Bytes(index), folded);
}

bool WordList::Holds(std::wstring_view word) const {
  if (word.empty() || word.size() > kLongestListWord || table_.empty()) return false;
  std::array<char, kLongestListWord> plain;
  std::array<char, kLongestListWord> small;
  std::string wide_plain;
  std::string wide_small;
  std::string_view bytes;
  std::string_view folded;
  Hash hash;
  std::size_t length = 0;
  for (; length < word.size() && static_cast<char32_t>(word[length]) < 0x80; ++length) {
    plain[length] = static_cast<char>(word[length]);
    small[length] = FoldedAscii(plain[length]);
    hash.Take(small[length]);
  }
  std::uint32_t wanted = hash.value();
  if (length == word.size()) {
    bytes = {plain.data(), length};
    folded = {small.data(), length};
  } else {
    wide_plain = Utf8FromWide(word);
    wide_small = Utf8FromWide(FoldCase(word));
    bytes = wide_plain;
    folded = wide_small;
    wanted = HashOf(folded);
  }
  const std::size_t mask = table_.size() - 1;
  for (std::size_t at = wanted & mask; table_[at].entry != 0; at = (at + 1) & mask) {
    if (table_[at].hash == wanted && Matches(table_[at].entry - 1, bytes, folded)) return true;
  }
  return false;
}

std::span<const WordList::Coded> WordList::Bucket(std::uint32_t key) const {
  if (sorted_.empty()) {
    sorted_.reserve(entries_.size());
    for (std::uint32_t i = 0; i < entries_.size(); ++i) {
      const std::string_view word = Bytes(i);
      sorted_.push_back({IsAscii(word) ? KeyOf(word) : PhoneticKey(WideFromUtf8(word)), i});
    }
    std::ranges::sort(sorted_);
  }
  return {std::ranges::lower_bound(sorted_, key, {}, &Coded::key),
          std::ranges::upper_bound(sorted_, key, {}, &Coded::key)};
}

bool WordList::Add(std::wstring_view word) {
  const std::string bytes = Utf8FromWide(word);
  if (bytes.find_first_of("\r\n") != std::string::npos) return false;
  bytes_ += bytes;
  sorted_.clear();
  const auto hash = AddLine(bytes_.size() - bytes.size(), bytes.size());
  if (!hash) return false;
  if (table_.size() * 3 / 4 > entries_.size()) {
    Insert(static_cast<std::uint32_t>(entries_.size() - 1), *hash);
    return true;
  }
  std::vector<std::uint32_t> hashes;
  for (std::size_t i = 0; i < entries_.size(); ++i) hashes.push_back(FactsOf(Bytes(i)).hash);
  MakeTable(hashes);
  return true;
}

}  // namespace varnel
