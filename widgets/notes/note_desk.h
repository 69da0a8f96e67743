// The notes of one folder and the one in the editor: started, opened, saved, exported, renamed,
// deleted. Nothing typed is lost, and nothing that others made is written over unasked.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/document_file.h"
#include "base/document_folder.h"
#include "base/wall_clock.h"
#include "widgets/notes/note_document.h"

namespace varnel {

// The most bytes that a note's file may have, and that a draft is read back with: what has grown
// too large to be saved is not lost.
inline constexpr std::size_t kMostNoteBytes = 16 * 1024 * 1024;
inline constexpr std::size_t kMostDraftBytes = 8 * kMostNoteBytes;

// What holds the text of the note that is shown.
class NoteContent {
 public:
  virtual ~NoteContent() = default;
  virtual void StartEmpty(NoteType type) = 0;

  struct Shown {
    NoteType type = NoteType::kRtf;  // as what it has to be saved
    std::wstring notice;             // what the user should know of it, may be empty
  };
  // Shows a file's content, which is to be of that type. What is damaged is shown as plain text.
  virtual Shown Show(NoteType type, const std::string& bytes) = 0;
  // The file that says what is shown; nothing when it cannot be said whole.
  virtual std::optional<std::string> Bytes(NoteType type) = 0;
};

class NoteDesk {
 public:
  // `counter` is how many notes the program has started before.
  NoteDesk(FileStore& files, RecycleBin& bin, const WallClock& clock, NoteContent& content,
           std::int32_t counter);

  const NoteDocument& document() const { return document_; }
  const DocumentFolder& notes() const { return folder_; }
  // What there is to say about what was done last, in words for the user; mostly empty.
  const std::wstring& notice() const { return notice_; }
  void Tell(std::wstring notice) { notice_ = std::move(notice); }
  // Which of the notes is shown; nothing for one that is not in the folder.
  std::optional<std::size_t> current() const;

  // Turns to a folder; the note that is shown stays.
  void Adopt(const std::wstring& folder);
  // Shows the unsaved changes that a run of the program left in the first of the folders that has
  // any (empty names are skipped), as unsaved changes of a note; those of further notes become
  // notes. False when there are none.
  bool Recover(std::vector<std::wstring> folders);
  // Where the draft of the note that is shown is kept, without a final "\".
  std::wstring draft_folder() const;

  // The next two save a changed note first without asking, and leave all as it is where that fails.
  bool DocumentNew(NoteType type);
  // A file that cannot be read leaves an empty note.
  bool DocumentOpenFile(const std::wstring& path);
  // Saves to `path` where it exists, else under a generated name. kChanged, and nothing written,
  // when others changed the file and nothing was said about that.
  FileResult DocumentSaveFile(NoteType type, const std::wstring& path,
                              OthersChanges others = OthersChanges::kAsk);
  // Writes what the export dialog's answer means.
  FileResult Export(const NoteExport& chosen);
  // Closes the note for good: what is not saved is dropped, with its draft.
  void DropChanges();

  // Puts a note into the recycle bin; the editor keeps what it shows. Gives what to select next.
  std::optional<std::size_t> NoteDelete(std::size_t index);
  // Gives a note another name, with the ending of the one in the editor. kClash: another one has
  // that name.
  RenameResult Rename(std::size_t index, const std::wstring& label, NameClash clash);
  // Reads the folder anew. A note that is shown as it was saved follows its file. True when it was
  // shown anew.
  bool SideBarRefresh();

  std::vector<DocumentVersion> Versions() const { return file_->Versions(); }
  // Shows a former content of the note, which is saved; the present one becomes a version.
  bool Restore(const DocumentVersion& version);

  // The user changed the text. `now` in milliseconds of a clock that is never set.
  void NoteChange(std::uint64_t now);
  // Keeps a draft of what is unsaved when it is time to, or at once.
  void Tend(std::uint64_t now);
  void KeepDraft(std::uint64_t now);

 private:
  std::wstring FolderPath() const { return folder_.folder() + L"\\"; }
  FileExists Exists() const;
  void StartFile();
  void ShowDraft(DocumentFile file, const FileRead& read, const FoundDraft& draft);
  bool ShowFile(DocumentFile file, const FileRead& read, const std::wstring& path);
  bool SaveModified();
  FileResult Write(NoteType type, const std::wstring& path, OthersChanges others,
                   std::wstring& written);
  FileResult WriteCopy(const std::wstring& path, std::string_view bytes);
  void TellTrouble(std::wstring_view path, FileResult result);

  FileStore& files_;
  const WallClock& clock_;
  NoteContent& content_;
  NoteDocument document_;
  DocumentFolder folder_;
  std::optional<DocumentFile> file_;
  bool deleted_ = false;  // the user deleted the file of the note that is shown
  std::wstring notice_;
};

}  // namespace varnel
