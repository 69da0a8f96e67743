// A file store in memory, for tests of engines; it can be told to fail. It keeps the rules of the
// one on the disk; one suite holds both to them.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/file_store.h"
#include "base/name_order.h"

namespace varnel::test {

struct NameLess {
  bool operator()(const std::wstring& left, const std::wstring& right) const {
    return CompareNames(left, right) < 0;
  }
};

class MemoryFiles : public FileStore {
 public:
  MemoryFiles() = default;
  // With an empty folder.
  explicit MemoryFiles(const std::wstring& folder) { CreateFolder(folder); }

  FileRead Read(const std::wstring& path, std::size_t limit) const override {
    const auto found = files.find(path);
    if (folders.contains(Bare(path))) return {FileResult::kDenied, {}, {}};
    if (found == files.end()) return {MissingOf(path), {}, {}};
    if (locked.contains(path)) return {FileResult::kLocked, {}, {}};
    if (found->second.size() > limit) return {FileResult::kTooLarge, {}, Stamp(path)};
    return {FileResult::kDone, found->second, Stamp(path)};
  }
  FileWritten Replace(const std::wstring& path, std::string_view bytes,
                      const std::optional<FileStamp>& expected = {}) override {
    if (expected && Stamp(path) != *expected) return {FileResult::kChanged, {}};
    if (const FileResult fault = WriteFault(path); fault != FileResult::kDone) return {fault, {}};
    return Written(path, files[path] = bytes);
  }
  FileWritten Append(const std::wstring& path, const FileStamp& expected,
                     std::string_view bytes) override {
    if (const FileResult fault = WriteFault(path); fault != FileResult::kDone) return {fault, {}};
    if (!files.contains(path)) return {FileResult::kMissing, {}};
    if (Stamp(path) != expected) return {FileResult::kChanged, {}};
    return Written(path, files[path] += bytes);
  }
  FileStamp Stamp(const std::wstring& path) const override {
    const auto found = files.find(path);
    if (found == files.end()) return kNoFile;
    auto& known = seen_[path];
    // Whatever else changed the size was another program.
    if (known.written == 0 || known.size != found->second.size()) {
      known = {found->second.size(), ++clock_};
    }
    return known;
  }
  bool IsReadOnly(const std::wstring& path) const override { return read_only.contains(path); }
  bool FolderExists(const std::wstring& path) const override {
    return folders.contains(Bare(path));
  }
  bool CreateFolder(const std::wstring& path, FolderLook look = FolderLook::kPlain) override {
    const std::wstring bare = Bare(path);
    if (bare.size() <= 2 || folders.contains(bare)) return true;
    if (fail_writes || files.contains(bare) || !CreateFolder(FolderOf(bare))) return false;
    folders.insert(bare);
    if (look == FolderLook::kHidden) hidden.insert(bare);
    return true;
  }
  FileResult MoveFolder(const std::wstring& old_path, const std::wstring& new_path) override {
    const std::wstring from = Bare(old_path);
    const std::wstring to = Bare(new_path);
    if (!folders.contains(from)) return FileResult::kNoFolder;
    if (folders.contains(to) || files.contains(to)) return FileResult::kExists;
    if (!folders.contains(FolderOf(to)) && FolderOf(to).size() > 2) return FileResult::kNoFolder;
    if (fail_writes || FoldedName(to).starts_with(FoldedName(from + L"\\"))) {
      return FileResult::kFailed;
    }
    for (const auto& path : locked) {
      if (Below(path, from)) return FileResult::kLocked;
    }
    MoveKeys(files, from, to);
    MoveKeys(seen_, from, to);
    for (auto* set : {&folders, &hidden, &read_only}) MoveNames(*set, from, to);
    return FileResult::kDone;
  }
  FileResult Rename(const std::wstring& old_path, const std::wstring& new_path) override {
    if (!files.contains(old_path)) return FileResult::kMissing;
    if (fail_writes) return FileResult::kFailed;
    if (locked.contains(old_path)) return FileResult::kLocked;
    const bool same = CompareNames(old_path, new_path) == 0;
    if (!same && (files.contains(new_path) || folders.contains(new_path))) {
      return FileResult::kExists;
    }
    if (!HasFolder(new_path)) return FileResult::kNoFolder;
    MoveKeys(files, old_path, new_path);
    MoveKeys(seen_, old_path, new_path);
    MoveNames(read_only, old_path, new_path);
    return FileResult::kDone;
  }
  FileResult Keep(const std::wstring& path, const std::wstring& copy_path) override {
    if (!files.contains(path)) return FileResult::kMissing;
    if (files.contains(copy_path)) return FileResult::kExists;
    if (fail_writes) return FileResult::kFull;
    if (!HasFolder(copy_path)) return FileResult::kNoFolder;
    Stamp(path);
    files[copy_path] = files[path];
    seen_[copy_path] = seen_[path];
    return FileResult::kDone;
  }
  FileResult Remove(const std::wstring& path, Removal removal = Removal::kUnlessReadOnly) override {
    if (folders.contains(Bare(path))) return FileResult::kDenied;
    if (!files.contains(path)) return FileResult::kDone;
    if (fail_writes) return FileResult::kFailed;
    if (locked.contains(path)) return FileResult::kLocked;
    if (read_only.contains(path) && removal != Removal::kForced) return FileResult::kReadOnly;
    files.erase(path);
    seen_.erase(path);
    read_only.erase(path);
    return FileResult::kDone;
  }
  FolderListing Files(const std::wstring& folder) const override {
    const std::wstring bare = Bare(folder);
    if (!folders.contains(bare)) return {FileResult::kNoFolder, {}};
    FolderListing listing{FileResult::kDone, {}};
    for (const auto& [path, bytes] : files) {
      if (CompareNames(FolderOf(path), bare) != 0) continue;
      listing.files.push_back({path.substr(bare.size() + 1), Stamp(path)});
    }
    return listing;
  }

  // Puts a file there as another program would, with its folder.
  void Plant(const std::wstring& path, std::string bytes) {
    const bool failing = std::exchange(fail_writes, false);
    CreateFolder(FolderOf(path));
    fail_writes = failing;
    Written(path, files[path] = std::move(bytes));
    --writes;
  }

  using Names = std::set<std::wstring, NameLess>;
  // To be looked at, and meddled with as another program would.
  std::map<std::wstring, std::string, NameLess> files;
  Names folders;  // without a final separator; drives are always there
  Names hidden;   // of the folders
  Names locked;
  Names read_only;
  bool fail_writes = false;  // a full disk
  int writes = 0;

 private:
  static std::wstring Bare(std::wstring path) {
    while (path.ends_with(L'\\')) path.pop_back();
    return path;
  }
  static std::wstring FolderOf(const std::wstring& path) {
    const std::size_t cut = path.rfind(L'\\');
    return path.substr(0, cut == std::wstring::npos ? 0 : cut);
  }
  static bool Below(const std::wstring& path, const std::wstring& folder) {
    return CompareNames(path, folder) == 0 ||
           FoldedName(path).starts_with(FoldedName(folder + L"\\"));
  }
  template <class Map>
  static void MoveKeys(Map& map, const std::wstring& from, const std::wstring& to) {
    Map moved;
    for (auto it = map.begin(); it != map.end();) {
      const auto next = std::next(it);
      if (Below(it->first, from)) {
        auto node = map.extract(it);
        node.key() = to + node.key().substr(from.size());
        moved.insert(std::move(node));
      }
      it = next;
    }
    map.merge(moved);
  }
  static void MoveNames(Names& names, const std::wstring& from, const std::wstring& to) {
    Names moved;
    for (const auto& name : names) {
      moved.insert(Below(name, from) ? to + name.substr(from.size()) : name);
    }
    names = std::move(moved);
  }
  bool HasFolder(const std::wstring& path) const {
    const std::wstring folder = FolderOf(path);
    return folder.size() <= 2 || folders.contains(folder);
  }
  FileResult MissingOf(const std::wstring& path) const {
    return HasFolder(path) ? FileResult::kMissing : FileResult::kNoFolder;
  }
  FileResult WriteFault(const std::wstring& path) const {
    if (folders.contains(Bare(path))) return FileResult::kDenied;
    if (read_only.contains(path)) return FileResult::kReadOnly;
    if (!HasFolder(path)) return FileResult::kNoFolder;
    if (locked.contains(path)) return FileResult::kLocked;
    return fail_writes ? FileResult::kFull : FileResult::kDone;
  }
  FileWritten Written(const std::wstring& path, const std::string& content) {
    ++writes;
    return {FileResult::kDone, seen_[path] = {content.size(), ++clock_}};
  }

  mutable std::map<std::wstring, FileStamp, NameLess> seen_;
  mutable std::uint64_t clock_ = 0;
};

}  // namespace varnel::test
