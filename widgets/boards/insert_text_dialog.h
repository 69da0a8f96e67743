// The dialog in which text for a board is typed.
#pragma once

#include "frame/services.h"
#include "widgets/boards/board_link.h"
#include "win/dialog.h"

namespace varnel {

class InsertTextDialog : public Dialog {  // frmWBDit
 public:
  InsertTextDialog(Services& services, BoardLink& link);

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;

  Services& services_;
  BoardLink& link_;
};

}  // namespace varnel
