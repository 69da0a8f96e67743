// The dialog in which text for the whiteboard is typed.
#pragma once

#include "resources/control_ids.h"
#include "widgets/boards/board_link.h"
#include "widgets/boards/board_settings.h"
#include "widgets/boards/insert_text_dialog.h"

namespace varnel {

class WhiteboardTextDialog : public InsertTextDialog {  // frmWBDit
 public:
  WhiteboardTextDialog(Services& services, BoardLink& link)
      : InsertTextDialog(services, L"frmWBDit", txtINSE, kBoardTextSize), link_(link) {}

 private:
  void OnText(const std::wstring& text, int points) override {
    if (link_.widget) link_.widget->InsertText(text + L" ", points);
  }

  BoardLink& link_;
};

}  // namespace varnel
