// The whiteboard widget.
#pragma once

#include "frame/bar_label_win.h"
#include "frame/side_list_win.h"
#include "frame/widget_form.h"
#include "widgets/boards/board_link.h"
#include "widgets/boards/board_surface_win.h"
#include "widgets/boards/board_thumbnails.h"
#include "widgets/boards/whiteboard.h"
#include "widgets/boards/whiteboard_layout.h"
#include "win/folder_watch.h"
#include "win/system_recycle_bin.h"

namespace varnel {

class WhiteboardForm : public WidgetForm,  // frmWBDwg
                       private SideListOwner,
                       private BoardSurfaceOwner,
                       private BoardWidget {
 public:
  WhiteboardForm(Services& services, const FormEntry& entry, int index, BoardLink& link);

  void BoardNew();
  void BoardSave();
  void BoardDelete();
  void SideBarRefresh();
  void WhiteboardRenameShow();
  // "TEXT" opens the dialog in which it is typed, "PICTURE" the one in which a file is chosen.
  void BoardInsertObject(std::wstring_view kind);
  void ShowIcons();
  void BoardRefresh();
  void WhiteboardPenColor(int index);
  void WhiteboardPenSize(int pixels);

  bool MayClose() override;
  void SaveState(SaveReason reason) override;

 private:
  // One command of the widget: how it is told in the menu, its key, and what it does.
  struct Action;
  static std::span<const Action> Actions();

  void OnLoad() override;
  void OnUnload() override;
  void LayOutPanel(const Rect& panel) override;
  void RefreshContent() override;
  void PaintPanel(Surface& surface, const Rect& panel) override;
  void DrawPanelButton(const ButtonPainting& painting) override;
  void OnControl(int id, int code) override;
  std::wstring StatusText() const override;
  std::vector<MenuItem> MenuGroup() const override;
  bool RunOwnCommand(int id) override;
  bool OnKey(const MSG& message) override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  std::wstring RowText(std::size_t row) const override { return whiteboard_.boards().Title(row); }
  void PaintRow(Surface& surface, const SideRow& row) override;
  void OnRowChosen(std::size_t row) override;
  void OnRowRenamed(std::size_t row, const std::wstring& text) override;
  void PaintBoard(Surface& surface, const Rect& part) override;
  Size BoardSize() const override { return board_.size(); }
  void OnBoardChanged() override;
  void InsertText(const std::wstring& text, int points) override;
  bool SaveBoards() override;
  void FolderChanged() override;

  std::wstring Folder() const;
  Size ViewSize() const;
  // After another board was taken up, and after the list has changed.
  void ShowBoard();
  void ShowList();
  // What was drawn, merged, taken back: brings what depends on it up to date a little later.
  void AfterChange(const Rect& shown);
  void Clear() { AfterChange(board_.Clear()); }
  void Undo() { AfterChange(board_.Undo()); }
  void Redo() { AfterChange(board_.Redo()); }
  bool CanUndo() const { return board_.CanUndo(); }
  bool CanRedo() const { return board_.CanRedo(); }
  bool HasFile() const { return whiteboard_.current().has_value(); }
  bool Changed() const { return board_.BoardModified(); }
  void InsertTextShow() { BoardInsertObject(L"TEXT"); }
  void InsertPictureShow() { BoardInsertObject(L"PICTURE"); }
  void Properties();
  void ToggleList();
  void Copy();
  void Paste();
  void InsertPictureFile(const std::wstring& path);
  void InsertPicture(const Image& straight);
  void MakeThumbnail();
  void TellTrouble(std::wstring trouble);
  bool OnFloatKey(WPARAM key);
  bool OnCharacter(wchar_t character);
  bool RunKey(WPARAM key);
  void OnWheel(WPARAM wparam, LPARAM lparam, bool across);
  std::vector<MenuItem> PenItems() const;
  std::vector<MenuItem> WidthItems() const;
  void DropMenu(int button, const std::vector<MenuItem>& items);
  void PlaceTools(const Rect& panel);
  void PlaceList(const Rect& panel);
  void PlaceIndicator();
  void DrawPen(const ButtonPainting& painting, int pen);
  void DrawWidth(const ButtonPainting& painting);
  void Dot(Surface& surface, const Rect& box, int diameter, Colour face, Colour outline) const;
  std::wstring PenText() const;

  BoardLink& link_;
  SystemRecycleBin bin_;
  DrawingBoard board_{Canvas::kWhiteBoard};
  Whiteboard whiteboard_;
  BoardThumbnails thumbnails_;
  WhiteboardLayout places_;
  bool list_wanted_ = true;
  BoardSurface picMAINBOARD_;
  SideList lvwFILES_;
  BarLabel lblWhiteboard_;
  ThemedLabel lblTestfrmWBDwg_;
  FolderWatch watch_;
  Timer tmrDRAW_;
  Timer draft_timer_;
  Timer thumbnail_timer_;
};

}  // namespace varnel
