// The whiteboard widget.
#pragma once

#include "frame/pages/print_desk_win.h"
#include "frame/side_list_win.h"
#include "widgets/boards/board_form.h"
#include "widgets/boards/board_link.h"
#include "widgets/boards/board_thumbnails.h"
#include "widgets/boards/whiteboard.h"
#include "widgets/boards/whiteboard_layout.h"
#include "win/files/folder_watch.h"
#include "win/files/system_recycle_bin.h"

namespace varnel {

class WhiteboardForm : public BoardForm,  // frmWBDwg
                       private SideListOwner,
                       private BoardWidget {
 public:
  WhiteboardForm(Services& services, const FormEntry& entry, int index, BoardLink& link,
                 PrintDesk& printing);

  void BoardNew();
  void BoardSave();
  void BoardDelete();
  void BoardPrint();
  void SideBarRefresh();
  void WhiteboardRenameShow();
  // "TEXT" opens the dialog in which it is typed, "PICTURE" the one in which a file is chosen.
  void BoardInsertObject(std::wstring_view kind);
  void ShowIcons();
  void BoardRefresh();
  void WhiteboardPenColor(int index) { SetPen(index); }
  void WhiteboardPenSize(int pixels) { SetPenWidth(pixels); }

 private:
  void OnLoad() override;
  void OnUnload() override;
  void LayOutPanel(const Rect& panel) override;
  void RefreshContent() override;
  void PaintPanel(Surface& surface, const Rect& panel) override;
  void DrawPanelButton(const ButtonPainting& painting) override;
  std::wstring StatusText() const override;
  std::wstring Summary() const override { return whiteboard_.name(); }
  AccessibleSource TellBoard() override;
  bool OnFirstKey(const MSG& message) override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  std::wstring RowText(std::size_t row) const override { return whiteboard_.boards().Title(row); }
  std::wstring EmptyText() const override { return L"No boards yet"; }
  Rect EditBox(const Rect& row) const override;
  void PaintRow(Surface& surface, const SideRow& row) override;
  void OnRowChosen(std::size_t row) override;
  void OnRowRenamed(std::size_t row, const std::wstring& text) override;
  void OnRenameEnded() override;
  BoardDocument& document() override { return whiteboard_; }
  Image PictureOfBoard() override { return board_.Picture(); }
  void PaintBoard(Surface& surface, const Rect& part) override;
  Size BoardSize() const override { return board_.size(); }
  void InsertText(const std::wstring& text, int points) override;
  bool SaveBoards() override;
  void FolderChanged() override;
  std::vector<DocumentVersion> Versions() const override { return whiteboard_.Versions(); }
  void RestoreVersion(const DocumentVersion& version) override;

  std::wstring Folder() const;
  Size ViewSize() const;
  // After another board was taken up, and after the list has changed.
  void ShowBoard();
  void ShowList();
  bool HasFile() const { return whiteboard_.current().has_value(); }
  void ToggleList();
  void MakeThumbnail();
  void OnWheel(WPARAM wparam, LPARAM lparam, bool across);
  void PlaceList(const Rect& panel);

  BoardLink& link_;
  PrintDesk& printing_;
  SystemRecycleBin bin_;
  Whiteboard whiteboard_;
  BoardThumbnails thumbnails_;
  WhiteboardLayout places_;
  bool list_wanted_ = true;
  bool refresh_due_ = false;  // once no row is being renamed
  SideList lvwFILES_;
  FolderWatch watch_;
  Timer thumbnail_timer_;
};

}  // namespace varnel
