#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "base/letters.h"
#include "base/text.h"
#include "tests/support/cases.h"
#include "widgets/notes/spelling/packed_words.h"
#include "widgets/notes/spelling/spell_rules.h"
#include "widgets/notes/spelling/word_distance.h"
#include "widgets/notes/spelling/word_list.h"

namespace varnel {
namespace {

using Words = std::vector<std::wstring>;

// The rules once more, one after the other and without any haste.
class PlainModel {
 public:
  void Add(const std::wstring& word) {
    const auto first = static_cast<char32_t>(word[0]);
    buckets_[Code(word)].push_back({word, FoldCase(word), CapitalOf(first) == first});
  }

  static std::wstring Code(const std::wstring& word) {
    std::wstring code = L"000000";
    std::size_t at = 0;
    for (std::size_t i = 0; i < word.size() && i < 6; ++i) {
      const wchar_t small = static_cast<wchar_t>(FoldCase(static_cast<char32_t>(word[i])));
      const Words kinds = {L"bfpv", L"cgjqsxz", L"dt", L"l", L"mn", L"r"};
      for (std::size_t digit = 0; digit < kinds.size(); ++digit) {
        if (kinds[digit].find(small) != std::wstring::npos) code[at++] = wchar_t(L'1' + digit);
      }
    }
    return code;
  }

  bool Knows(std::wstring word, const SpellOptions& options) const {
    word = Trim(word);
    if (word.empty()) return false;
    if (options.numbers && word.find_first_of(L"123456789") != std::wstring::npos) return true;
    if (options.capitals && word[0] >= L'A' && word[0] <= L'Z') return true;
    std::erase(word, L',');
    std::erase(word, L'.');
    if (options.characters) {
      for (const wchar_t one : word) {
        if ((one >= 33 && one <= 64 && one != 39 && one != 44 && one != 46) || one > 122)
          return true;
      }
    }
    return Looks(word);
  }

  Words Alike(const std::wstring& given) const {
    const std::wstring small = FoldCase(Trim(given));
    std::wstring clean = small;
    std::erase(clean, L',');
    std::erase(clean, L'.');
    Words alike;
    const auto bucket = buckets_.find(Code(clean));
    if (bucket == buckets_.end()) return alike;
    for (const Entry& entry : bucket->second) {
      if (entry.small.substr(0, 2) == small.substr(0, 2)) alike.push_back(entry.word);
    }
    return alike;
  }

 private:
  struct Entry {
    std::wstring word;
    std::wstring small;
    bool exact;
  };

  // Walks the bucket; the options do not matter here, so the last answer is kept.
  bool Looks(const std::wstring& word) const {
    if (word == last_word_) return last_answer_;
    last_word_ = word;
    last_answer_ = false;
    const std::wstring small = FoldCase(word);
    const auto bucket = buckets_.find(Code(word));
    if (bucket == buckets_.end()) return false;
    for (const Entry& entry : bucket->second) {
      if (entry.exact ? entry.word == word : entry.small == small) return last_answer_ = true;
    }
    return false;
  }

  std::map<std::wstring, std::vector<Entry>> buckets_;
  mutable std::wstring last_word_;
  mutable bool last_answer_ = false;
};

class Invented {
 public:
  int Below(int count) { return std::uniform_int_distribution<>(0, count - 1)(random_); }
  wchar_t One(std::wstring_view of) { return of[std::size_t(Below(int(of.size())))]; }

  std::wstring Word() {
    std::wstring word;
    for (int i = 0, syllables = 1 + Below(4); i < syllables; ++i) {
      word += One(L"bcdfghjklmnpqrstvwxz");
      word += One(L"aeiouyé");
      if (Below(3) == 0) word += One(L"lmnrsk");
    }
    if (Below(6) == 0) word[0] = wchar_t(CapitalOf(char32_t(word[0])));
    if (Below(20) == 0) word.insert(word.size() / 2, 1, One(L"'-ßÉ"));
    return word;
  }

  std::wstring Damaged(std::wstring word) {
    for (int i = 0, times = 1 + Below(2); i < times; ++i) {
      const auto at = std::size_t(Below(int(word.size())));
      switch (Below(7)) {
        case 0:
          word.erase(at, 1);
          break;
        case 1:
          word.insert(at, 1, One(L"etaoinshrdlu"));
          break;
        case 2:
          word[at] = One(L"etaoinshrdluüÄ");
          break;
        case 3:
          std::swap(word[at], word[at / 2]);
          break;
        case 4:
          word.insert(at, 1, One(L"019_.,-'€ "));
          break;
        case 5:
          word[at] = wchar_t(CapitalOf(char32_t(word[at])));
          break;
        default:
          word[at] = wchar_t(FoldCase(char32_t(word[at])));
      }
      if (word.empty()) word = L"a";
    }
    return word;
  }

 private:
  std::mt19937 random_{7};
};

TEST(SpellRules, AgreeWithThePlainRulesUnderAllOptions) {
  Invented invented;
  PlainModel model;
  std::string bytes;
  Words words;
  for (int i = 0; i < 100'000; ++i) {
    words.push_back(invented.Word());
    bytes += Utf8FromWide(words.back()) + (i % 3 == 0 ? "\n" : "\r\n");
    if (i % 2 == 0) model.Add(words.back());
  }
  // Every second word is in the list.
  std::string half;
  for (std::size_t i = 0; i < words.size(); i += 2) half += Utf8FromWide(words[i]) + "\r\n";
  const WordList list(half);
  ASSERT_EQ(list.count(), words.size() / 2);
  ASSERT_EQ(WordList(bytes).count(), words.size());
  for (int i = 0; i < 5000; ++i) words.push_back(invented.Damaged(words[std::size_t(i) * 7]));
  int known = 0;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::wstring& word = words[i];
    ASSERT_EQ(PhoneticCode(word), PlainModel::Code(word)) << Utf8FromWide(word);
    for (int bits = 0; bits < 8; ++bits) {
      const SpellOptions options{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0};
      const bool knows = model.Knows(word, options);
      known += knows ? 1 : 0;
      ASSERT_EQ(IsKnown(word, options, list), knows) << Utf8FromWide(word) << " " << bits;
    }
    if (i < 100'000 && i % 200 != 0) continue;
    Words alike;
    for (const std::uint32_t index : AlikeWords(word, list)) alike.push_back(list.Word(index));
    ASSERT_EQ(alike, model.Alike(word)) << Utf8FromWide(word);
  }
  EXPECT_GT(known, 8 * 50'000);
  EXPECT_LT(known, 8 * 104'000);
}

TEST(SpellRules, HoldForTheNamedCases) {
  EXPECT_EQ(PhoneticCode(L"kite"), L"300000");
  EXPECT_EQ(PhoneticKey(L"kite"), PhoneticKey(L"ite"));
  EXPECT_EQ(PhoneticCode(L"BbSsk1r"), L"112200");
  const WordList list("Paris\r\ntable\r\ndon't\r\n'tis\r\nétude\r\nwwwfoo\r\n");
  const SpellOptions none{false, false, false};
  const test::Cases<std::wstring, SpellOptions, bool> cases = {
      {L"Paris", none, true},
      {L"paris", none, false},
      {L"PARIS", none, false},
      {L"Table", none, true},
      {L"TABLE", none, true},
      {L"  table ", none, true},
      {L"tab,le.", none, true},
      {L"www.foo", none, true},
      {L"DON'T", none, true},
      {L"'TIS", none, false},
      {L"ÉTUDE", none, true},
      {L"", none, false},
      {L" ,. ", none, false},
      {L"a10", {true, false, false}, true},
      {L"a0", {true, false, false}, false},
      {L"Xyzzy", {false, true, false}, true},
      {L"Äxyz", {false, true, false}, false},
      {L"co-op", {false, false, true}, true},
      {L"co_op", {false, false, true}, false},
      {L"co'op", {false, false, true}, false},
      {L"naïf", {false, false, true}, true},
  };
  for (const auto& [word, options, expected] : cases) {
    EXPECT_EQ(IsKnown(word, options, list), expected) << Utf8FromWide(word);
  }
}

// The optimal string alignment distance over the whole matrix.
int PlainDistance(const std::wstring& a, const std::wstring& b) {
  std::vector<std::vector<int>> d(a.size() + 1, std::vector<int>(b.size() + 1));
  for (std::size_t i = 0; i <= a.size(); ++i) {
    for (std::size_t j = 0; j <= b.size(); ++j) {
      if (i == 0 || j == 0) {
        d[i][j] = int(i + j);
        continue;
      }
      d[i][j] =
          std::min({d[i - 1][j] + 1, d[i][j - 1] + 1, d[i - 1][j - 1] + int(a[i - 1] != b[j - 1])});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
        d[i][j] = std::min(d[i][j], d[i - 2][j - 2] + 1);
      }
    }
  }
  return d[a.size()][b.size()];
}

TEST(SpellSuggestions, FurtherOnesAreAllThatTwoChangesMake) {
  Invented invented;
  std::string bytes;
  for (int i = 0; i < 3000; ++i) bytes += Utf8FromWide(invented.Word()) + "\n";
  const WordList list(bytes);
  std::size_t found = 0;
  for (std::size_t i = 0; i < 150; ++i) {
    const std::wstring word = FoldCase(invented.Damaged(list.Word(i * 20)));
    std::vector<std::uint32_t> near = NearestWords(word, list, list.count());
    int before = 0;
    for (const std::uint32_t index : near) {
      const bool possessive = list.Word(index).ends_with(L"'s");
      const int distance = PlainDistance(word, FoldCase(list.Word(index)));
      EXPECT_TRUE(possessive || distance >= before);
      if (!possessive) before = distance;
    }
    found += near.size();
    std::ranges::sort(near);
    std::vector<std::uint32_t> expected;
    for (std::uint32_t index = 0; index < list.count(); ++index) {
      if (PlainDistance(word, FoldCase(list.Word(index))) <= kMostChanges)
        expected.push_back(index);
    }
    EXPECT_EQ(near, expected) << Utf8FromWide(word);
  }
  EXPECT_GT(found, 150u);
}

TEST(SpellSuggestions, ComeInTheirOrderWithTheWordsCapital) {
  const WordList list(
      "table\r\ntabel's\r\ntables\r\ntablet\r\nTabby\r\ncable\r\nthe\r\nten\r\ndon't\r\n");
  const test::Cases<std::wstring, Words, std::wstring> cases = {
      {L"tabel", {L"table", L"tabel's", L"tablet", L"cable", L"tables", L"Tabby"}, L"table"},
      {L"Tabel", {L"table", L"tabel's", L"Tablet", L"Cable", L"Tables", L"Tabby"}, L"Table"},
      {L"teh", {L"the", L"ten"}, L"the"},
      {L"TEH", {L"THE", L"TEN"}, L"THE"},
      {L"tabbi", {L"Tabby", L"table"}, L"Tabby"},
      {L"dont", {L"don't"}, L"don't"},
      {L"zzzzzzz", {}, L""},
      {std::wstring(50'000, L't'), {}, L""},
  };
  for (const auto& [word, words, proposed] : cases) {
    const Suggestions found = SuggestionsFor(word, list);
    EXPECT_EQ(found.proposed, proposed) << Utf8FromWide(word.substr(0, 20));
    Words sorted = found.words;
    Words expected = words;
    std::ranges::sort(sorted);
    std::ranges::sort(expected);
    EXPECT_EQ(sorted, expected) << Utf8FromWide(word.substr(0, 20));
  }
  EXPECT_EQ(SuggestionsFor(L"tabel", list).words.front(), L"table");
  EXPECT_EQ(TakeCapital(L"don't", L"Dnt\x2019t"), L"Don\x2019t");
  EXPECT_EQ(TakeCapital(L"a", L"I"), L"A");
}

TEST(WordLists, ReadEveryKindOfFile) {
  const std::string long_line(65, 'a');
  const test::Cases<std::string, Words> cases = {
      {"", {}},
      {"one", {L"one"}},
      {"one\rtwo\n\r\n\nthree\r\n", {L"one", L"two", L"three"}},
      {"\xEF\xBB\xBF"
       "caf\xC3\xA9\n",
       {L"café"}},
      {"caf\xE9\r\n\x9Cuvre\r\n", {L"café", L"œuvre"}},
      {"good\xC3\xA9\ngood\xC3\xBC\nbad\xE9\n", {L"goodé", L"goodü"}},
      {long_line + "\n" + long_line.substr(1) + "\n", {std::wstring(64, L'a')}},
      {std::string("no\0t\nto\tb\n\x7F\nok\n", 14), {L"ok"}},
      {"\xFF\xFE"
       "a\x01\n\x81\n",
       {}},
      {"a b\n c\n", {L"a b", L" c"}},
  };
  for (const auto& [bytes, words] : cases) {
    const WordList list(bytes);
    Words read;
    for (std::size_t i = 0; i < list.count(); ++i) read.push_back(list.Word(i));
    EXPECT_EQ(read, words) << bytes;
    for (const std::wstring& word : words) EXPECT_TRUE(list.Holds(word));
    EXPECT_FALSE(list.Holds(L"zebra"));
  }
  std::string many;
  for (std::size_t i = 0; i < kMostListWords + 5; ++i) many += std::to_string(i) + "\n";
  const WordList list(many);
  EXPECT_EQ(list.count(), kMostListWords);
  EXPECT_TRUE(list.Holds(L"999999"));
  EXPECT_FALSE(list.Holds(L"1000000"));
}

TEST(PackedWords, GiveEachListAndRefuseWhatIsNoList) {
  const std::string packed =
      "\xC0"
      "colo\n\x44"
      "r\n\x84"
      "ur\n\xC3"
      "t\n";
  EXPECT_EQ(UnpackWordList(packed, WordListKind::kAmerican), "colo\r\ncolor\r\ncolt\r\n");
  EXPECT_EQ(UnpackWordList(packed, WordListKind::kBritish), "colo\r\ncolour\r\ncolt\r\n");
  EXPECT_EQ(UnpackWordList("", WordListKind::kBritish), "");
  for (const std::string_view bad : {"\xC0",
                                     "\xC1"
                                     "a\n",
                                     "\xC0"
                                     "a\n\xC2"
                                     "b\n",
                                     "\xC0no end"}) {
    EXPECT_EQ(UnpackWordList(bad, WordListKind::kBritish), std::nullopt);
  }
}

}  // namespace
}  // namespace varnel
