// What the find and spelling panels do, on a note that is a plain text.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/support/memory_files.h"
#include "tests/support/memory_settings.h"
#include "widgets/notes/find/find_desk.h"
#include "widgets/notes/spelling/spell_desk.h"

namespace varnel {
namespace {

using Words = std::vector<std::wstring>;

class PlainNote final : public EditedNote {
 public:
  std::wstring Units() const override { return text; }
  TextRange Selection() const override { return selection; }
  void Select(TextRange range) override {
    selection = {std::min(range.begin, text.size()), std::min(range.end, text.size())};
  }
  bool MakeEdits(std::span<const TextEdit> edits, const GoOn& go_on) override {
    if (refuses || (go_on && !go_on(50))) return false;
    text = WithEdits(text, edits);
    ++steps;
    return true;
  }
  std::wstring Selected() const {
    return text.substr(selection.begin, selection.end - selection.begin);
  }

  std::wstring text;
  TextRange selection;
  int steps = 0;
  bool refuses = false;
};

class Listener final : public NoteVoice {
 public:
  void Notice(const std::wstring& text) override { notice = text; }
  void Inform(const NotesMessage& message) override { said.emplace_back(message.text); }
  Words Said() { return std::exchange(said, {}); }

  std::wstring notice;
  Words said;
};

const std::wstring kFound(kAllFound.text);
const std::wstring kReplaced(kAllReplaced.text);

struct FindDesks : ::testing::Test {
  PlainNote note;
  Listener listener;
  FindDesk desk{note, listener};
  FindWishes cat{L"cat", L"dog"};
};

TEST_F(FindDesks, GoOnFromTheLastHitOrFromTheCaret) {
  note.text = L"cat, Cat, cat";
  EXPECT_TRUE(desk.FindNext(cat));
  EXPECT_EQ(note.selection, (TextRange{0, 3}));
  EXPECT_EQ(listener.notice, L"Found 1 of 3");
  EXPECT_TRUE(desk.FindNext(cat) && desk.FindNext(cat));
  EXPECT_EQ(listener.notice, L"Found 3 of 3");
  EXPECT_TRUE(desk.may_replace() && listener.Said().empty());
  EXPECT_FALSE(desk.FindNext(cat));
  EXPECT_EQ(listener.Said(), Words{kFound});
  EXPECT_FALSE(desk.may_replace());
  EXPECT_TRUE(desk.FindNext(cat));
  EXPECT_EQ(listener.notice, L"From the start again: 1 of 3");
  note.selection = {8, 8};
  EXPECT_TRUE(desk.FindNext(cat));
  EXPECT_EQ(note.selection, (TextRange{10, 13}));
  EXPECT_TRUE(desk.FindPrevious(cat));
  EXPECT_EQ(note.selection, (TextRange{5, 8}));
  EXPECT_TRUE(desk.FindPrevious(cat));
  EXPECT_FALSE(desk.FindPrevious(cat));
  EXPECT_TRUE(desk.FindPrevious(cat));
  EXPECT_EQ(listener.notice, L"From the end again: 3 of 3");
  cat.match_case = true;
  note.selection = {3, 3};
  EXPECT_TRUE(desk.FindNext(cat));
  EXPECT_EQ(listener.notice, L"Found 2 of 2");
  EXPECT_FALSE(desk.FindNext({}));
  EXPECT_EQ(desk.searched().entries, Words{L"cat"});
}

TEST_F(FindDesks, ReplaceTheSelectedHitOrTheNextOne) {
  note.text = L"cat Cat cat";
  cat.match_case = true;
  note.selection = {4, 7};
  desk.Replace(cat);
  EXPECT_EQ(note.text, L"cat Cat dog");
  note.selection = {0, 3};
  desk.Replace(cat);
  EXPECT_EQ(note.text, L"dog Cat dog");
  EXPECT_TRUE(listener.Said().empty());
  desk.Replace(cat);
  EXPECT_EQ(note.text, L"dog Cat dog");
  EXPECT_EQ(listener.Said(), Words{kFound});
  EXPECT_EQ(desk.searched().entries, Words{L"cat"});
  EXPECT_EQ(desk.replaced().entries, Words{L"dog"});
}

TEST_F(FindDesks, ReplaceAllAsOneStepAndSayBothMessages) {
  note.text = L"cat cat cat";
  note.selection = {11, 11};  // where somebody has typed: all are replaced all the same
  desk.ReplaceAll(cat, nullptr);
  EXPECT_EQ(note.text, L"dog dog dog");
  EXPECT_EQ(note.steps, 1);
  EXPECT_EQ(note.selection, (TextRange{0, 0}));
  EXPECT_EQ(listener.Said(), Words{kReplaced});
  EXPECT_EQ(listener.notice, L"3 replaced");
  EXPECT_FALSE(desk.may_replace());
  desk.ReplaceAll(cat, nullptr);
  EXPECT_EQ(listener.Said(), (Words{kFound, kReplaced}));

  note.text = L"cat cat cat";
  EXPECT_TRUE(desk.FindNext(cat) && desk.FindNext(cat));
  desk.ReplaceAll(cat, nullptr);
  EXPECT_EQ(note.text, L"cat cat dog");

  listener.Said();
  note.text = std::wstring(5000, L'a');
  cat.wanted = L"a";
  for (const int stop : {0, 10}) {
    desk.ReplaceAll(cat, [stop](int percent) { return percent < stop; });
    EXPECT_EQ(listener.notice, L"Stopped: nothing was replaced") << stop;
  }
  note.refuses = true;
  desk.ReplaceAll(cat, nullptr);
  EXPECT_EQ(note.text, std::wstring(5000, L'a'));
  EXPECT_TRUE(listener.Said().empty());
}

struct SpellDesks : ::testing::Test {
  SpellDesks() {
    files.Plant(L"C:\\notes\\wordsus.dct", "the\r\ncat\r\nsat\r\n");
    files.Plant(L"C:\\notes\\wordsuk.dct", "the\r\n");
  }
  test::MemoryFiles files{L"C:\\notes\\"};
  test::MemorySettings settings;
  clsNOTsp checker{files, settings, L"C:\\notes\\", [] { return std::string_view(); }};
  PlainNote note;
  Listener listener;
  SpellDesk desk{checker, note, listener};
};

TEST_F(SpellDesks, WalkThroughTheNote) {
  note.text = L"teh cat zat teh mat the";
  desk.Check();
  EXPECT_EQ(note.Selected(), L"teh");
  EXPECT_EQ(desk.word(), L"teh");
  EXPECT_EQ(desk.suggestions().proposed, L"the");
  desk.ChangeAll(L"the");
  EXPECT_EQ(note.text, L"the cat zat the mat the");
  EXPECT_EQ(note.steps, 1);
  EXPECT_EQ(note.Selected(), L"zat");
  // The user mends it in the note itself, and later puts a word in before it.
  note.text = L"the cat sat the mat the";
  desk.Change(L"set");
  EXPECT_EQ(note.text, L"the cat sat the mat the");
  EXPECT_EQ(note.Selected(), L"mat");
  note.text.insert(0, L"then ");
  desk.Include();
  EXPECT_EQ(listener.Said(), Words{std::wstring(kFullyChecked.text)});
  EXPECT_EQ(desk.word(), L"");
  EXPECT_EQ(checker.own_words(), Words{L"mat"});
  EXPECT_TRUE(desk.RemoveOwnWord(L"mat"));
  desk.Check();
  EXPECT_EQ(note.Selected(), L"mat");
  desk.Ignore(IgnoreScope::kNote);
  EXPECT_EQ(note.Selected(), L"then");
  desk.NoteShown(L"another");
  desk.Change(L"x");
  EXPECT_EQ(note.text, L"then the cat sat the mat the");
}

TEST_F(SpellDesks, SayThatTheDictionaryIsNotFound) {
  note.text = L"cat";
  desk.UseDictionary(kBritishDictionary, settings);
  desk.Check();
  EXPECT_EQ(note.Selected(), L"cat");
  EXPECT_TRUE(listener.Said().empty());
  files.files.clear();
  desk.UseDictionary(kAmericanDictionary, settings);
  desk.Check();
  EXPECT_EQ(listener.Said(), Words(2, std::wstring(kDictionaryNotFound)));
}

}  // namespace
}  // namespace varnel
