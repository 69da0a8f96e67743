// Timings of the notes' engines: spelling, replacing and formatted texts of a megabyte.
#include <cstdint>
#include <cstring>
#include <random>

#include "base/text.h"
#include "bench/micro.h"
#include "bench/notes_sample.h"
#include "widgets/notes/find/find_text.h"
#include "widgets/notes/rtf/rtf_edits.h"
#include "widgets/notes/rtf/rtf_reader.h"
#include "widgets/notes/rtf/rtf_writer.h"
#include "widgets/notes/spelling/spell_rules.h"
#include "widgets/notes/spelling/word_list.h"
#include "widgets/notes/text/text_words.h"

namespace varnel::bench {
namespace {

constexpr std::size_t kWords = 170'000;
constexpr std::size_t kUsual = 5'000;  // of which most of a text is made

// A made-up dictionary, as large as a real one and with words as long.
std::string MadeUpList() {
  std::mt19937 random(11);
  std::string list;
  for (std::size_t i = 0; i < kWords; ++i) {
    for (auto syllables = 2 + random() % 4; syllables > 0; --syllables) {
      list += "bcdfghklmnprstvw"[random() % 16];
      list += "aeiouy"[random() % 6];
    }
    list += "\r\n";
  }
  return list;
}

// Words of the list, most of them usual ones, every hundredth damaged.
std::string MadeUpText() {
  const WordList list(MadeUpList());
  std::mt19937 random(12);
  std::string text;
  while (text.size() < kMegabyte) {
    const std::size_t index = random() % (random() % 10 == 0 ? kWords : kUsual);
    std::string word(list.Bytes(index));
    if (random() % 100 == 0) word[word.size() / 2] = 'x';
    text += word + (random() % 12 == 0 ? ", " : " ");
  }
  return text;
}

// The least that a look-up can cost: an open table over the list's bytes, and words in the same
// single bytes, lower case.
class BareTable {
 public:
  explicit BareTable(const std::string& list) : list_(list) {
    std::size_t size = 1 << 19;
    at_.assign(size, 0);
    length_.assign(size, 0);
    for (std::size_t at = 0; at < list.size();) {
      const std::size_t end = list.find('\r', at);
      std::size_t slot = Hash(&list[at], end - at) & (size - 1);
      while (length_[slot] != 0) slot = (slot + 1) & (size - 1);
      at_[slot] = static_cast<std::uint32_t>(at);
      length_[slot] = static_cast<unsigned char>(end - at);
      at = end + 2;
    }
  }
  bool Holds(const char* word, std::size_t length) const {
    const std::size_t mask = at_.size() - 1;
    std::size_t slot = Hash(word, length) & mask;
    for (; length_[slot] != 0; slot = (slot + 1) & mask) {
      if (length_[slot] == length && std::memcmp(&list_[at_[slot]], word, length) == 0) return true;
    }
    return false;
  }

 private:
  static std::uint32_t Hash(const char* word, std::size_t length) {
    std::uint32_t hash = 2166136261U;
    for (std::size_t i = 0; i < length; ++i) {
      hash = (hash ^ static_cast<unsigned char>(word[i])) * 16777619U;
    }
    return hash ^ hash >> 15;
  }

  const std::string& list_;
  std::vector<std::uint32_t> at_;
  std::vector<unsigned char> length_;
};

// Both count the words of the same text that they do not know.
double SpellingAgainstBareTable() {
  const std::string bytes = MadeUpList();
  const std::string text = MadeUpText();
  const BareTable table(bytes);
  const auto bare = [&] {
    std::size_t unknown = 0;
    for (std::size_t at = 0; at < text.size();) {
      if (text[at] < 'a' || text[at] > 'z') {
        ++at;
        continue;
      }
      std::size_t end = at;
      while (end < text.size() && text[end] >= 'a' && text[end] <= 'z') ++end;
      unknown += table.Holds(&text[at], end - at) ? 0 : 1;
      at = end;
    }
    Keep(unknown);
  };
  const WordList list(bytes);
  const std::wstring wide = WideFromUtf8(text);
  const std::wstring_view view = wide;
  const auto checked = [&] {
    std::size_t unknown = 0;
    for (auto word = NextWord(view, 0); word; word = NextWord(view, word->end)) {
      const auto found = view.substr(word->begin, word->end - word->begin);
      unknown += IsKnown(found, {}, list) ? 0 : 1;
    }
    Keep(unknown);
  };
  return Ratio(checked, bare, 15);
}

double LoadList() {
  const std::string bytes = MadeUpList();
  return 1e3 * SecondsFor([&] { Keep(WordList(bytes).count()); });
}

double Suggest() {
  const WordList list(MadeUpList());
  SuggestionsFor(L"first", list);  // sorts the list by sound
  std::size_t i = 0;
  return 1e3 * SecondsFor([&] {
           std::wstring word = list.Word(i++ * 7919 % kWords);
           word.insert(word.size() / 2, 1, L'x');
           Keep(SuggestionsFor(word, list).words.size());
         });
}

constexpr std::wstring_view kHay =
    L"A hundred letters hold one needle, so that there are about ten thousand of them in a "
    L"megabyte "
    L"here. ";

double ReplaceTenThousand() {
  std::wstring text;
  while (text.size() < kMegabyte) text += kHay;
  const TextFinder finder(L"Needle", 0);
  return 1e3 * SecondsFor([&] {
           const Replacements all = ReplaceAll(text, finder, L"needles and pins", 0);
           Keep(WithEdits(text, all.edits).size());
         });
}

double ReadFormatted() {
  const std::string rtf = MadeUpRtf();
  const double seconds = SecondsFor([&] { Keep(ReadRtf(rtf).document.text.size()); });
  return static_cast<double>(rtf.size()) / 1e6 / seconds;
}

double WriteFormatted() {
  const RtfDocument document = ReadRtf(MadeUpRtf()).document;
  const auto size = static_cast<double>(WriteRtf(document).size());
  return size / 1e6 / SecondsFor([&] { Keep(WriteRtf(document).size()); });
}

// What replacing adds to putting a formatted note into the editor again, against reading it once:
// each needle has a bold letter.
double ReplaceInFormatted() {
  std::string hay = Utf8FromWide(kHay);
  hay.replace(hay.find("needle"), 6, "ne{\\b e}dle");
  std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Tahoma;}}\\f0\\fs24 ";
  for (std::size_t i = 0; i < kMegabyte / kHay.size(); ++i) rtf += hay + (i % 4 ? "" : "\\par ");
  rtf += "}";
  const TextFinder finder(L"Needle", 0);
  const double read = SecondsFor([&] { Keep(ReadRtf(rtf).document.text.size()); });
  const double replaced = SecondsFor([&] {
    RtfDocument document = ReadRtf(rtf).document;
    const Replacements all = ReplaceAll(document.text, finder, L"needles and pins", 0);
    ApplyEdits(document, all.edits);
    Keep(WriteRtf(document).size());
  });
  return replaced / read;
}

}  // namespace

std::vector<Probe> NotesProbes() {
  return {{"spelling of 1 MB, against bare look-ups", "x", SpellingAgainstBareTable},
          {"dictionary of 170,000 words read", "ms", LoadList},
          {"suggestions for a word", "ms", Suggest},
          {"10,000 hits in 1 MB replaced", "ms", ReplaceTenThousand},
          {"the same in formatted text, against reading it", "x", ReplaceInFormatted},
          {"formatted text read", "MB/s", ReadFormatted},
          {"formatted text written", "MB/s", WriteFormatted}};
}

}  // namespace varnel::bench
