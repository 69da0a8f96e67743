// The file store on the disk: the rules of all stores, and what only a disk can do.
#include "win/files/disk_files.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <thread>

#include "tests/support/file_store_contract.h"
#include "win/files/file_fault.h"
#include "win/files/system_recycle_bin.h"
#include "win/system/debug_log.h"
#include "win/system/handles.h"

namespace varnel::test {
namespace {

namespace fs = std::filesystem;

class DiskRig : public FileStoreRig {
 public:
  DiskRig() {
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~DiskRig() override {
    Unlock();
    for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
      ::SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
    }
    fs::remove_all(folder_);
  }
  FileStore& files() override { return files_; }
  std::wstring folder() const override { return folder_; }
  void Lock(const std::wstring& path) override {
    held_ = ::CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    EXPECT_NE(held_, INVALID_HANDLE_VALUE);
  }
  void Unlock() override {
    if (held_ != INVALID_HANDLE_VALUE) ::CloseHandle(std::exchange(held_, INVALID_HANDLE_VALUE));
  }
  void MarkReadOnly(const std::wstring& path) override {
    EXPECT_TRUE(::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY));
  }
  bool IsHidden(const std::wstring& folder) override {
    return (::GetFileAttributesW(folder.c_str()) & FILE_ATTRIBUTE_HIDDEN) != 0;
  }

 private:
  std::wstring folder_ = (fs::temp_directory_path() / L"varnel files test").wstring() +
                         std::to_wstring(::GetCurrentProcessId());
  HANDLE held_ = INVALID_HANDLE_VALUE;
  DiskFiles files_;
};

INSTANTIATE_TEST_SUITE_P(Disk, FileStoreContract,
                         ::testing::Values([] { return std::make_unique<DiskRig>(); }));

TEST(DiskFiles, ReadersWhoLetNobodyWriteLeaveTheOldContent) {
  DiskRig rig;
  const std::wstring path = rig.folder() + L"\\a.txt";
  const FileStamp stamp = rig.files().Replace(path, "old").stamp;
  const UniqueFile held(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, 0, nullptr));
  EXPECT_EQ(rig.files().Replace(path, "new").result, FileResult::kLocked);
  EXPECT_EQ(rig.files().Append(path, stamp, "new").result, FileResult::kLocked);
  EXPECT_EQ(rig.files().Remove(path, Removal::kForced), FileResult::kLocked);
  EXPECT_EQ(rig.files().Read(path, 10).bytes, "old");
  EXPECT_EQ(rig.files().Files(rig.folder()).files.size(), 1u);
}

TEST(DiskFiles, ReadersWhoShareEverythingAreNoLackOfRights) {
  DiskRig rig;
  const std::wstring path = rig.folder() + L"\\a.txt";
  ASSERT_TRUE(rig.files().Replace(path, "old"));
  {
    const UniqueFile held(
        ::CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held);
    EXPECT_NE(rig.files().Replace(path, "new").result, FileResult::kDenied);
  }
  EXPECT_TRUE(rig.files().Replace(path, "newer"));
  EXPECT_EQ(rig.files().Read(path, 10).bytes, "newer");
}

TEST(DiskFiles, ReadersWhoAreGoneSoonAreWaitedFor) {
  DiskRig rig;
  const std::wstring path = rig.folder() + L"\\a.txt";
  ASSERT_TRUE(rig.files().Replace(path, "old"));
  UniqueFile held(
      ::CreateFileW(path.c_str(), GENERIC_READ, kShareAll, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(held);
  std::thread reader([&] {
    for (int i = 0; i < 5000 && DiskFiles().Stamp(path + L".new").size == 0; ++i) ::Sleep(1);
    ::Sleep(30);
    held.Close();
  });
  EXPECT_EQ(rig.files().Replace(path, "new").result, FileResult::kDone);
  reader.join();
  EXPECT_EQ(rig.files().Read(path, 10).bytes, "new");
}

TEST(DebugLog, AnotherFileIsWrittenWhereItsOwnCannotBe) {
  DiskRig rig;
  const std::wstring path = rig.folder() + L"\\debug.log";
  DebugLog log;
  log.SetFile(path);
  log.Write(L"first");
  EXPECT_EQ(rig.files().Files(rig.folder()).files.size(), 1u);
  rig.Lock(path);
  log.Write(L"second");
  log.Write(L"third");
  rig.Unlock();
  const std::string other = rig.files().Read(path + L".2", 1000).bytes;
  EXPECT_NE(other.find("debug.log cannot be written, error 32"), std::string::npos) << other;
  EXPECT_LT(other.find("second"), other.find("third"));
  EXPECT_EQ(std::ranges::count(other, '\n'), 3);
  rig.files().Remove(path);
  rig.files().CreateFolder(path);
  log.Write(L"fourth");
  EXPECT_NE(rig.files().Read(path + L".2", 1000).bytes.find("fourth"), std::string::npos);
}

TEST(SystemRecycleBin, TakesReadOnlyFilesAndLeavesLockedOnes) {
  DiskRig rig;
  SystemRecycleBin bin;
  const std::wstring path = rig.folder() + L"\\note.rtf";
  rig.files().Replace(path, "x");
  rig.Lock(path);
  EXPECT_EQ(bin.Recycle(path), FileResult::kLocked);
  rig.Unlock();
  EXPECT_TRUE(rig.files().FileExists(path));
  rig.MarkReadOnly(path);
  EXPECT_EQ(bin.Recycle(path), FileResult::kDone);
  EXPECT_FALSE(rig.files().FileExists(path));
  EXPECT_EQ(bin.Recycle(path), FileResult::kDone);
  EXPECT_EQ(bin.Recycle(rig.folder()), FileResult::kDenied);
}

// Another drive: a file system of its own in memory, where this machine has one.
TEST(DiskFiles, AFolderMovesWholeToAnotherDriveOrStays) {
  const fs::path other = L"Z:\\dev\\shm";
  if (!fs::exists(other)) GTEST_SKIP() << "no second drive";
  DiskRig rig;
  const std::wstring from = rig.folder() + L"\\from";
  const std::wstring to =
      (other / L"varnel files test ").wstring() + std::to_wstring(::GetCurrentProcessId());
  fs::remove_all(to);
  fs::remove_all(to + L".moving");
  rig.files().CreateFolder(from + L"\\deep\\.hidden", FolderLook::kHidden);
  const std::string large(200'000, 'x');
  rig.files().Replace(from + L"\\large", large);
  rig.files().Replace(from + L"\\deep\\empty", "");
  rig.files().Replace(from + L"\\deep\\.hidden\\marked", "1");
  rig.MarkReadOnly(from + L"\\deep\\.hidden\\marked");

  rig.Lock(from + L"\\deep\\empty");
  EXPECT_EQ(rig.files().MoveFolder(from, to), FileResult::kLocked);
  rig.Unlock();
  EXPECT_FALSE(fs::exists(to) || fs::exists(to + L".moving"));
  EXPECT_EQ(fs::file_size(from + L"\\large"), large.size());

  fs::create_directories(to + L".moving");  // of a program that was ended
  std::ofstream(fs::path(to + L".moving\\left")) << "left";
  EXPECT_EQ(rig.files().MoveFolder(from, to), FileResult::kDone);
  EXPECT_FALSE(fs::exists(from) || fs::exists(to + L".moving") || fs::exists(to + L"\\left"));
  EXPECT_EQ(rig.files().Read(to + L"\\large", 1 << 20).bytes, large);
  EXPECT_EQ(rig.files().Read(to + L"\\deep\\.hidden\\marked", 10).bytes, "1");
  EXPECT_TRUE(rig.files().FileExists(to + L"\\deep\\empty"));
  EXPECT_EQ(rig.files().MoveFolder(to, from), FileResult::kDone);
  EXPECT_FALSE(fs::exists(to));
}

}  // namespace
}  // namespace varnel::test
