// The documents in one folder, as a list that follows what others do to it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/file_store.h"
#include "base/recycle_bin.h"

namespace varnel {

// What was found to be different, as names; each sorted as the list is.
struct FolderChanges {
  FileResult result = FileResult::kDone;  // of reading the folder
  std::vector<std::wstring> added;
  std::vector<std::wstring> removed;
  std::vector<std::wstring> changed;
  bool any() const { return !added.empty() || !removed.empty() || !changed.empty(); }
};

enum class RenameResult {
  kDone,
  kBadName,  // it cannot be the name of a file
  kClash,    // another document has that name: ask, then rename again with kReplace
  kFailed,   // the file could not be renamed, see the FileResult beside it
};

struct Renamed {
  RenameResult result = RenameResult::kFailed;
  FileResult trouble = FileResult::kDone;
  std::wstring name;  // with its ending, as it is now
};

enum class NameClash { kAsk, kReplace };

class DocumentFolder {
 public:
  // `endings` with their dots, such as ".rtf"; without any, every file is a document. `files` and
  // `bin` must outlive this.
  DocumentFolder(FileStore& files, RecycleBin& bin, std::vector<std::wstring> endings)
      : files_(files), bin_(bin), endings_(std::move(endings)) {}

  // Turns to another folder, whether it is there or not, and lists it. The path may end in "\".
  FolderChanges Adopt(std::wstring folder);
  // Lists the folder anew. One that cannot be read leaves the list as it was; one that is gone
  // empties it.
  FolderChanges Refresh();

  const std::wstring& folder() const { return folder_; }  // without a final separator
  std::size_t count() const { return documents_.size(); }

  // In the order of CompareNaturally by name. `index` must be below count().
  const std::wstring& Name(std::size_t index) const { return documents_[index].name; }
  const FileStamp& Stamp(std::size_t index) const { return documents_[index].stamp; }
  std::wstring Title(std::size_t index) const;  // the name without its ending
  std::wstring Path(std::size_t index) const { return folder_ + L"\\" + Name(index); }
  std::size_t Key(std::size_t index) const { return index + 1; }  // what the list counts it as

  // The document of that name, in any case.
  std::optional<std::size_t> Find(std::wstring_view name) const;
  // The same, or where the name would stand: where to go on when it is gone. Below count() unless
  // there is no document at all.
  std::size_t FindNearest(std::wstring_view name) const;

  // Gives the document the title that a user typed, with `ending`. Its versions move along, and one
  // that is replaced goes to the recycle bin. The list is read anew.
  Renamed Rename(std::size_t index, std::wstring_view typed, std::wstring_view ending,
                 NameClash clash = NameClash::kAsk);

  // Puts the document into the recycle bin and drops its versions. The list is read anew.
  FileResult Remove(std::size_t index);
  // What is selected after `index` was removed: the one before, or the first.
  static std::size_t SelectionAfter(std::size_t index) { return index == 0 ? 0 : index - 1; }

 private:
  bool IsDocument(const std::wstring& name) const;

  FileStore& files_;
  RecycleBin& bin_;
  std::vector<std::wstring> endings_;
  std::wstring folder_;
  std::vector<FileEntry> documents_;
};

}  // namespace varnel
