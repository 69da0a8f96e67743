#include "widgets/boards/whiteboard.h"

#include <utility>

#include "base/bmp.h"
#include "base/number_text.h"
#include "widgets/boards/board_names.h"

namespace varnel {
namespace {

std::wstring TitleOf(const std::wstring& path) {
  const std::wstring name = path.substr(path.rfind(L'\\') + 1);
  return name.substr(0, name.rfind(L'.'));
}

}  // namespace

Whiteboard::Whiteboard(FileStore& files, RecycleBin& bin, const WallClock& clock,
                       DrawingBoard& board)
    : files_(files),
      clock_(clock),
      board_(board),
      folder_(files, bin, {std::wstring(kBoardEnding)}),
      file_(files) {}

std::wstring Whiteboard::PathOf(const std::wstring& title) const {
  return folder_.folder() + L"\\" + title + std::wstring(kBoardEnding);
}

// Of a new board that must not take the place of another one.
std::wstring Whiteboard::FreshPath() const {
  const std::wstring title = NewBoardName(clock_.Now());
  std::wstring path = PathOf(title);
  for (int i = 2; files_.FileExists(path); ++i) path = PathOf(title + L"_" + NumberText(i));
  return path;
}

std::string Whiteboard::Bytes() const {
  return WriteBmp(board_.Picture(), BmpDepth::k24Bits);
}

bool Whiteboard::Failed(const std::wstring& path, FileResult result) {
  if (result == FileResult::kDone) return false;
  trouble_ = L"\"" + TitleOf(path) + L"\" " + std::wstring(FileTrouble(result));
  return true;
}

std::optional<std::size_t> Whiteboard::current() const {
  if (!file_->has_file()) return std::nullopt;
  return folder_.Find(TitleOf(file_->path()) + std::wstring(kBoardEnding));
}

std::wstring Whiteboard::name() const {
  return file_->has_file() ? TitleOf(file_->path()) : std::wstring(kNewBoard);
}

void Whiteboard::Adopt(const std::wstring& folder, Size size) {
  trouble_.clear();
  folder_.Adopt(folder);
  StartNew(size);
  TakeUpDrafts(size);
}

void Whiteboard::StartNew(Size size) {
  file_->StartNew(FreshPath());
  board_.LoadEmpty(size);
  noted_changes_ = board_.changes();
}

void Whiteboard::Load(Image pixels) {
  board_.Load(std::move(pixels));
  noted_changes_ = board_.changes();
}

void Whiteboard::NoteSaved() {
  board_.MarkSaved();
  noted_changes_ = board_.changes();
  folder_.Refresh();
}

bool Whiteboard::TakeUp(const std::wstring& path) {
  DocumentFile next(files_);
  const FileRead read = next.Open(path, kMostBoardBytes);
  if (Failed(path, read.result)) return false;
  auto pixels = ReadBmp(read.bytes);
  if (!pixels) {
    trouble_ = L"\"" + TitleOf(path) + L"\" is damaged or no picture";
    return false;
  }
  file_->Close();
  file_.emplace(std::move(next));
  Load(std::move(*pixels));
  trouble_.clear();
  return true;
}

// The newest changes are shown to be gone on with. What else was left becomes boards, so that
// nothing waits unseen.
void Whiteboard::TakeUpDrafts(Size size) {
  bool shown = false;
  for (const FoundDraft& draft : FindDrafts(files_, folder_.folder())) {
    DocumentFile found(files_);
    const FileRead read = found.OpenDraft(draft, kMostBoardBytes);
    auto pixels = read ? ReadBmp(read.bytes) : std::nullopt;
    if (!pixels) continue;
    if (!shown && !draft.older) {
      file_.emplace(std::move(found));
      Load(std::move(*pixels));
      board_.MarkModified();
      shown = true;
    } else {
      found.SaveAs(FreshPath(), read.bytes);
    }
  }
  board_.Fit(size);
  folder_.Refresh();
}

bool Whiteboard::BoardSave() {
  trouble_.clear();
  if (!board_.BoardModified()) return true;
  const std::string bytes = Bytes();
  FileResult result = FileResult::kDone;
  if (file_->has_file()) {
    result = file_->Save(bytes);
    if (result == FileResult::kChanged) return SaveBeside(bytes);
  } else {
    result = file_->SaveAs(PathOf(NewBoardName(clock_.Now())), bytes, OthersChanges::kReplace);
  }
  if (Failed(file_->path(), result)) return false;
  NoteSaved();
  return true;
}

// What others made of the file stays.
bool Whiteboard::SaveBeside(std::string_view bytes) {
  const std::wstring former = name();
  if (Failed(file_->path(), file_->SaveAs(FreshPath(), bytes))) return false;
  NoteSaved();
  trouble_ = L"Others changed \"" + former + L"\"; your drawing is saved as \"" + name() + L"\"";
  return true;
}

bool Whiteboard::BoardNew(Size size) {
  if (!BoardSave()) return false;
  StartNew(size);
  folder_.Refresh();
  return true;
}

bool Whiteboard::Show(const std::wstring& file_name) {
  if (!BoardSave()) return false;
  const std::wstring told = trouble_;
  const bool shown = TakeUp(folder_.folder() + L"\\" + file_name);
  if (shown) trouble_ = told;
  return shown;
}

bool Whiteboard::BoardDelete(Size size) {
  trouble_.clear();
  const auto index = current();
  if (!index) return false;
  // What goes to the recycle bin is what was seen.
  if (board_.BoardModified() && file_->Save(Bytes()) == FileResult::kDone) board_.MarkSaved();
  const std::wstring path = folder_.Path(*index);
  if (Failed(path, folder_.Remove(*index))) return false;
  StartNew(size);
  const std::size_t next = DocumentFolder::SelectionAfter(*index);
  if (next < folder_.count()) TakeUp(folder_.Path(next));
  return true;
}

RenameResult Whiteboard::Rename(std::size_t index, const std::wstring& typed, NameClash clash) {
  trouble_.clear();
  const bool shown = current() == index;
  const std::wstring former = folder_.Path(index);
  const Renamed renamed = folder_.Rename(index, typed, kBoardEnding, clash);
  switch (renamed.result) {
    case RenameResult::kDone:
      if (shown) file_->NoteRename(folder_.folder() + L"\\" + renamed.name);
      break;
    case RenameResult::kBadName:
      trouble_ = L"A board cannot be called that";
      break;
    case RenameResult::kFailed:
      Failed(former, renamed.trouble);
      break;
    case RenameResult::kClash:
      break;
  }
  return renamed.result;
}

void Whiteboard::SideBarRefresh(Size size) {
  const FolderChanges changes = folder_.Refresh();
  if (changes.result != FileResult::kDone || !file_->has_file() || board_.BoardModified()) return;
  if (board_.drawing() || board_.floating()) return;
  const FileResult now = file_->Check();
  if (now == FileResult::kMissing) {
    StartNew(size);
  } else if (now == FileResult::kChanged && TakeUp(std::wstring(file_->path()))) {
    board_.Fit(size);
  }
}

bool Whiteboard::Restore(const DocumentVersion& version) {
  // Read before anything is saved: saving may be what drops the oldest version.
  const FileRead read = files_.Read(version.path, kMostBoardBytes);
  auto pixels = read ? ReadBmp(read.bytes) : std::nullopt;
  if (!pixels) {
    trouble_ = kVersionDamaged;
    return false;
  }
  const std::wstring path = file_->path();
  if (!BoardSave() || file_->path() != path) return false;
  if (Failed(path, file_->Save(read.bytes, OthersChanges::kReplace))) return false;
  Load(std::move(*pixels));
  NoteSaved();
  trouble_ = kRestored;
  return true;
}

void Whiteboard::Tend(std::uint64_t now) {
  const bool changed = std::exchange(noted_changes_, board_.changes()) != board_.changes();
  // Counted from the first of the changes, however long the hand goes on.
  if (changed && !file_->DraftDue()) file_->NoteChange(now);
  if (const auto due = file_->DraftDue(); due && now >= *due) KeepDraft(now);
}

void Whiteboard::KeepDraft(std::uint64_t now) {
  if (board_.BoardModified()) Failed(file_->path(), file_->KeepDraft(Bytes(), now));
}

}  // namespace varnel
