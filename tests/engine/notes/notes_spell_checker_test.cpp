#include "widgets/notes/spelling/spell_checker.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "base/text.h"
#include "tests/support/cases.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_settings.h"

namespace varnel {
namespace {

using Words = std::vector<std::wstring>;

const std::wstring kFolder = L"C:\\Varnel\\notes\\";
const std::wstring kUs = kFolder + L"wordsus.dct";
const std::wstring kUk = kFolder + L"wordsuk.dct";
const std::wstring kBackup = kFolder + L"Words backup.dic";
// cat, color (US), colour (UK), don't, the
constexpr std::string_view kPacked =
    "\xC0"
    "cat\n\x41"
    "olor\n\x84"
    "ur\n\xC0"
    "don't\n\xC0"
    "the\n";

Words WordsOf(std::wstring_view text) {
  Words words;
  for (auto word = NextWord(text, 0); word; word = NextWord(text, word->end)) {
    words.emplace_back(text.substr(word->begin, word->end - word->begin));
  }
  return words;
}

TEST(TextWords, AreWhatStandsBetweenBlanksWithoutSignsAround) {
  const test::Cases<std::wstring, Words> cases = {
      {L"", {}},
      {L" \t\r\n", {}},
      {L"one two\tthree\rfour\nfive", {L"one", L"two", L"three", L"four", L"five"}},
      {L"word! (word) \"word\" 'word' word,word. word...",
       {L"word", L"word", L"word", L"word", L"word,word", L"word"}},
      {L"don't dogs' co-op _x_ C++ a.b", {L"don't", L"dogs", L"co-op", L"x", L"C", L"a.b"}},
      {L"e.g. i.e E.G, (i.e.) e.gg -  \x2013 ...", {L"e.gg"}},
      {L"12 0 $5 50%", {L"12", L"0", L"5", L"50"}},
      {L"été Жук 漢字 שלום", {L"été", L"Жук", L"漢字", L"שלום"}},
      {L"cafe\x0301 \x0301 \x2764\xFE0F x\xFFFCy\x00A0z", {L"cafe\x0301", L"x", L"y", L"z"}},
      {L"\xD83D\xDE00 \xD83D\xDE00hi\xD83D\xDE00 \xD801\xDC00 \xD83D", {L"hi", L"\xD801\xDC00"}},
      {std::wstring(50'000, L'a'), {std::wstring(50'000, L'a')}},
      {std::wstring(50'000, L'!'), {}},
  };
  for (const auto& [text, words] : cases) {
    EXPECT_EQ(WordsOf(text), words) << Utf8FromWide(text.substr(0, 40));
  }
}

// The words that begin with "x" are wrong.
bool PlainlyRight(std::wstring_view word) {
  return word.front() != L'x';
}

Words Rest(SpellRun& run, const std::wstring& text) {
  Words found;
  while (const auto word = run.Next(text, PlainlyRight)) {
    found.push_back(text.substr(word->begin, word->end - word->begin));
  }
  return found;
}

TEST(SpellRuns, StartAtTheCaretsWordAndWrapOnce) {
  const std::wstring text = L"x1 ok x2 (x3) ok x4";
  const test::Cases<std::size_t, Words> cases = {
      {0, {L"x1", L"x2", L"x3", L"x4"}},  {2, {L"x1", L"x2", L"x3", L"x4"}},
      {3, {L"x2", L"x3", L"x4", L"x1"}},  {11, {L"x3", L"x4", L"x1", L"x2"}},
      {18, {L"x4", L"x1", L"x2", L"x3"}}, {19, {L"x1", L"x2", L"x3", L"x4"}},
      {99, {L"x1", L"x2", L"x3", L"x4"}},
  };
  for (const auto& [caret, found] : cases) {
    SpellRun run;
    run.Start(text, caret);
    EXPECT_EQ(Rest(run, text), found) << caret;
    EXPECT_FALSE(run.running());
    EXPECT_EQ(run.Next(text, PlainlyRight), std::nullopt);
  }
}

// An edit, told to the run.
void Edit(SpellRun& run, std::wstring& text, std::size_t at, std::size_t removed,
          std::wstring_view by) {
  text.replace(at, removed, by);
  run.TextEdited(at, removed, by.size());
}

TEST(SpellRuns, KeepTheirPlaceWhileTheTextIsEdited) {
  std::wstring text = L"ok x1 x2 x3";
  SpellRun run;
  run.Start(text, 0);
  run.Next(text, PlainlyRight);
  Edit(run, text, 0, 2, L"xa xb");  // before the place: not checked any more
  EXPECT_EQ(run.current(), (TextRange{6, 8}));
  EXPECT_EQ(run.Next(text, PlainlyRight), (TextRange{9, 11}));
  Edit(run, text, 10, 1, L"yy");  // the word itself: checked again
  EXPECT_EQ(run.current(), std::nullopt);
  EXPECT_EQ(run.Next(text, PlainlyRight), (TextRange{9, 12}));
  text.replace(9, 3, L"x x");
  run.WordReplaced(3);  // by the check: not checked
  EXPECT_EQ(run.Next(text, PlainlyRight), (TextRange{13, 15}));
  Edit(run, text, 15, 0, L" x9");  // at the end: still to come
  EXPECT_EQ(Rest(run, text), (Words{L"x3", L"x9"}));
}

TEST(SpellRuns, EndUnderAnyEdits) {
  std::mt19937 random(5);
  const auto below = [&random](std::size_t count) {
    return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
  };
  for (int round = 0; round < 300; ++round) {
    std::wstring text;
    for (std::size_t i = 0; i < 60; ++i) text += L"xa ,-\xD83D\xDE00"[below(7)];
    SpellRun run;
    run.Start(text, below(70));
    int steps = 0;
    while (const auto word = run.Next(text, PlainlyRight)) {
      ASSERT_LE(word->end, text.size());
      ASSERT_EQ(text[word->begin], L'x');
      ASSERT_LT(++steps, 500);
      if (steps > 40) continue;
      const std::size_t at = below(text.size() + 1);
      const std::size_t removed = std::min(below(4), text.size() - at);
      if (steps % 3 == 0) {
        text.replace(word->begin, word->end - word->begin, L"xx x");
        run.WordReplaced(4);
      } else {
        Edit(run, text, at, removed, std::wstring(below(4), L'x'));
      }
    }
  }
}

struct SpellChecks : ::testing::Test {
  test::MemoryFiles files{kFolder};
  test::MemorySettings settings;
  int unpacked = 0;

  clsNOTsp Make() {
    return clsNOTsp(files, settings, kFolder, [this] {
      ++unpacked;
      return kPacked;
    });
  }
  static Words Unknown(clsNOTsp& checker, std::wstring_view text) {
    Words found;
    for (;;) {
      const SpellStep step = checker.SpellChecker(text, 0);
      if (step.kind != SpellStep::Kind::kUnknownWord) return found;
      found.push_back(step.word);
    }
  }
};

TEST_F(SpellChecks, WriteMissingDictionariesOnlyAndLoadWhenAsked) {
  files.files[kUk] = "colour\n";
  clsNOTsp checker = Make();
  EXPECT_EQ(unpacked, 0);
  EXPECT_TRUE(checker.CheckFile());
  EXPECT_EQ(files.files[kUs], "cat\r\ncolor\r\ndon't\r\nthe\r\n");
  EXPECT_EQ(files.files[kUk], "colour\n");
  EXPECT_EQ(unpacked, 1);
  EXPECT_EQ(Unknown(checker, L"the color colour"), (Words{L"colour"}));
  settings.Write(kSpellDictionary, kBritishDictionary);
  EXPECT_EQ(Unknown(checker, L"the color colour"), (Words{L"the", L"color"}));
  WriteCheck(settings, kSpellLoadFirst, true);
  files.files.erase(kUk);
  Make();
  EXPECT_EQ(files.files[kUk], "cat\r\ncolour\r\ndon't\r\nthe\r\n");
  settings.Write(kSpellDictionary, L"..\\other.dct");
  EXPECT_EQ(Unknown(checker, L"the color colour"), (Words{L"colour"}));
}

TEST_F(SpellChecks, SayThatThereIsNoDictionary) {
  files.fail_writes = true;
  clsNOTsp checker = Make();
  EXPECT_EQ(checker.SpellChecker(L"text", 0).kind, SpellStep::Kind::kNoDictionary);
  for (const std::string& bad :
       {std::string(), std::string("\0\1\2", 3), std::string("\r\n\r\n")}) {
    files.Plant(kUs, bad);
    EXPECT_EQ(checker.SpellChecker(L"text", 0).kind, SpellStep::Kind::kNoDictionary);
    EXPECT_EQ(checker.WordAdd(L"text"), WordAddResult::kUnsaved);
  }
  files.Plant(kUs, "text\n");
  files.locked.insert(kUs);
  EXPECT_EQ(checker.SpellChecker(L"text", 0).kind, SpellStep::Kind::kNoDictionary);
  files.locked.clear();
  EXPECT_EQ(checker.SpellChecker(L"text", 0).kind, SpellStep::Kind::kFinished);
}

TEST_F(SpellChecks, KeepAddedWordsInTheDictionaryAndBesideIt) {
  files.files[kUs] = "the\ncaf\xE9";  // Windows-1252, its last line open
  clsNOTsp checker = Make();
  EXPECT_EQ(checker.WordAdd(L"the"), WordAddResult::kThere);
  EXPECT_EQ(checker.WordAdd(L" , "), WordAddResult::kNotAWord);
  EXPECT_EQ(checker.WordAdd(std::wstring(65, L'a')), WordAddResult::kNotAWord);
  EXPECT_EQ(checker.WordAdd(L"naïf's"), WordAddResult::kAdded);
  EXPECT_EQ(checker.WordAdd(L"a.b"), WordAddResult::kAdded);
  EXPECT_EQ(checker.WordAdd(L"łoś"), WordAddResult::kUnsaved);  // not in that encoding
  EXPECT_EQ(files.files[kUs],
            "the\ncaf\xE9\r\nna\xEF"
            "f's\r\nab\r\n");
  EXPECT_EQ(files.files[kBackup], Utf8FromWide(L"naïf's\r\nab\r\nłoś\r\n"));
  WriteCheck(settings, kSpellCharacters, false);
  const std::wstring text = L"Łoś naïf\x2019s a.b café zzz";
  EXPECT_EQ(Unknown(checker, text), (Words{L"zzz"}));
  EXPECT_EQ(checker.SuggestionsOf(L"naifs").proposed, L"naïf's");

  // Another list in its place has them too, and the next program.
  files.files[kUs] = "the\r\n";
  clsNOTsp next = Make();
  EXPECT_EQ(Unknown(next, text), (Words{L"café", L"zzz"}));
  EXPECT_EQ(files.files[kUs], Utf8FromWide(L"the\r\nnaïf's\r\nab\r\nłoś\r\n"));

  EXPECT_FALSE(next.OwnWordRemove(L"the"));
  EXPECT_TRUE(next.OwnWordRemove(L"ab"));
  EXPECT_EQ(files.files[kUs], Utf8FromWide(L"the\r\nnaïf's\r\nłoś\r\n"));
  EXPECT_EQ(next.own_words(), (Words{L"naïf's", L"łoś"}));
  EXPECT_EQ(Unknown(next, L"the ab"), (Words{L"ab"}));
  // A backup that another program holds is completed later, and loses nothing.
  files.locked.insert(kBackup);
  clsNOTsp third = Make();
  EXPECT_EQ(third.WordAdd(L"held"), WordAddResult::kUnsaved);
  files.locked.clear();
  EXPECT_TRUE(third.DatabaseSave());
  EXPECT_EQ(third.own_words(), (Words{L"naïf's", L"łoś", L"held"}));
  EXPECT_TRUE(third.OwnWordRemove(L"held"));

  files.fail_writes = true;
  EXPECT_FALSE(next.OwnWordRemove(L"łoś"));
  EXPECT_EQ(next.WordAdd(L"later"), WordAddResult::kUnsaved);
  EXPECT_FALSE(next.DatabaseSave());
  files.fail_writes = false;
  EXPECT_TRUE(next.DatabaseSave());
  EXPECT_EQ(files.files[kBackup], Utf8FromWide(L"naïf's\r\nłoś\r\nlater\r\n"));
}

TEST_F(SpellChecks, AnOwnWordThatAnotherListHasStaysInThatList) {
  clsNOTsp checker = Make();
  EXPECT_EQ(checker.WordAdd(L"colour"), WordAddResult::kAdded);
  settings.Write(kSpellDictionary, kBritishDictionary);
  EXPECT_TRUE(checker.DatabaseLoadCheck());
  EXPECT_TRUE(checker.OwnWordRemove(L"colour"));
  EXPECT_TRUE(checker.IsRight(L"colour"));
  EXPECT_EQ(files.files[kUs], "cat\r\ncolor\r\ndon't\r\nthe\r\n");
  EXPECT_EQ(files.files[kUk], "cat\r\ncolour\r\ndon't\r\nthe\r\n");
}

TEST_F(SpellChecks, ChangeAndIgnore) {
  clsNOTsp checker = Make();
  std::wstring text = L"teh cat, Teh (kat) teh kat kot";
  EXPECT_EQ(checker.WordChng(text, L"the"), std::nullopt);
  SpellStep step = checker.SpellChecker(text, 10);
  EXPECT_EQ(step.word, L"kat");
  EXPECT_EQ(step.range, (TextRange{14, 17}));
  checker.WordIgnore(L"kat", IgnoreScope::kCheck);
  step = checker.SpellChecker(text, 0);
  EXPECT_EQ(step.word, L"teh");
  EXPECT_EQ(step.suggestions.proposed, L"the");
  const std::vector<TextEdit> edits = checker.WordChngAll(text, L"then the");
  EXPECT_EQ(edits, (std::vector<TextEdit>{
                       {0, 3, L"then the"}, {9, 3, L"Then the"}, {19, 3, L"then the"}}));
  text = WithEdits(text, edits);
  EXPECT_EQ(text, L"then the cat, Then the (kat) then the kat kot");
  step = checker.SpellChecker(text, 0);
  EXPECT_EQ(step.word, L"kot");
  const auto edit = checker.WordChng(text, L"cat");
  ASSERT_TRUE(edit);
  text = WithEdits(text, {&*edit, 1});
  EXPECT_EQ(text, L"then the cat, Then the (kat) then the kat cat");
  EXPECT_EQ(Unknown(checker, text),
            (Words{L"then"}));  // capitals count as right; wraps to the start
  EXPECT_FALSE(checker.checking());

  EXPECT_EQ(Unknown(checker, L"kat 0 00"), (Words{L"kat"}));
  checker.NoteShown(L"one");
  checker.WordIgnore(L"kat", IgnoreScope::kNote);
  EXPECT_EQ(Unknown(checker, L"kat KAT"), Words{});
  checker.NoteShown(L"two");
  EXPECT_EQ(Unknown(checker, L"kat"), (Words{L"kat"}));

  // What was once corrected is offered first, by the next program too.
  clsNOTsp next = Make();
  EXPECT_TRUE(next.DatabaseLoadCheck());
  EXPECT_EQ(next.SuggestionsOf(L"Kot").proposed, L"Cat");
  EXPECT_EQ(next.SuggestionsOf(L"TEH").words.front(), L"THEN THE");
}

}  // namespace
}  // namespace varnel
