// Files that the timings write and look for, below the system's folder for temporary ones.
#pragma once

#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "base/document_folder.h"
#include "base/number_text.h"
#include "bench/micro.h"
#include "win/files/disk_files.h"
#include "win/files/system_recycle_bin.h"
#include "win/system/handles.h"

namespace varnel::bench {

inline std::wstring TemporaryPath(std::wstring_view name) {
  return std::filesystem::temp_directory_path().wstring() + std::wstring(name);
}

// Writes over a file, and where it is wished waits until the disk has it.
inline void WritePlainly(const std::wstring& path, const std::string& bytes, bool flushed) {
  const UniqueFile file(::CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
  DWORD written = 0;
  ::WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  if (flushed) ::FlushFileBuffers(file.get());
}

// A folder of many files of the same content, in no order, gone at the end.
class ManyFiles {
 public:
  ManyFiles(int count, const std::wstring& ending, const std::string& content) {
    std::filesystem::create_directory(folder_);
    for (int i = 0; i < count; ++i) {
      std::ofstream(PathOf(i * 7919 % count, ending), std::ios::binary) << content;
    }
  }
  ManyFiles(const ManyFiles&) = delete;
  ManyFiles& operator=(const ManyFiles&) = delete;
  ~ManyFiles() { std::filesystem::remove_all(folder_); }

  const std::wstring& folder() const { return folder_; }
  std::filesystem::path PathOf(int number, const std::wstring& ending) const {
    return folder_ + L"\\document " + NumberText(number) + ending;
  }

 private:
  const std::wstring folder_ = TemporaryPath(L"varnel bench folder");
};

// 10,000 documents listed and sorted, against asking for every name.
inline double ListAgainstFindFile(const std::wstring& ending, std::vector<std::wstring> endings) {
  const ManyFiles many(10'000, ending, {});
  DiskFiles files;
  SystemRecycleBin bin;
  DocumentFolder documents(files, bin, std::move(endings));
  documents.Adopt(many.folder());
  const auto find = [&] {
    WIN32_FIND_DATAW found = {};
    HANDLE search = ::FindFirstFileW((many.folder() + L"\\*" + ending).c_str(), &found);
    int count = 1;
    while (::FindNextFileW(search, &found)) ++count;
    ::FindClose(search);
    Keep(count);
  };
  return Ratio([&] { Keep(documents.Refresh().any()); }, find, 9);
}

}  // namespace varnel::bench
