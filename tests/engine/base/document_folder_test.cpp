#include "base/document_folder.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

#include "base/document_file.h"
#include "tests/support/cases.h"
#include "tests/support/memory_bin.h"
#include "tests/support/memory_files.h"

namespace varnel {
namespace {

const std::wstring kFolder = L"C:\\Notes";

struct DocumentLists : ::testing::Test {
  test::MemoryFiles disk{kFolder};
  test::MemoryBin bin{disk};
  DocumentFolder notes{disk, bin, {L".rtf", L".txt"}};

  void Put(const std::wstring& name, std::string bytes = "x") {
    disk.Plant(kFolder + L"\\" + name, std::move(bytes));
  }
  std::vector<std::wstring> Names() const {
    std::vector<std::wstring> names;
    for (std::size_t i = 0; i < notes.count(); ++i) names.push_back(notes.Name(i));
    return names;
  }
};

using NameList = std::vector<std::wstring>;

TEST_F(DocumentLists, ListTheirDocumentsInOrder) {
  for (const wchar_t* name : {L"Note 10.rtf", L"note 9.TXT", L"Note 9.rtf", L"a.bmp", L"b.rtf.new",
                              L"sub\\c.rtf", L".varnel\\b.rtf", L"1.rtf"}) {
    Put(name);
  }
  const FolderChanges changes = notes.Adopt(kFolder + L"\\");
  EXPECT_EQ(Names(), (NameList{L"1.rtf", L"Note 9.rtf", L"note 9.TXT", L"Note 10.rtf"}));
  EXPECT_EQ(changes.added, Names());
  EXPECT_EQ(notes.Title(3), L"Note 10");
  EXPECT_EQ(notes.Path(3), kFolder + L"\\Note 10.rtf");
  EXPECT_EQ(notes.Key(0), 1u);
  DocumentFolder every(disk, bin, {});
  every.Adopt(kFolder);
  EXPECT_EQ(every.count(), 5u) << "not the unfinished one";
  EXPECT_EQ(notes.Adopt(L"C:\\none").removed.size(), 4u);
  EXPECT_EQ(notes.count(), 0u);
  EXPECT_EQ(notes.FindNearest(L"x"), 0u);
  EXPECT_EQ(notes.Refresh().result, FileResult::kNoFolder);
}

// Ten thousand documents come, go and change; each time the list and what is told about it are what
// a plain look at the disk gives.
TEST_F(DocumentLists, FollowWhatOthersDo) {
  std::mt19937 random(12);
  for (int i = 0; i < 10'000; ++i) Put(L"note " + std::to_wstring(i) + L".rtf");
  EXPECT_EQ(notes.Adopt(kFolder).added.size(), 10'000u);
  EXPECT_EQ(notes.Name(9999), L"note 9999.rtf");
  for (int round = 0; round < 8; ++round) {
    std::map<std::wstring, FileStamp> former;
    for (std::size_t i = 0; i < notes.count(); ++i) former[notes.Name(i)] = notes.Stamp(i);
    const std::wstring selected = notes.Name(random() % notes.count());
    for (int i = 0; i < 30; ++i) {
      const std::wstring name = L"note " + std::to_wstring(random() % 10'050) + L".rtf";
      if (random() % 2 == 0) {
        disk.Remove(kFolder + L"\\" + name);
      } else {
        Put(name, std::to_string(random()));
      }
    }
    const FolderChanges changes = notes.Refresh();
    std::size_t added = 0;
    std::size_t changed = 0;
    ASSERT_EQ(notes.count(), disk.files.size());
    for (std::size_t i = 0; i < notes.count(); ++i) {
      ASSERT_EQ(notes.Stamp(i), disk.Stamp(notes.Path(i)));
      const auto old = former.find(notes.Name(i));
      added += old == former.end();
      changed += old != former.end() && old->second != notes.Stamp(i);
    }
    EXPECT_EQ(changes.added.size(), added);
    EXPECT_EQ(changes.changed.size(), changed);
    EXPECT_EQ(changes.removed.size(), former.size() + added - notes.count());
    for (const auto& name : changes.removed) EXPECT_FALSE(notes.Find(name));
    const std::size_t nearest = notes.FindNearest(selected);
    if (notes.Find(selected)) EXPECT_EQ(notes.Name(nearest), selected);
  }
}

TEST_F(DocumentLists, RenameAsksBeforeAnotherDocumentGoes) {
  Put(L"a.rtf", "a");
  Put(L"b.rtf", "b");
  notes.Adopt(kFolder);
  DocumentFile document(disk);
  document.Open(kFolder + L"\\a.rtf", 1000);
  document.Save("a2");
  for (const wchar_t* typed : {L"", L" . ", L"..\\x", L"NUL", L"a:b"}) {
    EXPECT_EQ(notes.Rename(0, typed, L".rtf").result, RenameResult::kBadName) << typed;
  }
  EXPECT_EQ(notes.Rename(0, L"A", L".rtf").result, RenameResult::kDone) << "only in another case";
  EXPECT_EQ(Names(), (NameList{L"A.rtf", L"b.rtf"}));
  EXPECT_EQ(notes.Rename(0, L" B ", L".rtf").result, RenameResult::kClash);
  DocumentFile replaced(disk);
  replaced.Open(kFolder + L"\\b.rtf", 1000);
  replaced.Save("b");
  disk.locked.insert(kFolder + L"\\A.rtf");
  EXPECT_EQ(notes.Rename(0, L"B", L".rtf", NameClash::kReplace).trouble, FileResult::kLocked);
  EXPECT_EQ(VersionsOf(disk, kFolder + L"\\b.rtf").size(), 1u) << "nothing came in its place";
  disk.Plant(kFolder + L"\\b.rtf", "b");
  disk.locked.clear();
  notes.Refresh();
  EXPECT_EQ(disk.files.at(kFolder + L"\\b.rtf"), "b");
  const Renamed renamed = notes.Rename(0, L"B", L".rtf", NameClash::kReplace);
  EXPECT_EQ(renamed.result, RenameResult::kDone);
  EXPECT_EQ(renamed.name, L"B.rtf");
  EXPECT_EQ(Names(), NameList{L"B.rtf"});
  EXPECT_EQ(disk.files.at(kFolder + L"\\b.rtf"), "a2");
  EXPECT_EQ(bin.content.size(), 1u);
  EXPECT_EQ(VersionsOf(disk, kFolder + L"\\b.rtf").size(), 1u) << "its own, moved along";

  disk.locked.insert(kFolder + L"\\B.rtf");
  const Renamed locked = notes.Rename(0, L"c", L".txt");
  EXPECT_EQ(locked.result, RenameResult::kFailed);
  EXPECT_EQ(locked.trouble, FileResult::kLocked);
  EXPECT_EQ(locked.name, L"B.rtf");
  EXPECT_EQ(notes.Remove(0), FileResult::kLocked);
  EXPECT_EQ(notes.count(), 1u);
  disk.locked.clear();
  disk.read_only.insert(kFolder + L"\\b.rtf");
  EXPECT_EQ(notes.Rename(0, L"c", L".txt").name, L"c.txt");
  EXPECT_EQ(notes.Remove(0), FileResult::kDone);
  EXPECT_EQ(notes.count(), 0u);
  EXPECT_TRUE(disk.files.empty()) << "no version is left behind";
  EXPECT_EQ(bin.content.size(), 2u);
}

}  // namespace
}  // namespace varnel
