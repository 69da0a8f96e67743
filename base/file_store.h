// Files as engines see them. Paths are absolute, with "\" between the parts; names differ when they
// differ in more than case.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace varnel {

// What became of an operation on a file or folder.
enum class FileResult {
  kDone,
  kMissing,   // there is no such file
  kNoFolder,  // the folder is not there, or its drive is not
  kLocked,    // another program holds the file
  kReadOnly,  // the file is marked so
  kDenied,    // the user has no right to, or something else than a file has that name
  kFull,      // no room is left on the disk
  kTooLarge,  // more bytes than the caller takes
  kChanged,   // others have changed the file since the caller read or wrote it
  kExists,    // the new name is taken
  kFailed,    // any other fault of the disk or the way to it
};

// What is wrong, in words that follow the name of the file: "is in use by another program". Empty
// for kDone.
std::wstring_view FileTrouble(FileResult result);

// By what a file's content is known again. A file that is not there has none of both.
struct FileStamp {
  std::uint64_t size = 0;     // bytes
  std::uint64_t written = 0;  // the last time, in 100 ns since 1601 in UTC; never 0 for a file
  bool operator==(const FileStamp&) const = default;
};
inline constexpr FileStamp kNoFile;

struct FileRead {
  FileResult result = FileResult::kFailed;
  std::string bytes;  // whole where the result is kDone, else empty
  FileStamp stamp;    // of those bytes
  explicit operator bool() const { return result == FileResult::kDone; }
};

struct FileWritten {
  FileResult result = FileResult::kFailed;
  FileStamp stamp;  // of the file as it was written, where the result is kDone
  explicit operator bool() const { return result == FileResult::kDone; }
};

struct FileEntry {
  std::wstring name;  // without the folder
  FileStamp stamp;
  bool operator==(const FileEntry&) const = default;
};

struct FolderListing {
  FileResult result = FileResult::kFailed;
  std::vector<FileEntry> files;  // in no particular order; hidden ones too, folders not
};

enum class Removal { kUnlessReadOnly, kForced };
enum class FolderLook { kPlain, kHidden };

class FileStore {
 public:
  virtual ~FileStore() = default;

  // The whole content of a file of at most `limit` bytes. Never waits for a file that is locked.
  virtual FileRead Read(const std::wstring& path, std::size_t limit) const = 0;

  // Puts `bytes` in place of the file's content, whole or not at all: whatever fails, and whenever
  // the program ends, the file holds the old or the new content. With `expected` only a file that
  // still has that stamp (kNoFile: that is not there) is replaced, else the result is kChanged.
  virtual FileWritten Replace(const std::wstring& path, std::string_view bytes,
                              const std::optional<FileStamp>& expected = {}) = 0;

  // Adds `bytes` at the end of the file, which must still have the stamp `expected`. Where the
  // program ends meanwhile, a first part of them may stand there.
  virtual FileWritten Append(const std::wstring& path, const FileStamp& expected,
                             std::string_view bytes) = 0;

  // kNoFile where there is no such file.
  virtual FileStamp Stamp(const std::wstring& path) const = 0;
  bool FileExists(const std::wstring& path) const { return Stamp(path) != kNoFile; }
  // Whether the file is marked read-only; false where there is none.
  virtual bool IsReadOnly(const std::wstring& path) const = 0;
  virtual bool FolderExists(const std::wstring& path) const = 0;

  // Creates the folder and every missing one above it; only the folder itself is hidden. A folder
  // that is there stays as it is. True when it exists afterwards.
  virtual bool CreateFolder(const std::wstring& path, FolderLook look = FolderLook::kPlain) = 0;

  // Gives a folder with all it holds another name or place, also on another drive: it stands there
  // whole, or it stays where it was, whole. kExists when something has the new name.
  virtual FileResult MoveFolder(const std::wstring& old_path, const std::wstring& new_path) = 0;

  // Gives the file another name or place on the same drive, or a name in another case; a file that
  // already stands there is never replaced.
  virtual FileResult Rename(const std::wstring& old_path, const std::wstring& new_path) = 0;

  // Keeps the file's content under a second name, which must be free: what is put in place of
  // `path` afterwards leaves it as it is, and so does the copy's stamp.
  virtual FileResult Keep(const std::wstring& path, const std::wstring& copy_path) = 0;

  // kDone also when there was no such file.
  virtual FileResult Remove(const std::wstring& path,
                            Removal removal = Removal::kUnlessReadOnly) = 0;

  virtual FolderListing Files(const std::wstring& folder) const = 0;

  // Names (without folder) of the files in `folder` whose name ends in `ending` (any case), in the
  // order of CompareNames; empty when there is no such folder.
  std::vector<std::wstring> FileNames(const std::wstring& folder, std::wstring_view ending) const;
};

}  // namespace varnel
