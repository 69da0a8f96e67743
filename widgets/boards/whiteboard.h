// The boards of one folder, one of them on the drawing board: made, chosen, saved, renamed,
// deleted. Nothing drawn is lost, and nothing that others made is written over.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/document_file.h"
#include "base/document_folder.h"
#include "base/wall_clock.h"
#include "widgets/boards/board_document.h"
#include "widgets/boards/drawing_board.h"

namespace varnel {

// The most bytes that a board's file may have.
inline constexpr std::size_t kMostBoardBytes = std::size_t{8192} * 8192 * 4 + 4096;

class Whiteboard : public BoardDocument {
 public:
  Whiteboard(FileStore& files, RecycleBin& bin, const WallClock& clock, DrawingBoard& board);

  // Turns to a folder. Unsaved changes that a run of the program left there are shown, as unsaved
  // changes; else a new board of `size`. What is unsaved in the folder before has to be saved
  // first, or is lost.
  void Adopt(const std::wstring& folder, Size size);

  const DocumentFolder& boards() const { return folder_; }
  // Which of them is shown; nothing for one that has no file.
  std::optional<std::size_t> current() const;
  // "New Board" for one that has no file.
  std::wstring name() const;

  // Saves what is unsaved: in the board's file, or under a new name where it has none. A board
  // whose file others have changed is saved under a new name beside it. False when it cannot be
  // saved; nothing is lost then.
  bool BoardSave();
  bool Save() override { return BoardSave(); }
  // The next two save first, and leave all as it is when that fails. The first starts an empty
  // board of `size`.
  bool BoardNew(Size size);
  // Shows the board of that name (without folder). False when it cannot be read.
  bool Show(const std::wstring& file_name);
  // Deletes the board that is shown, with what is unsaved in it, and shows the one before, or the
  // first, or an empty one when none is left.
  bool BoardDelete(Size size);
  // Gives a board another name. With kClash another one has that name.
  RenameResult Rename(std::size_t index, const std::wstring& typed, NameClash clash);
  // Reads the folder anew. A board that is shown as it was saved follows its file.
  void SideBarRefresh(Size size);

  std::vector<DocumentVersion> Versions() const override { return file_->Versions(); }
  bool Restore(const DocumentVersion& version) override;
  void Tend(std::uint64_t now) override;
  void KeepDraft(std::uint64_t now) override;

 private:
  std::wstring PathOf(const std::wstring& title) const;
  std::wstring FreshPath() const;
  std::string Bytes() const;
  void StartNew(Size size);
  void Load(Image pixels);
  void NoteSaved();
  bool TakeUp(const std::wstring& path);
  void TakeUpDrafts(Size size);
  bool SaveBeside(std::string_view bytes);
  bool Failed(const std::wstring& path, FileResult result);

  FileStore& files_;
  const WallClock& clock_;
  DrawingBoard& board_;
  DocumentFolder folder_;
  std::optional<DocumentFile> file_;
  std::uint64_t noted_changes_ = 0;
};

}  // namespace varnel
