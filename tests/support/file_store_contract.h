// What every file store keeps to: one suite, instantiated for each of them.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "base/file_store.h"
#include "tests/support/cases.h"

namespace varnel::test {

// A store with an empty folder to work in, and what other programs do to its files.
class FileStoreRig {
 public:
  virtual ~FileStoreRig() = default;
  virtual FileStore& files() = 0;
  virtual std::wstring folder() const = 0;          // without a final separator
  virtual void Lock(const std::wstring& path) = 0;  // until Unlock
  virtual void Unlock() = 0;
  virtual void MarkReadOnly(const std::wstring& path) = 0;  // as with the file's properties
  virtual bool IsHidden(const std::wstring& folder) = 0;
};

using FileStoreRigMaker = std::function<std::unique_ptr<FileStoreRig>()>;

class FileStoreContract : public ::testing::TestWithParam<FileStoreRigMaker> {
 protected:
  std::wstring Path(const std::wstring& name) const { return rig_->folder() + L"\\" + name; }
  std::string Content(const std::wstring& name) const {
    return files_.Read(Path(name), 1000).bytes;
  }
  FileResult Reading(const std::wstring& name) const {
    return files_.Read(Path(name), 1000).result;
  }
  FileResult Put(const std::wstring& name, std::string_view bytes) {
    return files_.Replace(Path(name), bytes).result;
  }

  std::unique_ptr<FileStoreRig> rig_ = GetParam()();
  FileStore& files_ = rig_->files();
};

TEST_P(FileStoreContract, ReadsTellWhatIsWrong) {
  EXPECT_EQ(Reading(L"none.txt"), FileResult::kMissing);
  EXPECT_EQ(Reading(L"none\\none.txt"), FileResult::kNoFolder);
  ASSERT_EQ(Put(L"a.txt", std::string("o\0ne", 4)), FileResult::kDone);
  const FileRead read = files_.Read(Path(L"a.txt"), 4);
  EXPECT_EQ(read.bytes, std::string("o\0ne", 4));
  EXPECT_EQ(read.stamp, files_.Stamp(Path(L"A.TXT")));
  EXPECT_EQ(read.stamp.size, 4u);
  EXPECT_NE(read.stamp.written, 0u);
  EXPECT_EQ(files_.Read(Path(L"a.txt"), 3).result, FileResult::kTooLarge);
  EXPECT_EQ(files_.Stamp(Path(L"none.txt")), kNoFile);
  EXPECT_EQ(files_.Stamp(rig_->folder()), kNoFile);
  EXPECT_EQ(files_.Read(rig_->folder(), 10).result, FileResult::kDenied);
  rig_->Lock(Path(L"a.txt"));
  EXPECT_EQ(Reading(L"a.txt"), FileResult::kLocked);
  rig_->Unlock();
  EXPECT_EQ(Reading(L"a.txt"), FileResult::kDone);
}

TEST_P(FileStoreContract, ReplacesWholeOrNotAtAll) {
  EXPECT_EQ(Put(L"none\\a.txt", "lost"), FileResult::kNoFolder);
  const FileWritten first = files_.Replace(Path(L"a.txt"), "one", kNoFile);
  ASSERT_TRUE(first);
  EXPECT_EQ(first.stamp, files_.Stamp(Path(L"a.txt")));
  EXPECT_EQ(files_.Replace(Path(L"a.txt"), "lost", kNoFile).result, FileResult::kChanged);
  const FileWritten second = files_.Replace(Path(L"a.txt"), "three", first.stamp);
  EXPECT_TRUE(second);
  EXPECT_EQ(files_.Replace(Path(L"a.txt"), "lost", first.stamp).result, FileResult::kChanged);
  EXPECT_EQ(Content(L"a.txt"), "three");

  rig_->Lock(Path(L"a.txt"));
  EXPECT_EQ(Put(L"a.txt", "lost"), FileResult::kLocked);
  rig_->Unlock();
  rig_->MarkReadOnly(Path(L"a.txt"));
  EXPECT_EQ(Put(L"a.txt", "lost"), FileResult::kReadOnly);
  ASSERT_TRUE(files_.CreateFolder(Path(L"folder")));
  EXPECT_EQ(Put(L"folder", "lost"), FileResult::kDenied);
  EXPECT_EQ(Content(L"a.txt"), "three");
  EXPECT_EQ(files_.FileNames(rig_->folder(), L""), std::vector<std::wstring>{L"a.txt"});
}

TEST_P(FileStoreContract, AppendsToWhatIsKnown) {
  EXPECT_EQ(files_.Append(Path(L"a.txt"), kNoFile, "x").result, FileResult::kMissing);
  const FileWritten first = files_.Replace(Path(L"a.txt"), "one");
  const FileWritten second = files_.Append(Path(L"a.txt"), first.stamp, " two");
  ASSERT_TRUE(second);
  EXPECT_EQ(second.stamp, files_.Stamp(Path(L"a.txt")));
  EXPECT_TRUE(files_.Append(Path(L"a.txt"), second.stamp, " three"));
  EXPECT_EQ(files_.Append(Path(L"a.txt"), second.stamp, "x").result, FileResult::kChanged);
  const FileStamp stamp = files_.Stamp(Path(L"a.txt"));
  rig_->Lock(Path(L"a.txt"));
  EXPECT_EQ(files_.Append(Path(L"a.txt"), stamp, "x").result, FileResult::kLocked);
  rig_->Unlock();
  rig_->MarkReadOnly(Path(L"a.txt"));
  EXPECT_EQ(files_.Append(Path(L"a.txt"), stamp, "x").result, FileResult::kReadOnly);
  EXPECT_EQ(Content(L"a.txt"), "one two three");
}

TEST_P(FileStoreContract, RenamesAndRemovesOneFile) {
  Put(L"a.txt", "a");
  Put(L"b.txt", "b");
  EXPECT_EQ(files_.Rename(Path(L"none"), Path(L"c.txt")), FileResult::kMissing);
  EXPECT_EQ(files_.Rename(Path(L"a.txt"), Path(L"B.txt")), FileResult::kExists);
  EXPECT_EQ(files_.Rename(Path(L"a.txt"), Path(L"none\\a.txt")), FileResult::kNoFolder);
  EXPECT_EQ(files_.Rename(Path(L"a.txt"), Path(L"A.TXT")), FileResult::kDone);
  EXPECT_EQ(Content(L"a.txt"), "a");
  rig_->Lock(Path(L"a.txt"));
  EXPECT_EQ(files_.Rename(Path(L"a.txt"), Path(L"c.txt")), FileResult::kLocked);
  EXPECT_EQ(files_.Remove(Path(L"a.txt")), FileResult::kLocked);
  rig_->Unlock();
  rig_->MarkReadOnly(Path(L"a.txt"));
  EXPECT_EQ(files_.Rename(Path(L"a.txt"), Path(L"c.txt")), FileResult::kDone);
  EXPECT_EQ(files_.Remove(Path(L"c.txt")), FileResult::kReadOnly);
  EXPECT_EQ(Content(L"c.txt"), "a");
  EXPECT_EQ(files_.Remove(Path(L"c.txt"), Removal::kForced), FileResult::kDone);
  EXPECT_EQ(files_.Remove(Path(L"c.txt")), FileResult::kDone);
  EXPECT_EQ(files_.FileNames(rig_->folder(), L""), std::vector<std::wstring>{L"b.txt"});
}

TEST_P(FileStoreContract, AKeptContentStaysAsItWas) {
  Put(L"a.txt", "old");
  const FileStamp stamp = files_.Stamp(Path(L"a.txt"));
  ASSERT_TRUE(files_.CreateFolder(Path(L"kept"), FolderLook::kHidden));
  EXPECT_TRUE(rig_->IsHidden(Path(L"kept")));
  EXPECT_EQ(files_.Keep(Path(L"a.txt"), Path(L"kept\\a.1")), FileResult::kDone);
  EXPECT_EQ(files_.Keep(Path(L"a.txt"), Path(L"kept\\a.1")), FileResult::kExists);
  EXPECT_EQ(files_.Keep(Path(L"none.txt"), Path(L"kept\\a.2")), FileResult::kMissing);
  Put(L"a.txt", "newer");
  EXPECT_EQ(Content(L"kept\\a.1"), "old");
  EXPECT_EQ(files_.Stamp(Path(L"kept\\a.1")), stamp);
  files_.Remove(Path(L"kept\\a.1"));
  EXPECT_EQ(Content(L"a.txt"), "newer");
}

TEST_P(FileStoreContract, FoldersAreMadeListedAndMoved) {
  const std::wstring deep = Path(L"\u00e4 b\\c");
  EXPECT_EQ(files_.Files(deep).result, FileResult::kNoFolder);
  EXPECT_TRUE(files_.CreateFolder(deep + L"\\"));
  EXPECT_TRUE(files_.FolderExists(Path(L"\u00c4 B")));
  EXPECT_FALSE(rig_->IsHidden(deep));
  Put(L"note.txt", "note");
  EXPECT_FALSE(files_.CreateFolder(Path(L"note.txt")));
  for (const wchar_t* name : {L"b.TXT", L"A.txt", L"\u00d6.txt", L"\u00e4.txt", L"_.bmp"}) {
    EXPECT_EQ(Put(std::wstring(L"\u00e4 b\\c\\") + name, "x"), FileResult::kDone);
  }
  EXPECT_EQ(files_.FileNames(deep, L".Txt"),
            (std::vector<std::wstring>{L"A.txt", L"b.TXT", L"\u00e4.txt", L"\u00d6.txt"}));
  const FolderListing listing = files_.Files(deep);
  ASSERT_EQ(listing.files.size(), 5u);
  for (const FileEntry& file : listing.files) {
    EXPECT_EQ(file.stamp, files_.Stamp(deep + L"\\" + file.name));
  }
  EXPECT_TRUE(files_.Files(Path(L"\u00e4 b")).files.empty()) << "folders are no files";

  const std::wstring from = Path(L"\u00e4 b\\");
  EXPECT_EQ(files_.MoveFolder(Path(L"none"), Path(L"d")), FileResult::kNoFolder);
  EXPECT_EQ(files_.MoveFolder(from, Path(L"note.txt")), FileResult::kExists);
  EXPECT_NE(files_.MoveFolder(from, from + L"within"), FileResult::kDone);
  EXPECT_EQ(files_.MoveFolder(from, Path(L"d\\")), FileResult::kDone);
  EXPECT_FALSE(files_.FolderExists(from));
  EXPECT_EQ(files_.Files(Path(L"d\\c")).files.size(), 5u);
}

}  // namespace varnel::test
