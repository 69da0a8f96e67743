// The dialog in which the calendar's folder is chosen.
#pragma once

#include "frame/folder_dialog.h"
#include "widgets/boards/board_folders.h"
#include "widgets/boards/calendar_link.h"

namespace varnel {

class CalendarFolderDialog : public FolderDialog {  // frmCALpr
 public:
  CalendarFolderDialog(Services& services, CalendarLink& link)
      // The whiteboard's wording, kept as it is.
      : FolderDialog(services, {L"frmCALpr", L"Choose a new whiteboard location", L"calendar"},
                     kCalendarFolder),
        link_(link) {}

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  bool MayChange() override { return !link_.widget || link_.widget->SaveMonth(); }
  void OnChosen(bool /*changed*/) override {
    if (link_.widget) link_.widget->FolderChanged();
  }
  // The months that are kept in the folder that is named.
  void ListMonths();

  CalendarLink& link_;
};

}  // namespace varnel
