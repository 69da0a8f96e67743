// A recycle bin for documents in memory.
#pragma once

#include <map>
#include <string>

#include "base/recycle_bin.h"
#include "tests/support/memory_files.h"

namespace varnel::test {

struct MemoryBin : RecycleBin {
  explicit MemoryBin(MemoryFiles& disk) : disk(disk) {}
  FileResult Recycle(const std::wstring& path) override {
    const std::string bytes = disk.Read(path, std::size_t{1} << 30).bytes;
    const FileResult result = disk.Remove(path, Removal::kForced);
    if (result == FileResult::kDone) content[path] = bytes;
    return result;
  }
  MemoryFiles& disk;
  std::map<std::wstring, std::string> content;
};

}  // namespace varnel::test
