// A file store in memory, for tests of engines; it can be told to fail.
#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/file_store.h"
#include "base/text.h"

namespace varnel::test {

class MemoryFiles : public FileStore {
 public:
  std::optional<std::string> Read(const std::wstring& path, std::size_t limit) const override {
    const auto found = files.find(path);
    if (found == files.end() || found->second.size() > limit) return std::nullopt;
    return found->second;
  }
  bool Replace(const std::wstring& path, std::string_view bytes) override {
    if (fail_writes) return false;
    files[path] = bytes;
    ++writes;
    return true;
  }
  bool Append(const std::wstring& path, std::size_t size, std::string_view bytes) override {
    const auto found = files.find(path);
    if (fail_writes || found == files.end() || found->second.size() != size) return false;
    found->second += bytes;
    ++writes;
    return true;
  }
  bool FileExists(const std::wstring& path) const override { return files.contains(path); }
  bool FolderExists(const std::wstring& path) const override {
    return folders.contains(Bare(path));
  }
  bool CreateFolder(const std::wstring& path) override {
    if (fail_writes) return false;
    folders.insert(Bare(path));
    return true;
  }
  bool MoveFolder(const std::wstring& old_path, const std::wstring& new_path) override {
    if (fail_writes || folders.erase(Bare(old_path)) == 0) return false;
    folders.insert(Bare(new_path));
    return true;
  }
  bool Rename(const std::wstring& old_path, const std::wstring& new_path) override {
    if (fail_writes || files.contains(new_path)) return false;
    auto node = files.extract(old_path);
    if (node.empty()) return false;
    node.key() = new_path;
    files.insert(std::move(node));
    return true;
  }
  bool Remove(const std::wstring& path) override {
    if (fail_writes) return !files.contains(path);
    files.erase(path);
    return true;
  }
  std::vector<std::wstring> FileNames(const std::wstring& folder,
                                      std::wstring_view ending) const override {
    const std::wstring start = Bare(folder) + L"\\";
    std::vector<std::wstring> names;
    for (const auto& [path, bytes] : files) {
      if (path.compare(0, start.size(), start) != 0) continue;
      const std::wstring name = path.substr(start.size());
      if (name.find(L'\\') == std::wstring::npos && EndsWithIgnoreCase(name, ending)) {
        names.push_back(name);
      }
    }
    return names;
  }

  std::map<std::wstring, std::string> files;
  std::set<std::wstring> folders;  // without a final separator
  bool fail_writes = false;
  int writes = 0;

 private:
  static std::wstring Bare(std::wstring path) {
    while (path.ends_with(L'\\')) path.pop_back();
    return path;
  }
};

}  // namespace varnel::test
