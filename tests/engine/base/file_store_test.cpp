#include "tests/support/file_store_contract.h"
#include "tests/support/memory_files.h"

namespace varnel::test {
namespace {

class MemoryRig : public FileStoreRig {
 public:
  MemoryRig() { files_.CreateFolder(folder()); }
  FileStore& files() override { return files_; }
  std::wstring folder() const override { return L"C:\\Work"; }
  void Lock(const std::wstring& path) override { files_.locked.insert(path); }
  void Unlock() override { files_.locked.clear(); }
  void MarkReadOnly(const std::wstring& path) override { files_.read_only.insert(path); }
  bool IsHidden(const std::wstring& folder) override { return files_.hidden.contains(folder); }

 private:
  MemoryFiles files_;
};

INSTANTIATE_TEST_SUITE_P(Memory, FileStoreContract,
                         ::testing::Values([] { return std::make_unique<MemoryRig>(); }));

}  // namespace
}  // namespace varnel::test
