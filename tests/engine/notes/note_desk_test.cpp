// The notes of a folder and the one in the editor, on files in memory.
#include "widgets/notes/note_desk.h"

#include <gtest/gtest.h>

#include "base/text.h"
#include "tests/support/latin1_encoding.h"
#include "tests/support/memory_bin.h"
#include "tests/support/memory_files.h"
#include "widgets/notes/find/note_search.h"

namespace varnel {
namespace {

const std::wstring kFolder = L"C:\\Notes";

// An editor that holds plain text, and refuses what begins with "damaged".
class PlainContent : public NoteContent {
 public:
  void StartEmpty(NoteType) override { text.clear(); }
  Shown Show(NoteType type, const std::string& bytes) override {
    text = bytes;
    const bool damaged = bytes.starts_with("damaged");
    return {damaged ? NoteType::kTxt : type, damaged ? L"damaged" : L""};
  }
  std::optional<std::string> Bytes(NoteType) override {
    return whole ? std::optional(text) : std::nullopt;
  }
  std::string text;
  bool whole = true;
};

class Nine : public WallClock {
 public:
  LocalTime Now() const override { return {2010, 10, 7, 4, 9, 5, 3}; }
};

struct NotesOnTheDesk : ::testing::Test {
  NotesOnTheDesk() { desk.Adopt(kFolder); }

  std::wstring Path(const std::wstring& name) { return kFolder + L"\\" + name; }
  std::string On(const std::wstring& name) { return disk.files[Path(name)]; }
  void Type(const std::string& text) {
    content.text += text;
    desk.NoteChange(now += 100);
  }

  test::MemoryFiles disk{kFolder};
  test::MemoryBin bin{disk};
  Nine clock;
  PlainContent content;
  NoteDesk desk{disk, bin, clock, content, 0};
  std::uint64_t now = 0;
};

TEST_F(NotesOnTheDesk, AreSavedWithoutAskingBeforeTheNextOne) {
  disk.Plant(Path(L"a.rtf"), "first");
  disk.Plant(Path(L"b.txt"), "second");
  desk.Adopt(kFolder);
  ASSERT_TRUE(desk.DocumentNew(NoteType::kRtf));
  EXPECT_EQ(desk.document().title(), L"Tavrin 1");
  Type("new");
  ASSERT_TRUE(desk.DocumentOpenFile(Path(L"a.rtf")));
  EXPECT_EQ(On(L"101007953_Tavrin 1.RTF"), "new");
  Type(" more");
  ASSERT_TRUE(desk.DocumentOpenFile(Path(L"b.txt")));
  EXPECT_EQ(On(L"a.rtf"), "first more");
  EXPECT_EQ(desk.document().type(), NoteType::kTxt);
  // What cannot be saved stays in the editor.
  Type(" and unsaved");
  disk.locked.insert(Path(L"b.txt"));
  EXPECT_FALSE(desk.DocumentNew(NoteType::kRtf));
  EXPECT_EQ(content.text, "second and unsaved");
  EXPECT_NE(desk.notice(), L"");
  disk.locked.clear();
  content.whole = false;
  EXPECT_FALSE(desk.DocumentNew(NoteType::kRtf));
  EXPECT_EQ(On(L"b.txt"), "second") << "half a note replaces nothing";
  content.whole = true;
  // A file that cannot be read leaves an empty note with a name of its own.
  EXPECT_FALSE(desk.DocumentOpenFile(Path(L"gone.rtf")));
  EXPECT_EQ(On(L"b.txt"), "second and unsaved");
  EXPECT_EQ(desk.document().title(), L"Tavrin 4");
  disk.Plant(Path(L"bad.rtf"), "damaged");
  ASSERT_TRUE(desk.DocumentOpenFile(Path(L"bad.rtf")));
  EXPECT_EQ(desk.document().type(), NoteType::kTxt) << "its bytes are kept";
}

TEST_F(NotesOnTheDesk, AreNeverWrittenOverUnasked) {
  disk.Plant(Path(L"a.txt"), "mine");
  desk.Adopt(kFolder);
  ASSERT_TRUE(desk.DocumentOpenFile(Path(L"a.txt")));
  Type("!");
  disk.Plant(Path(L"a.txt"), "theirs, longer");
  EXPECT_FALSE(desk.SideBarRefresh()) << "what is changed is not shown anew";
  const std::wstring path = desk.document().path();
  EXPECT_EQ(desk.DocumentSaveFile(NoteType::kTxt, path), FileResult::kChanged);
  EXPECT_TRUE(desk.document().modified());
  ASSERT_TRUE(desk.DocumentNew(NoteType::kTxt)) << "saved beside";
  EXPECT_EQ(On(L"a.txt"), "theirs, longer");
  EXPECT_EQ(On(L"101007953_a.TXT"), "mine!");
  ASSERT_TRUE(desk.DocumentOpenFile(Path(L"a.txt")));
  disk.Plant(Path(L"a.txt"), "theirs once more");
  EXPECT_TRUE(desk.SideBarRefresh());
  EXPECT_EQ(content.text, "theirs once more");
  Type(" mine");
  EXPECT_EQ(desk.DocumentSaveFile(NoteType::kTxt, Path(L"a.txt")), FileResult::kDone);
  ASSERT_FALSE(desk.Versions().empty());
  ASSERT_TRUE(desk.Restore(desk.Versions().front()));
  EXPECT_EQ(content.text, "theirs once more");
}

TEST_F(NotesOnTheDesk, GoBackToTheOldestVersionWithChangesUnsaved) {
  disk.Plant(Path(L"a.txt"), "0");
  ASSERT_TRUE(desk.DocumentOpenFile(Path(L"a.txt")));
  for (std::size_t i = 1; i <= kMostVersions; ++i) {
    Type(std::to_string(i));
    ASSERT_EQ(desk.DocumentSaveFile(NoteType::kTxt, Path(L"a.txt")), FileResult::kDone);
  }
  ASSERT_EQ(desk.Versions().size(), kMostVersions);
  const DocumentVersion oldest = desk.Versions().back();
  Type(" unsaved");
  ASSERT_TRUE(desk.Restore(oldest)) << "which the saving of the changes drops";
  EXPECT_EQ(content.text, "0");
  EXPECT_EQ(On(L"a.txt"), "0");
  EXPECT_FALSE(desk.document().modified());
  EXPECT_EQ(disk.files[desk.Versions().front().path], "012345678910 unsaved");
  EXPECT_FALSE(desk.Restore(oldest));
  EXPECT_EQ(content.text, "0");
}

TEST_F(NotesOnTheDesk, AreExportedRenamedAndDeleted) {
  disk.Plant(Path(L"memo.rtf"), "old");
  disk.Plant(Path(L"other.txt"), "other");
  desk.Adopt(kFolder);
  desk.DocumentNew(NoteType::kRtf);
  Type("text");
  // A new name is not used as it is; an existing file is written over, as a copy.
  EXPECT_EQ(desk.Export({L"C:\\new.rtf", NoteType::kRtf}), FileResult::kDone);
  EXPECT_FALSE(disk.FileExists(L"C:\\new.rtf"));
  EXPECT_EQ(desk.document().title(), L"101007953_Tavrin 1");
  EXPECT_EQ(desk.Export({Path(L"memo.rtf"), NoteType::kTxt}), FileResult::kDone);
  EXPECT_EQ(On(L"memo.rtf"), "text");
  EXPECT_EQ(desk.document().title(), L"101007953_Tavrin 1");
  EXPECT_EQ(desk.document().type(), NoteType::kRtf);
  // The ending is that of the note in the editor.
  const std::size_t other = *desk.notes().Find(L"other.txt");
  EXPECT_EQ(desk.Rename(other, L"memo", NameClash::kAsk), RenameResult::kClash);
  EXPECT_EQ(desk.Rename(other, L"a\\b", NameClash::kAsk), RenameResult::kBadName);
  EXPECT_EQ(desk.Rename(other, L"next", NameClash::kAsk), RenameResult::kDone);
  EXPECT_EQ(On(L"next.rtf"), "other");
  ASSERT_TRUE(desk.current());
  EXPECT_EQ(desk.NoteDelete(*desk.current()), 0u);
  EXPECT_EQ(content.text, "text") << "the editor keeps it";
  Type("!");
  EXPECT_EQ(desk.DocumentSaveFile(NoteType::kRtf, desk.document().path()), FileResult::kDone);
  EXPECT_EQ(On(L"101007953_101007953_Tavrin 1.RTF"), "text!");
}

TEST_F(NotesOnTheDesk, ComeBackAfterAKill) {
  disk.Plant(Path(L"a.txt"), "kept");
  desk.Adopt(kFolder);
  ASSERT_TRUE(desk.DocumentOpenFile(Path(L"a.txt")));
  Type(" and typed");
  desk.Tend(now + 1000);
  EXPECT_TRUE(FindDrafts(disk, kFolder).empty());
  desk.Tend(now + 3000);
  PlainContent other;
  NoteDesk next(disk, bin, clock, other, 0);
  next.Adopt(kFolder);
  ASSERT_TRUE(next.Recover({kFolder, L"", kFolder + L"\\"}));
  EXPECT_EQ(other.text, "kept and typed");
  EXPECT_TRUE(next.document().modified());
  EXPECT_EQ(next.document().title(), L"a");
  EXPECT_EQ(next.notes().count(), 1u) << "once, however often its folder is named";
  next.DropChanges();
  EXPECT_EQ(On(L"a.txt"), "kept");
  EXPECT_TRUE(FindDrafts(disk, kFolder).empty());
}

TEST_F(NotesOnTheDesk, ComeBackFromWhereTheyWereBegun) {
  const std::wstring elsewhere = L"C:\\Elsewhere";
  disk.CreateFolder(elsewhere);
  ASSERT_TRUE(desk.DocumentNew(NoteType::kTxt));
  EXPECT_EQ(desk.draft_folder(), kFolder);
  Type(std::string(kMostNoteBytes + 1, 'x'));
  desk.Adopt(elsewhere);
  EXPECT_EQ(desk.DocumentSaveFile(NoteType::kTxt, L""), FileResult::kFailed) << "too large";
  desk.KeepDraft(now);
  EXPECT_EQ(desk.draft_folder(), kFolder) << "another folder is looked at, the draft stays";
  disk.Plant(elsewhere + L"\\.varnel\\here.txt.draft", "typed here");
  PlainContent other;
  NoteDesk next(disk, bin, clock, other, 0);
  next.Adopt(elsewhere);
  ASSERT_TRUE(next.Recover({elsewhere, kFolder}));
  EXPECT_EQ(other.text, "typed here");
  ASSERT_EQ(next.notes().count(), 1u) << "what lay elsewhere is a note now";
  EXPECT_EQ(disk.Stamp(next.notes().Path(0)).size, kMostNoteBytes + 1);
}

TEST_F(NotesOnTheDesk, AreFoundByNameAndContent) {
  disk.Plant(Path(L"cake.rtf"), "{\\rtf1 plums \\b and flour}");
  disk.Plant(Path(L"Plums.txt"), "buy Flour");
  disk.Plant(Path(L"c.txt"), "nothing");
  desk.Adopt(kFolder);
  const test::Latin1Encoding system;
  NoteSearch search(disk, system);
  const auto found = [&](const wchar_t* query) {
    search.Start(query, desk.notes());
    while (search.Step(desk.notes())) {
    }
    std::wstring names;
    for (const std::size_t row : search.found()) names += desk.notes().Name(row) + L" ";
    return names;
  };
  EXPECT_EQ(found(L"flour PLUM"), L"cake.rtf Plums.txt ");
  EXPECT_EQ(found(L"cake flour"), L"cake.rtf ");
  EXPECT_EQ(found(L"rtf1"), L"") << "what is no text is not searched";
  EXPECT_EQ(found(L"  "), L"");
  disk.Plant(Path(L"c.txt"), "now plums");
  desk.SideBarRefresh();
  EXPECT_EQ(found(L"now"), L"c.txt ");
}

}  // namespace
}  // namespace varnel
