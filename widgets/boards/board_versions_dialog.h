// The dialogs with the earlier versions of the board or month that is shown.
#pragma once

#include <string>

#include "base/bmp.h"
#include "frame/versions_dialog.h"
#include "widgets/boards/board_link.h"
#include "widgets/boards/calendar_link.h"
#include "widgets/boards/calendar_sheet.h"
#include "widgets/boards/whiteboard.h"

namespace varnel {

// Both kinds of file begin with a bitmap of the whole.
template <class Link>
class BoardVersionsDialog : public VersionsDialog {
 protected:
  BoardVersionsDialog(Services& services, Link& link, const Traits& traits)
      : VersionsDialog(services, traits), link_(link) {}

 private:
  VersionedWidget* widget() const override { return link_.widget; }
  Image PictureOf(const std::string& bytes) const override {
    return ReadBmp(bytes).value_or(Image());
  }

  Link& link_;
};

class WhiteboardVersionsDialog : public BoardVersionsDialog<BoardLink> {  // frmWBDvr
 public:
  WhiteboardVersionsDialog(Services& services, BoardLink& link)
      : BoardVersionsDialog(
            services, link,
            {L"frmWBDvr", L"This board has no earlier versions.", kMostBoardBytes}) {}
};

class CalendarVersionsDialog : public BoardVersionsDialog<CalendarLink> {  // frmCALvr
 public:
  CalendarVersionsDialog(Services& services, CalendarLink& link)
      : BoardVersionsDialog(
            services, link,
            {L"frmCALvr", L"This month has no earlier versions.", kMostMonthBytes}) {}
};

}  // namespace varnel
