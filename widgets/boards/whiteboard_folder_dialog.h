// The dialog in which the whiteboard's folder is chosen.
#pragma once

#include "frame/folder_dialog.h"
#include "widgets/boards/board_folders.h"
#include "widgets/boards/board_link.h"

namespace varnel {

class WhiteboardFolderDialog : public FolderDialog {  // frmWBDpr
 public:
  WhiteboardFolderDialog(Services& services, BoardLink& link)
      : FolderDialog(services, {L"frmWBDpr", L"Choose a new whiteboard location", L"wboard"},
                     kWhiteboardFolder),
        link_(link) {}

 private:
  bool MayChange() override { return !link_.widget || link_.widget->SaveBoards(); }
  void OnChosen(bool /*changed*/) override {
    if (link_.widget) link_.widget->FolderChanged();
  }

  BoardLink& link_;
};

}  // namespace varnel
