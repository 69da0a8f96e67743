#include "base/document_file.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/cases.h"
#include "tests/support/failing_files.h"
#include "tests/support/memory_files.h"

namespace varnel {
namespace {

const std::wstring kFolder = L"C:\\Notes";
const std::wstring kPath = kFolder + L"\\memo.rtf";
constexpr std::size_t kLimit = 1000;

struct Documents : ::testing::Test {
  test::MemoryFiles disk{kFolder};
  test::FailingFiles files{disk};
  DocumentFile document{files};

  std::string Content(const std::wstring& path = kPath) { return disk.Read(path, kLimit).bytes; }
  std::vector<std::string> Versions() {
    std::vector<std::string> contents;
    for (const auto& version : VersionsOf(disk, kPath)) contents.push_back(Content(version.path));
    return contents;
  }
  // What a program that starts now would offer.
  std::vector<std::string> Drafts() {
    std::vector<std::string> contents;
    for (const auto& draft : FindDrafts(disk, kFolder)) contents.push_back(Content(draft.path));
    return contents;
  }
};

using Contents = std::vector<std::string>;

TEST_F(Documents, SavedOnesKeepTheirTenFormerContents) {
  document.StartNew(kPath);
  EXPECT_FALSE(document.has_file());
  for (int i = 1; i <= 13; ++i) {
    ASSERT_EQ(document.Save(std::to_string(i)), FileResult::kDone);
  }
  EXPECT_EQ(Versions(), (Contents{"12", "11", "10", "9", "8", "7", "6", "5", "4", "3"}));
  EXPECT_TRUE(disk.hidden.contains(kFolder + L"\\.varnel"));
  EXPECT_EQ(disk.FileNames(kFolder, L""), std::vector<std::wstring>{L"memo.rtf"});
  EXPECT_EQ(document.Versions()[1].stamp.size, 2u);

  disk.Plant(kFolder + L"\\.varnel\\memo.rtf.rtf.3", "another document's");
  disk.Plant(kFolder + L"\\.varnel\\b.rtf.12", "left by one of that name");
  EXPECT_EQ(disk.Rename(kPath, kFolder + L"\\b.rtf"), FileResult::kDone);
  MoveVersions(disk, kPath, kFolder + L"\\b.rtf");
  EXPECT_TRUE(Versions().empty());
  EXPECT_EQ(VersionsOf(disk, kFolder + L"\\B.RTF").size(), 10u);
  RemoveVersions(disk, kFolder + L"\\b.rtf");
  EXPECT_EQ(disk.files.size(), 2u);
}

TEST_F(Documents, WhatOthersMadeOfThemIsNeverWrittenOverUnasked) {
  disk.Plant(kPath, "old");
  ASSERT_EQ(document.Open(kPath, kLimit).bytes, "old");
  EXPECT_EQ(document.Check(), FileResult::kDone);
  document.NoteChange(0);
  disk.Plant(kPath, "who");
  EXPECT_EQ(document.Check(), FileResult::kChanged);
  EXPECT_EQ(document.Save("mine"), FileResult::kChanged);
  EXPECT_EQ(Content(), "who");
  EXPECT_TRUE(document.changed());
  EXPECT_EQ(document.Save("mine", OthersChanges::kReplace), FileResult::kDone);
  EXPECT_EQ(Content(), "mine");
  EXPECT_EQ(Versions(), Contents{"who"});

  disk.Remove(kPath);
  EXPECT_EQ(document.Check(), FileResult::kMissing);
  EXPECT_EQ(document.Save("again"), FileResult::kDone);
  EXPECT_EQ(Content(), "again");

  const std::wstring other = kFolder + L"\\other.rtf";
  disk.Plant(other, "theirs");
  EXPECT_EQ(document.SaveAs(other, "mine"), FileResult::kExists);
  EXPECT_EQ(document.path(), kPath);
  EXPECT_EQ(document.Check(), FileResult::kDone);
  EXPECT_EQ(document.SaveAs(other, "mine", OthersChanges::kReplace), FileResult::kDone);
  EXPECT_EQ(document.path(), other);
  EXPECT_EQ(Content(VersionsOf(disk, other)[0].path), "theirs");
  EXPECT_EQ(Content(), "again");
}

TEST_F(Documents, DraftsComeThreeSecondsAfterTheLastChange) {
  document.StartNew(kPath);
  EXPECT_FALSE(document.DraftDue());
  document.NoteChange(1000);
  EXPECT_EQ(document.DraftDue(), 4000u);
  document.NoteChange(2000);
  EXPECT_EQ(document.DraftDue(), 5000u);
  document.NoteChange(15'000);
  EXPECT_EQ(document.DraftDue(), 16'000u) << "not put off for ever";
  EXPECT_EQ(document.KeepDraft("a", 16'000), FileResult::kDone);
  EXPECT_FALSE(document.DraftDue());
  EXPECT_TRUE(document.changed());
  document.NoteChange(20'000);
  disk.fail_writes = true;
  EXPECT_EQ(document.KeepDraft("b", 23'000), FileResult::kFull);
  EXPECT_EQ(document.DraftDue(), 38'000u);
  disk.fail_writes = false;
  EXPECT_EQ(Drafts(), Contents{"a"});
  document.Close();
  EXPECT_TRUE(Drafts().empty());
  EXPECT_FALSE(document.DraftDue());
}

TEST_F(Documents, OfAProgramThatWasEndedComeBack) {
  disk.Plant(kPath, "old");
  {
    DocumentFile ended(files);
    ended.Open(kPath, kLimit);
    ended.NoteChange(0);
    ended.KeepDraft("new", 3000);
    DocumentFile never_saved(files);
    never_saved.StartNew(kFolder + L"\\Tavrin 1.RTF");
    never_saved.NoteChange(0);
    never_saved.KeepDraft("first", 3000);
  }
  // The next program has a new note of the same name, and its draft leaves the other's alone.
  DocumentFile another(files);
  another.StartNew(kFolder + L"\\Tavrin 1.RTF");
  another.KeepDraft("second", 0);
  EXPECT_EQ(Drafts(), (Contents{"second", "first", "new"}));
  const auto drafts = FindDrafts(disk, kFolder + L"\\");
  EXPECT_EQ(drafts[0].document_path, kFolder + L"\\Tavrin 1.RTF");
  EXPECT_EQ(drafts[1].document_path, drafts[0].document_path);
  EXPECT_FALSE(drafts[1].has_document);
  EXPECT_EQ(drafts[2].document_path, kPath);
  EXPECT_TRUE(drafts[2].has_document && !drafts[2].older);

  EXPECT_EQ(document.OpenDraft(drafts[2], kLimit).bytes, "new");
  EXPECT_TRUE(document.changed());
  EXPECT_EQ(Drafts().size(), 3u) << "until they are saved";
  EXPECT_EQ(document.Save("new"), FileResult::kDone);
  EXPECT_EQ(Versions(), Contents{"old"});
  EXPECT_EQ(Drafts(), (Contents{"second", "first"}));
  EXPECT_EQ(document.OpenDraft(drafts[1], kLimit).bytes, "first");
  EXPECT_FALSE(document.has_file());
  document.Close();
  another.Close();
  EXPECT_TRUE(Drafts().empty());

  // Saved, and ended before the draft was dropped.
  disk.Plant(kFolder + L"\\.varnel\\memo.rtf.draft", "new");
  disk.Plant(kFolder + L"\\.varnel\\gone.rtf.draft", "text");
  EXPECT_EQ(Drafts(), Contents{"text"});
  disk.Plant(kFolder + L"\\gone.rtf", "written later");
  EXPECT_TRUE(FindDrafts(disk, kFolder)[0].older);
  // A number may belong to the document's own name.
  disk.Plant(kFolder + L"\\log.2", "old");
  disk.Plant(kFolder + L"\\.varnel\\log.2.draft", "a draft of it");
  EXPECT_EQ(FindDrafts(disk, kFolder)[0].document_path, kFolder + L"\\log.2");
}

TEST_F(Documents, TroubleLeavesTheOldContentAndALaterSaveWorks) {
  using Disk = test::MemoryFiles;
  const test::Cases<FileResult, std::function<void(Disk&)>, std::function<void(Disk&)>> cases = {
      {FileResult::kLocked, [](Disk& disk) { disk.locked.insert(kPath); },
       [](Disk& disk) { disk.locked.clear(); }},
      {FileResult::kReadOnly, [](Disk& disk) { disk.read_only.insert(kPath); },
       [](Disk& disk) { disk.read_only.clear(); }},
      {FileResult::kFull, [](Disk& disk) { disk.fail_writes = true; },
       [](Disk& disk) { disk.fail_writes = false; }},
      {FileResult::kNoFolder, [](Disk& disk) { disk.MoveFolder(kFolder, L"C:\\Away"); },
       [](Disk& disk) { disk.MoveFolder(L"C:\\Away", kFolder); }},
  };
  for (const auto& [trouble, begin, end] : cases) {
    disk.Plant(kPath, "old");
    document.Open(kPath, kLimit);
    document.NoteChange(0);
    begin(disk);
    EXPECT_EQ(document.Save("new"), trouble);
    EXPECT_FALSE(FileTrouble(trouble).empty());
    document.KeepDraft("new", 0);
    end(disk);
    EXPECT_TRUE(document.changed());
    EXPECT_EQ(Content(), "old") << static_cast<int>(trouble);
    EXPECT_TRUE(Versions().empty());
    EXPECT_EQ(document.Save("new"), FileResult::kDone) << static_cast<int>(trouble);
    EXPECT_EQ(Content(), "new");
    EXPECT_TRUE(Drafts().empty());
    RemoveVersions(disk, kPath);
  }
}

// Every operation of drafting and saving fails, once or as for a program that was ended there.
TEST_F(Documents, FailingAtAnyOperationTheTextIsSomewhere) {
  for (const bool for_ever : {false, true}) {
    for (int operation = 0;; ++operation) {
      disk = test::MemoryFiles(kFolder);
      disk.Plant(kPath, "old");
      DocumentFile victim(files);
      victim.Open(kPath, kLimit);
      victim.NoteChange(0);
      files.FailAfter(operation, FileResult::kFailed, for_ever);
      const bool drafted = victim.KeepDraft("new", 3000) == FileResult::kDone;
      const bool saved = victim.Save("new") == FileResult::kDone;
      const bool met = files.failed();
      EXPECT_EQ(Content(), saved ? "new" : "old") << operation;
      if (drafted && !saved) EXPECT_EQ(Drafts(), Contents{"new"}) << operation;
      if (saved) EXPECT_TRUE(Drafts().empty());
      EXPECT_EQ(victim.changed(), !saved);
      files.Heal();
      EXPECT_EQ(victim.Save("newer"), FileResult::kDone);
      EXPECT_EQ(Content(), "newer");
      if (!met) break;
    }
  }
}

}  // namespace
}  // namespace varnel
