#include "base/logged_files.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/memory_files.h"

namespace varnel {
namespace {

TEST(LoggedFiles, WriteEachFaultOnceUntilItIsGone) {
  const std::wstring path = L"C:\\a";
  test::MemoryFiles disk;
  std::vector<std::wstring> lines;
  LoggedFiles files(disk, [&](std::wstring_view line) { lines.emplace_back(line); });
  EXPECT_EQ(files.Read(path, 10).result, FileResult::kMissing);
  EXPECT_EQ(files.Read(L"C:\\none\\a", 10).result, FileResult::kNoFolder);
  EXPECT_TRUE(files.Replace(path, "text", kNoFile));
  EXPECT_EQ(files.Replace(path, "text", kNoFile).result, FileResult::kChanged);
  EXPECT_TRUE(lines.empty());

  disk.locked.insert(path);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(files.Read(path, 10).result, FileResult::kLocked);
  EXPECT_EQ(lines,
            std::vector<std::wstring>{L"cannot read C:\\a: it is in use by another program"});
  EXPECT_EQ(files.Append(path, disk.Stamp(path), "x").result, FileResult::kLocked);
  EXPECT_EQ(files.Remove(path), FileResult::kLocked);
  disk.locked.clear();
  EXPECT_EQ(files.Read(path, 10).bytes, "text");
  disk.locked.insert(path);
  files.Read(path, 10);
  disk.fail_writes = true;
  EXPECT_FALSE(files.CreateFolder(L"C:\\b"));
  EXPECT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[3], lines[0]);
}

}  // namespace
}  // namespace varnel
