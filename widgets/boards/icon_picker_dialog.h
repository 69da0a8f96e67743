// The dialog in which an icon for the calendar is chosen.
#pragma once

#include <vector>

#include "frame/services.h"
#include "widgets/boards/calendar_link.h"
#include "win/windows/dialog.h"

namespace varnel {

class IconPickerDialog : public Dialog {  // frmCALip
 public:
  IconPickerDialog(Services& services, CalendarLink& link);

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  bool OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;
  // Puts the list into the room that the tabs leave, and that of the chosen tab's pictures into it.
  void ShowGroup();
  void AddPicture(std::size_t picture);
  void Choose();

  CalendarLink& link_;
  std::vector<OfferedPicture> pictures_;
  std::vector<std::size_t> shown_;  // of the chosen tab, as the list shows them
};

}  // namespace varnel
