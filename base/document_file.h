// One document of the user: read, saved whole, never written over what others made of it. What it
// was before each saving is kept, and while it has unsaved changes there is a draft, both in a
// hidden folder beside it. What the bytes mean is the family's.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/file_store.h"

namespace varnel {

inline constexpr std::size_t kMostVersions = 10;  // of one document; the oldest goes

// A content that a document had.
struct DocumentVersion {
  std::wstring path;
  FileStamp stamp;  // when that content was saved, and its size
  bool operator==(const DocumentVersion&) const = default;
};

// Unsaved changes of a program that did not come to its end.
struct FoundDraft {
  std::wstring path;           // of the draft
  std::wstring document_path;  // whose changes they are; for one never saved, where it would be
  FileStamp stamp;
  bool has_document = false;
  bool older = false;  // than the document as it stands now
};

// The drafts in the hidden folder of `folder`, the newest first. A draft that holds nothing but
// what its document holds is removed. To be asked before any document of the folder is open.
std::vector<FoundDraft> FindDrafts(FileStore& files, const std::wstring& folder);

// The versions of a document follow it when it gets another name, in place of those that a document
// of that name has left, and go with it.
std::vector<DocumentVersion> VersionsOf(const FileStore& files, const std::wstring& path);
void MoveVersions(FileStore& files, const std::wstring& old_path, const std::wstring& new_path);
void RemoveVersions(FileStore& files, const std::wstring& path);

enum class OthersChanges { kAsk, kReplace };

class DocumentFile {
 public:
  // A draft is due so long after the last change, and so long after the first at the latest.
  static constexpr std::uint64_t kDraftDelayMs = 3000;
  static constexpr std::uint64_t kLongestDraftDelayMs = 15000;

  explicit DocumentFile(FileStore& files) : files_(files) {}

  // Takes up the document at `path`, of at most `limit` bytes. Where it cannot be read, the one
  // before stays.
  FileRead Open(const std::wstring& path, std::size_t limit);
  // Takes up a document that has no file; it would be `path`, which may change when it is saved.
  void StartNew(const std::wstring& path);
  // Takes up a draft as unsaved changes of its document. Where it cannot be read, the document
  // before stays.
  FileRead OpenDraft(const FoundDraft& draft, std::size_t limit);

  const std::wstring& path() const { return path_; }
  bool has_file() const { return stamp_ != kNoFile; }

  // Notes a change at the moment `now`, in milliseconds of a clock that is never set.
  void NoteChange(std::uint64_t now);
  bool changed() const { return changed_; }
  // The moment at which a draft is to be kept; nothing while none is needed.
  std::optional<std::uint64_t> DraftDue() const;
  // Keeps `bytes` as the draft. Where that fails it is due again after the longest delay.
  FileResult KeepDraft(std::string_view bytes, std::uint64_t now);

  // kDone while the file is as it was read or saved, else kChanged or kMissing.
  FileResult Check() const;

  // Saves `bytes` in the document's file. kChanged when others have changed it and nothing was said
  // about that: nothing is written then. A file that others deleted is written anew. Whatever
  // fails, the file holds what it held, and the changes stay unsaved; their draft is the caller's
  // to keep.
  FileResult Save(std::string_view bytes, OthersChanges others = OthersChanges::kAsk);
  // Saves as another file, which the document then is. kExists when there is such a file and
  // nothing was said about it.
  FileResult SaveAs(const std::wstring& path, std::string_view bytes,
                    OthersChanges others = OthersChanges::kAsk);

  // The file has got another name; its versions were moved along.
  void NoteRename(const std::wstring& path);

  std::vector<DocumentVersion> Versions() const {
    return VersionsOf(files_, path_);
  }  // newest first

  // Drops unsaved changes, and the draft of them: the normal end of work on a document.
  void Close();

 private:
  void TakeUp(const std::wstring& path, const FileStamp& stamp);
  FileResult Write(std::string_view bytes, OthersChanges others);
  std::wstring KeepVersion(const FileStamp& stamp);

  FileStore& files_;
  std::wstring path_;
  FileStamp stamp_;
  std::wstring draft_path_;  // empty until there is one
  bool changed_ = false;
  std::optional<std::uint64_t> first_change_;  // that no draft has
  std::uint64_t last_change_ = 0;
};

}  // namespace varnel
