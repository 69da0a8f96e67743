#include "widgets/notes/note_desk.h"

#include <algorithm>
#include <utility>

#include "base/name_order.h"
#include "base/text.h"

namespace varnel {
namespace {

constexpr std::wstring_view kNotWhole = L"The note cannot be written whole. Nothing was saved";

bool SamePath(std::wstring_view one, std::wstring_view other) {
  return CompareNames(one, other) == 0;
}

std::wstring Quoted(std::wstring_view path) {
  return L"\"" + std::wstring(NoteTitle(path)) + L"\"";
}

}  // namespace

NoteDesk::NoteDesk(FileStore& files, RecycleBin& bin, const WallClock& clock, NoteContent& content,
                   std::int32_t counter)
    : files_(files),
      clock_(clock),
      content_(content),
      document_(counter),
      folder_(files, bin, {}),
      file_(files) {}

FileExists NoteDesk::Exists() const {
  return [this](const std::wstring& path) {
    const std::wstring trimmed = Trim(path);
    return !trimmed.empty() && files_.FileExists(trimmed);
  };
}

void NoteDesk::TellTrouble(std::wstring_view path, FileResult result) {
  notice_ = Quoted(path) + L" " + std::wstring(FileTrouble(result));
}

std::optional<std::size_t> NoteDesk::current() const {
  const std::wstring& path = document_.path();
  if (!SamePath(path, FolderPath() + std::wstring(FileTitle(path)))) return std::nullopt;
  return folder_.Find(FileTitle(path));
}

void NoteDesk::Adopt(const std::wstring& folder) {
  folder_.Adopt(folder);
}

// --- starting and opening

// A note without a file would have its title as name; its draft goes by that.
void NoteDesk::StartFile() {
  file_->StartNew(FolderPath() + document_.path() + L"." +
                  std::wstring(NoteTypeName(document_.type())));
  deleted_ = false;
}

bool NoteDesk::DocumentNew(NoteType type) {
  notice_.clear();
  if (!SaveModified()) return false;
  if (!document_.StartNew(type)) {
    notice_ = L"No further note can be numbered before the program is started anew";
    return false;
  }
  StartFile();
  content_.StartEmpty(type);
  return true;
}

bool NoteDesk::DocumentOpenFile(const std::wstring& path) {
  if (!DocumentNew(NoteTypeOf(path))) return false;
  DocumentFile next(files_);
  const FileRead read = next.Open(path, kMostNoteBytes);
  if (!read) {
    TellTrouble(path, read.result);
    return false;
  }
  return ShowFile(std::move(next), read, path);
}

bool NoteDesk::ShowFile(DocumentFile file, const FileRead& read, const std::wstring& path) {
  const NoteContent::Shown shown = content_.Show(NoteTypeOf(path), read.bytes);
  file_.emplace(std::move(file));
  deleted_ = false;
  document_.Opened(path, shown.type);
  if (!shown.notice.empty()) notice_ = shown.notice;
  return true;
}

void NoteDesk::ShowDraft(DocumentFile file, const FileRead& read, const FoundDraft& draft) {
  if (draft.has_document) {
    ShowFile(std::move(file), read, draft.document_path);
  } else {
    const NoteType type = NoteTypeOf(draft.document_path);
    document_.StartNew(type);
    const NoteContent::Shown content = content_.Show(type, read.bytes);
    document_.Opened(document_.path(), content.type);
    file_.emplace(std::move(file));
  }
  document_.Changed(false);
}

bool NoteDesk::Recover(std::vector<std::wstring> folders) {
  for (std::wstring& folder : folders) {
    while (folder.ends_with(L'\\')) folder.pop_back();
  }
  // A draft that is shown must not be found again.
  for (auto folder = folders.begin(); folder != folders.end(); ++folder) {
    std::replace_if(
        std::next(folder), folders.end(),
        [&](const std::wstring& other) { return SamePath(other, *folder); }, std::wstring());
  }
  bool shown = false;
  std::wstring trouble;
  for (const std::wstring& folder : folders) {
    const auto drafts = folder.empty() ? std::vector<FoundDraft>() : FindDrafts(files_, folder);
    for (const FoundDraft& draft : drafts) {
      DocumentFile found(files_);
      const FileRead read = found.OpenDraft(draft, kMostDraftBytes);
      if (!read) {
        trouble = L"The draft of " + Quoted(draft.document_path) + L" " +
                  std::wstring(FileTrouble(read.result));
      } else if (shown || draft.older) {
        found.SaveAs(GeneratedNotePath(FolderPath(), clock_.Now(), draft.document_path,
                                       NoteTypeOf(draft.document_path), Exists()),
                     read.bytes);
      } else {
        ShowDraft(std::move(found), read, draft);
        shown = true;
      }
    }
  }
  if (shown) notice_ = L"Unsaved changes of the last run are back";
  if (!trouble.empty()) notice_ = std::move(trouble);
  folder_.Refresh();
  return shown;
}

std::wstring NoteDesk::draft_folder() const {
  return file_->path().substr(0, file_->path().rfind(L'\\'));
}

// --- saving

bool NoteDesk::SaveModified() {
  if (!document_.modified()) return true;
  std::wstring written;
  FileResult result = Write(document_.type(), document_.path(), OthersChanges::kAsk, written);
  if (result == FileResult::kChanged) {
    // What others made of the file stays.
    const std::wstring former = document_.path();
    const auto bytes = content_.Bytes(document_.type());
    written = GeneratedNotePath(FolderPath(), clock_.Now(), former, document_.type(), Exists());
    result = bytes ? file_->SaveAs(written, *bytes) : FileResult::kFailed;
    notice_ = L"Others changed " + Quoted(former) + L"; your text is saved as " + Quoted(written);
  }
  if (result != FileResult::kDone) {
    if (notice_ != kNotWhole) TellTrouble(document_.path(), result);
    return false;
  }
  document_.Saved(written);
  folder_.Refresh();
  return true;
}

FileResult NoteDesk::Write(NoteType type, const std::wstring& path, OthersChanges others,
                           std::wstring& written) {
  const auto bytes = content_.Bytes(type);
  if (!bytes || bytes->size() > kMostNoteBytes) {
    notice_ = kNotWhole;
    return FileResult::kFailed;
  }
  const FileExists exists = Exists();
  if (!exists(path)) {
    written = GeneratedNotePath(FolderPath(), clock_.Now(), document_.path(), type, exists);
    const FileResult result = file_->SaveAs(written, *bytes);
    if (result == FileResult::kDone) deleted_ = false;
    return result;
  }
  written = Trim(path);
  return SamePath(written, document_.path()) ? file_->Save(*bytes, others)
                                             : WriteCopy(written, *bytes);
}

// Over another file, whose content becomes a version of it.
FileResult NoteDesk::WriteCopy(const std::wstring& path, std::string_view bytes) {
  DocumentFile copy(files_);
  copy.StartNew(path);
  return copy.Save(bytes, OthersChanges::kReplace);
}

FileResult NoteDesk::DocumentSaveFile(NoteType type, const std::wstring& path,
                                      OthersChanges others) {
  notice_.clear();
  std::wstring written;
  const FileResult result = Write(type, path, others, written);
  if (result == FileResult::kDone) {
    document_.Saved(written);
    folder_.Refresh();
  } else if (notice_.empty()) {
    TellTrouble(document_.path(), result);
  }
  return result;
}

FileResult NoteDesk::Export(const NoteExport& chosen) {
  notice_.clear();
  std::wstring written;
  const FileResult result = Write(chosen.type, chosen.path, OthersChanges::kReplace, written);
  if (result == FileResult::kDone) {
    document_.Exported(chosen, written);
    folder_.Refresh();
    if (written != chosen.path) notice_ = L"Saved among the notes as " + Quoted(written);
  } else if (notice_.empty()) {
    TellTrouble(chosen.path, result);
  }
  return result;
}

void NoteDesk::DropChanges() {
  document_.DropChanges();
  file_->Close();
}

// --- the list

std::optional<std::size_t> NoteDesk::NoteDelete(std::size_t index) {
  if (index >= folder_.count()) return std::nullopt;
  const std::wstring path = folder_.Path(index);
  notice_.clear();
  const FileResult result = folder_.Remove(index);
  if (result != FileResult::kDone) {
    TellTrouble(path, result);
    return index;
  }
  if (SamePath(path, document_.path())) deleted_ = true;
  const auto next =
      SelectionAfterDelete(static_cast<int>(index), static_cast<int>(folder_.count()));
  return next ? std::optional(static_cast<std::size_t>(*next)) : std::nullopt;
}

RenameResult NoteDesk::Rename(std::size_t index, const std::wstring& label, NameClash clash) {
  notice_.clear();
  const std::wstring former = folder_.Path(index);
  const NoteRename step = NoteRenameOf(former, FolderPath(), label, document_.type(), Exists());
  if (step.step == RenameStep::kNothing) return RenameResult::kDone;
  const std::wstring ending = document_.type() == NoteType::kRtf ? L".rtf" : L".txt";
  const Renamed renamed = folder_.Rename(index, label, ending, clash);
  if (renamed.result == RenameResult::kBadName) {
    notice_ = L"\"" + label + L"\" cannot be the name of a file";
  } else if (renamed.result == RenameResult::kFailed) {
    // A file that is gone is no trouble.
    if (renamed.trouble != FileResult::kMissing) TellTrouble(former, renamed.trouble);
  } else if (renamed.result == RenameResult::kDone) {
    const std::wstring path = FolderPath() + renamed.name;
    if (SamePath(former, document_.path())) file_->NoteRename(path);
    document_.Renamed(former, path);
  }
  return renamed.result;
}

bool NoteDesk::SideBarRefresh() {
  folder_.Refresh();
  if (!file_->has_file() || deleted_ || document_.modified()) return false;
  const FileResult state = file_->Check();
  if (state == FileResult::kMissing && files_.FolderExists(folder_.folder())) {
    document_.Changed(false);
    notice_ = L"Another program deleted " + Quoted(document_.path()) + L"; saving writes it anew";
  }
  if (state != FileResult::kChanged) return false;
  DocumentFile next(files_);
  const FileRead read = next.Open(document_.path(), kMostNoteBytes);
  if (!read) return false;
  ShowFile(std::move(next), read, document_.path());
  if (notice_.empty()) notice_ = L"Another program has changed this note";
  return true;
}

bool NoteDesk::Restore(const DocumentVersion& version) {
  // Read before anything is saved: saving may be what drops the oldest version.
  const FileRead read = files_.Read(version.path, kMostNoteBytes);
  if (!read) {
    TellTrouble(document_.path(), read.result);
    return false;
  }
  const std::wstring path = document_.path();
  if (!SaveModified() || document_.path() != path) return false;
  const FileResult result = file_->Save(read.bytes, OthersChanges::kReplace);
  if (result != FileResult::kDone) {
    TellTrouble(path, result);
    return false;
  }
  const NoteContent::Shown shown = content_.Show(NoteTypeOf(document_.path()), read.bytes);
  document_.Opened(document_.path(), shown.type);
  notice_ = L"An earlier version is back; the one before it is kept";
  folder_.Refresh();
  return true;
}

// --- drafts

void NoteDesk::NoteChange(std::uint64_t now) {
  document_.Changed(false);
  file_->NoteChange(now);
}

void NoteDesk::Tend(std::uint64_t now) {
  const auto due = file_->DraftDue();
  if (due && *due <= now) KeepDraft(now);
}

void NoteDesk::KeepDraft(std::uint64_t now) {
  if (!document_.modified()) return;
  auto bytes = content_.Bytes(document_.type());
  // Better the words alone than nothing.
  if (!bytes) bytes = content_.Bytes(NoteType::kTxt);
  if (!bytes) return;
  const FileResult result = file_->KeepDraft(*bytes, now);
  if (result != FileResult::kDone) {
    notice_ = L"No draft can be kept: the folder's file " + std::wstring(FileTrouble(result));
  }
}

}  // namespace varnel
