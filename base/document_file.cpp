#include "base/document_file.h"

#include <algorithm>

#include "base/name_order.h"
#include "base/number_text.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr wchar_t kHiddenFolder[] = L".varnel";
constexpr std::wstring_view kDraftEnding = L".draft";
constexpr int kMostDrafts = 99;  // of one document
constexpr std::size_t kMostDigits = 9;

std::wstring FolderOf(const std::wstring& path) {
  const std::size_t cut = path.rfind(L'\\');
  return path.substr(0, cut == std::wstring::npos ? 0 : cut);
}

std::wstring NameOf(const std::wstring& path) {
  return path.substr(path.rfind(L'\\') + 1);
}

std::wstring HiddenFolderOf(const std::wstring& folder) {
  return folder + L"\\" + kHiddenFolder;
}

std::wstring HiddenPath(const std::wstring& path) {
  return HiddenFolderOf(FolderOf(path)) + L"\\" + NameOf(path);
}

// The number that a text of digits is, or nothing.
std::optional<int> NumberOf(std::wstring_view digits) {
  if (digits.empty() || digits.size() > kMostDigits) return std::nullopt;
  int number = 0;
  for (const wchar_t unit : digits) {
    if (unit < L'0' || unit > L'9') return std::nullopt;
    number = number * 10 + (unit - L'0');
  }
  return number;
}

struct NumberedVersion {
  int number = 0;
  DocumentVersion version;
};

// The newest first.
std::vector<NumberedVersion> NumberedVersions(const FileStore& files, const std::wstring& path) {
  const std::wstring start = FoldedName(NameOf(path)) + L".";
  const std::wstring folder = HiddenFolderOf(FolderOf(path));
  std::vector<NumberedVersion> versions;
  for (const FileEntry& file : files.Files(folder).files) {
    if (!FoldedName(file.name).starts_with(start)) continue;
    const auto number = NumberOf(std::wstring_view(file.name).substr(start.size()));
    if (number) versions.push_back({*number, {folder + L"\\" + file.name, file.stamp}});
  }
  std::ranges::sort(versions, std::ranges::greater(), &NumberedVersion::number);
  return versions;
}

// "NAME.draft" and "NAME.2.draft" are drafts of NAME, unless there is a document "NAME.2".
std::wstring DocumentNameOf(const FileStore& files, const std::wstring& folder,
                            std::wstring_view draft_name) {
  std::wstring_view name = draft_name.substr(0, draft_name.size() - kDraftEnding.size());
  if (files.FileExists(folder + L"\\" + std::wstring(name))) return std::wstring(name);
  const std::size_t cut = name.rfind(L'.');
  if (cut != std::wstring_view::npos && NumberOf(name.substr(cut + 1))) name = name.substr(0, cut);
  return std::wstring(name);
}

std::wstring FreeDraftPath(const FileStore& files, const std::wstring& path) {
  const std::wstring start = HiddenPath(path);
  std::wstring draft = start + std::wstring(kDraftEnding);
  for (int i = 2; i <= kMostDrafts && files.FileExists(draft); ++i) {
    draft = start + L"." + NumberText(i) + std::wstring(kDraftEnding);
  }
  return draft;
}

bool SameContent(const FileStore& files, const std::wstring& one, const std::wstring& other) {
  const FileStamp stamp = files.Stamp(one);
  if (files.Stamp(other).size != stamp.size) return false;
  const auto limit = static_cast<std::size_t>(stamp.size);
  const FileRead first = files.Read(one, limit);
  const FileRead second = files.Read(other, limit);
  return first && second && first.bytes == second.bytes;
}

}  // namespace

std::vector<FoundDraft> FindDrafts(FileStore& files, const std::wstring& folder) {
  std::wstring bare = folder;
  while (bare.ends_with(L'\\')) bare.pop_back();
  std::vector<FoundDraft> drafts;
  for (const FileEntry& file : files.Files(HiddenFolderOf(bare)).files) {
    if (!EndsWithIgnoreCase(file.name, kDraftEnding)) continue;
    FoundDraft draft;
    draft.path = HiddenFolderOf(bare) + L"\\" + file.name;
    draft.document_path = bare + L"\\" + DocumentNameOf(files, bare, file.name);
    draft.stamp = file.stamp;
    const FileStamp document = files.Stamp(draft.document_path);
    draft.has_document = document != kNoFile;
    draft.older = file.stamp.written < document.written;
    if (draft.has_document && SameContent(files, draft.path, draft.document_path)) {
      files.Remove(draft.path, Removal::kForced);
    } else {
      drafts.push_back(std::move(draft));
    }
  }
  std::ranges::sort(drafts, [](const FoundDraft& left, const FoundDraft& right) {
    return left.stamp.written > right.stamp.written;
  });
  return drafts;
}

std::vector<DocumentVersion> VersionsOf(const FileStore& files, const std::wstring& path) {
  std::vector<DocumentVersion> versions;
  for (auto& [number, version] : NumberedVersions(files, path)) {
    versions.push_back(std::move(version));
  }
  return versions;
}

void RemoveVersions(FileStore& files, const std::wstring& path) {
  for (const DocumentVersion& version : VersionsOf(files, path)) {
    files.Remove(version.path, Removal::kForced);
  }
}

void MoveVersions(FileStore& files, const std::wstring& old_path, const std::wstring& new_path) {
  RemoveVersions(files, new_path);
  for (const auto& [number, version] : NumberedVersions(files, old_path)) {
    files.Rename(version.path, HiddenPath(new_path) + L"." + NumberText(number));
  }
}

FileRead DocumentFile::Open(const std::wstring& path, std::size_t limit) {
  FileRead read = files_.Read(path, limit);
  if (read) TakeUp(path, read.stamp);
  return read;
}

void DocumentFile::StartNew(const std::wstring& path) {
  TakeUp(path, kNoFile);
}

FileRead DocumentFile::OpenDraft(const FoundDraft& draft, std::size_t limit) {
  FileRead read = files_.Read(draft.path, limit);
  if (!read) return read;
  if (draft_path_ == draft.path) draft_path_.clear();  // its own, taken up again
  TakeUp(draft.document_path, files_.Stamp(draft.document_path));
  draft_path_ = draft.path;
  changed_ = true;
  return read;
}

void DocumentFile::TakeUp(const std::wstring& path, const FileStamp& stamp) {
  Close();
  path_ = path;
  stamp_ = stamp;
}

void DocumentFile::NoteChange(std::uint64_t now) {
  changed_ = true;
  last_change_ = now;
  if (!first_change_) first_change_ = now;
}

std::optional<std::uint64_t> DocumentFile::DraftDue() const {
  if (!first_change_) return std::nullopt;
  return std::min(last_change_ + kDraftDelayMs, *first_change_ + kLongestDraftDelayMs);
}

FileResult DocumentFile::KeepDraft(std::string_view bytes, std::uint64_t now) {
  if (draft_path_.empty()) draft_path_ = FreeDraftPath(files_, path_);
  FileResult result = FileResult::kNoFolder;
  // A hidden folder is no place to put what has no folder any more.
  if (files_.FolderExists(FolderOf(path_))) {
    files_.CreateFolder(FolderOf(draft_path_), FolderLook::kHidden);
    result = files_.Replace(draft_path_, bytes).result;
  }
  if (result == FileResult::kDone) {
    first_change_.reset();
  } else {
    first_change_ = now;
    last_change_ = now + kLongestDraftDelayMs - kDraftDelayMs;
  }
  return result;
}

FileResult DocumentFile::Check() const {
  const FileStamp stamp = files_.Stamp(path_);
  if (stamp == stamp_) return FileResult::kDone;
  return stamp == kNoFile ? FileResult::kMissing : FileResult::kChanged;
}

FileResult DocumentFile::Save(std::string_view bytes, OthersChanges others) {
  const FileResult result = Write(bytes, others);
  if (result == FileResult::kDone) Close();
  return result;
}

FileResult DocumentFile::SaveAs(const std::wstring& path, std::string_view bytes,
                                OthersChanges others) {
  if (CompareNames(path, path_) == 0) return Save(bytes, others);
  const std::wstring former_path = path_;
  const FileStamp former_stamp = stamp_;
  path_ = path;
  stamp_ = kNoFile;
  const FileResult result = Save(bytes, others);
  if (result == FileResult::kDone) return result;
  path_ = former_path;
  stamp_ = former_stamp;
  return result == FileResult::kChanged ? FileResult::kExists : result;
}

FileResult DocumentFile::Write(std::string_view bytes, OthersChanges others) {
  const FileStamp stamp = files_.Stamp(path_);
  if (stamp != stamp_ && stamp != kNoFile && others == OthersChanges::kAsk) {
    return FileResult::kChanged;
  }
  // A version may be the file itself under a second name, and taking it back would clear the mark.
  if (files_.IsReadOnly(path_)) return FileResult::kReadOnly;
  const std::wstring version = stamp == kNoFile ? std::wstring() : KeepVersion(stamp);
  const FileWritten written = files_.Replace(path_, bytes, stamp);
  if (!written) {
    // A version may be the file itself under a second name, so it must not outlive this.
    if (!version.empty()) files_.Remove(version, Removal::kForced);
    return written.result;
  }
  stamp_ = written.stamp;
  const auto versions = Versions();
  for (std::size_t i = kMostVersions; i < versions.size(); ++i) {
    files_.Remove(versions[i].path, Removal::kForced);
  }
  return FileResult::kDone;
}

// Keeps what is in the file now. Gives the version's path, or nothing when there is no new one: a
// saving that was interrupted has left it already, or there is no room, which is no reason to
// refuse the saving itself.
std::wstring DocumentFile::KeepVersion(const FileStamp& stamp) {
  const auto versions = NumberedVersions(files_, path_);
  if (!versions.empty() && versions.front().version.stamp == stamp) return {};
  const int number = versions.empty() ? 1 : versions.front().number + 1;
  const std::wstring version = HiddenPath(path_) + L"." + NumberText(number);
  if (!files_.CreateFolder(FolderOf(version), FolderLook::kHidden)) return {};
  return files_.Keep(path_, version) == FileResult::kDone ? version : std::wstring();
}

void DocumentFile::NoteRename(const std::wstring& path) {
  path_ = path;
  if (draft_path_.empty()) return;
  const std::wstring draft_path = FreeDraftPath(files_, path);
  if (files_.Rename(draft_path_, draft_path) == FileResult::kDone) draft_path_ = draft_path;
}

void DocumentFile::Close() {
  changed_ = false;
  first_change_.reset();
  if (!draft_path_.empty()) files_.Remove(draft_path_, Removal::kForced);
  draft_path_.clear();
}

}  // namespace varnel
