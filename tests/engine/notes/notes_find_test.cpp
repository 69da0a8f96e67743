#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "base/text.h"
#include "tests/support/cases.h"
#include "tests/support/memory_settings.h"
#include "widgets/notes/find/find_panel.h"
#include "widgets/notes/find/find_text.h"

namespace varnel {
namespace {

using Hits = std::vector<std::size_t>;

TEST(Find, FindsByTheOptionsInEveryScript) {
  EXPECT_EQ(FindOptionsWord(true, true), 6u);
  EXPECT_EQ(FindOptionsWord(false, true), 4u);
  const test::Cases<std::wstring, std::wstring, unsigned, Hits> cases = {
      {L"cat Cat CAT", L"cat", 0, {0, 4, 8}},
      {L"cat Cat CAT", L"Cat", 4, {4}},
      {L"aaaa", L"aa", 0, {0, 2}},
      {L"", L"a", 0, {}},
      {L"abc", L"", 0, {}},
      {L"Ärger ärger \x0416uk", L"\x00E4RGER", 0, {0, 6}},
      {L"\x0416\x0443\x043A \x0436\x0423\x043A", L"\x0436\x0443\x043A", 0, {0, 4}},
      {L"Σίσυφος", L"ΦΟΣ", 0, {4}},
      {L"cat concat cat_ cat2 (cat) c\x0061t", L"cat", 2, {0, 22, 27}},
      {L"\x00E9tat tat\x00E9 tat", L"tat", 2, {10}},
      {L"cafe\x0301 cafe", L"cafe", 2, {6}},
      {L"a.b a. .b", L".", 2, {1, 5, 7}},
      {L"\xD83D\xDE00\xD83D\xDE01", L"\xD83D", 0, {}},
      {L"\xD83D\xDE00\xD83D\xDE01", L"\xDE00", 0, {}},
      {L"\xD83D\xDE00\xD83D\xDE01", L"\xD83D\xDE01", 2, {2}},
      {L"\xD801\xDC00x \xD801\xDC28x", L"\xD801\xDC28", 0, {0, 4}},
      {L"one\rtwo\xFFFCthree", L"two", 2, {4}},
  };
  for (const auto& [text, wanted, options, hits] : cases) {
    const TextFinder finder(wanted, options);
    EXPECT_EQ(AllHits(text, finder), hits) << Utf8FromWide(text) << " / " << Utf8FromWide(wanted);
  }
  EXPECT_EQ(HitNumber({3, 7, 9}, 7), 2u);
  EXPECT_EQ(HitNumber({3, 7, 9}, 8), 0u);
}

TEST(Find, GoesOnAndStartsAgainAfterTheLast) {
  const std::wstring text = L"cat cat";
  const TextFinder finder(L"cat", 0);
  FindSearch search;
  search.Prepare(finder, L"cat", 0);
  EXPECT_EQ(search.FindNext(text, finder), (TextRange{0, 3}));
  search.Prepare(finder, L"cat", 99);  // the same again: goes on
  EXPECT_EQ(search.FindNext(text, finder), (TextRange{4, 7}));
  EXPECT_EQ(search.FindPrevious(text, finder, 4), (TextRange{0, 3}));
  EXPECT_EQ(search.FindNext(text, finder), (TextRange{4, 7}));
  EXPECT_EQ(search.FindNext(text, finder), std::nullopt);
  EXPECT_EQ(search.position(), 0u);
  EXPECT_EQ(search.FindNext(text, finder), (TextRange{0, 3}));
  const TextFinder exact(L"cat", kFindMatchCase);
  search.Prepare(exact, L"cat", 2);  // other options: from the caret
  EXPECT_EQ(search.FindNext(text, exact), (TextRange{4, 7}));
  search.TextEdited(0, 4, 0);
  EXPECT_EQ(search.position(), 3u);
}

TEST(Find, ReplacesTheSelectionOrTheNextHit) {
  const TextFinder any(L"cat", 0);
  const TextFinder exact(L"cat", kFindMatchCase);
  FindSearch search;
  auto done = search.Replace(L"cat Cat", {4, 7}, any, L"x");
  EXPECT_FALSE(done.found);
  EXPECT_EQ(done.edit, (TextEdit{4, 3, L"x"}));
  done = search.Replace(L"Cat cat", {0, 3}, exact, L"x");
  EXPECT_EQ(done.found, (TextRange{4, 7}));
  EXPECT_EQ(done.edit, (TextEdit{4, 3, L"x"}));
  EXPECT_EQ(search.position(), 5u);
  done = search.Replace(L"Cat x", {9, 99}, exact, L"x");
  EXPECT_FALSE(done.found || done.edit);
  EXPECT_EQ(search.position(), 0u);
  // One press after the other ends, though each puts a new hit in.
  std::wstring text = L"a a";
  const TextFinder letter(L"a", 0);
  FindSearch twice;
  for (int i = 0; i < 2; ++i) {
    done = twice.Replace(text, {0, 0}, letter, L"aa");
    ASSERT_TRUE(done.edit);
    text = WithEdits(text, {&*done.edit, 1});
  }
  EXPECT_EQ(text, L"aa aa");
  EXPECT_FALSE(twice.Replace(text, {0, 0}, letter, L"aa").edit);
}

TEST(ReplaceAll, FollowsItsLoopAndEnds) {
  const test::Cases<std::wstring, std::wstring, std::wstring, std::size_t, std::wstring,
                    std::size_t>
      cases = {
          {L"cat cat", L"cat", L"category", 0, L"category category", 2},
          {L"cat cat", L"cat", L"category", 3, L"cat category", 1},
          {L"aaa", L"a", L"aa", 0, L"aaaaaa", 3},
          {L"catcat", L"cat", L"", 0, L"cat", 1},  // the place is beyond the second one
          {L"abbb", L"ab", L"xxa", 0, L"xxxxxxa", 3},
          {L"none", L"cat", L"x", 0, L"none", 0},
          {L"cat", L"cat", L"x", 99, L"cat", 0},
      };
  for (const auto& [text, wanted, by, from, result, count] : cases) {
    const Replacements all = ReplaceAll(text, TextFinder(wanted, 0), by, from);
    EXPECT_EQ(WithEdits(text, all.edits), result);
    EXPECT_EQ(all.count, count) << Utf8FromWide(text);
  }
  FindSearch search;
  search.StartAt(4);
  EXPECT_EQ(search.ReplaceEvery(L"cat cat", TextFinder(L"cat", 0), L"x").count, 1u);
  EXPECT_EQ(search.position(), 0u);

  const std::wstring many(2000, L'a');
  std::size_t asked = 0;
  const auto stopped = ReplaceAll(many, TextFinder(L"a", 0), L"bc", 0, [&asked](std::size_t done) {
    asked = done;
    return done < 600;
  });
  EXPECT_TRUE(stopped.stopped && stopped.edits.empty() && asked >= 600);
  EXPECT_TRUE(ReplaceAll(many, TextFinder(L"a", 0), std::wstring(100'000, L'b'), 0).stopped);
}

// The loop as it is told, with a new text for each replacement.
std::wstring PlainReplaceAll(std::wstring text, const TextFinder& finder, const std::wstring& by,
                             std::size_t place, std::size_t& count) {
  std::size_t put_in = 0;
  std::size_t put_in_end = 0;
  count = 0;
  for (;;) {
    auto at = finder.Next(TextFinder::Text(text, finder), place);
    while (at && count > 0 && *at >= put_in && *at + finder.length() <= put_in_end) {
      at = finder.Next(TextFinder::Text(text, finder), *at + 1);
    }
    if (!at) return text;
    text.replace(*at, finder.length(), by);
    put_in = *at;
    put_in_end = *at + by.size();
    place = *at + finder.length();
    ++count;
  }
}

TEST(ReplaceAll, AgreesWithTheLoopAsItIsTold) {
  std::mt19937 random(3);
  const auto some = [&random](std::size_t most) {
    std::wstring text;
    for (std::size_t i = random() % (most + 1); i > 0; --i)
      text += L"aabA .\xD83D\xDE00"[random() % 8];
    return text;
  };
  std::size_t replaced = 0;
  for (int round = 0; round < 20'000; ++round) {
    const std::wstring text = some(24);
    const std::wstring by = some(5);
    const TextFinder finder(some(3), FindOptionsWord(round % 2 == 0, round % 3 == 0));
    const std::size_t from = random() % 4 == 0 ? random() % 8 : 0;
    std::size_t count = 0;
    const std::wstring expected = PlainReplaceAll(text, finder, by, from, count);
    const Replacements all = ReplaceAll(text, finder, by, from);
    ASSERT_EQ(WithEdits(text, all.edits), expected) << round;
    ASSERT_EQ(all.count, count) << round;
    replaced += count;
  }
  EXPECT_GT(replaced, 5000u);
}

TEST(FindHistories, KeepTheirOrderOverARestart) {
  FindHistory history;
  for (const std::wstring_view text : {L"one", L"Two", L"one", L"", L"two", L" three "}) {
    HistoryAdd(history, text);
  }
  HistoryAdd(history, history.entries.back());
  EXPECT_EQ(history.entries, (std::vector<std::wstring>{L"Two", L" three ", L"two", L"one"}));
  history.edit_text = L" in the box";
  test::MemorySettings settings;
  HistorySave(history, kFindHistory, settings);
  const auto stored = [&settings](std::wstring_view name) {
    return settings.Read(L"frmNOTwg\\Find\\Details", name, L"-");
  };
  EXPECT_EQ(settings.Read(L"frmNOTwg\\Find\\Items Total", L"List Total", L""), L"4");
  EXPECT_EQ(stored(L"List 0") + stored(L"List 1") + stored(L"List 4"), L"in the boxTwoone");
  EXPECT_EQ(stored(L"List 5"), L"-");
  const FindHistory loaded = HistoryLoad(kFindHistory, settings);
  EXPECT_EQ(loaded.entries, (std::vector<std::wstring>{L"Two", L"three", L"two", L"one"}));
  EXPECT_EQ(loaded.edit_text, L"in the box");
  EXPECT_TRUE(HistoryLoad(kReplaceHistory, settings).entries.empty());
  for (const std::wstring_view total : {L"-3", L"99999999999", L"x"}) {
    settings.Write(L"frmNOTwg\\Find\\Items Total", L"List Total", total);
    EXPECT_LE(HistoryLoad(kFindHistory, settings).entries.size(), 4u);
  }
}

}  // namespace
}  // namespace varnel
