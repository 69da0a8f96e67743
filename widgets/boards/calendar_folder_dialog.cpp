#include "widgets/boards/calendar_folder_dialog.h"

#include "base/text.h"
#include "resources/control_ids.h"
#include "widgets/boards/board_names.h"

namespace varnel {

void CalendarFolderDialog::OnOpen() {
  FolderDialog::OnOpen();
  ListMonths();
}

void CalendarFolderDialog::OnCommand(int id, int code) {
  if (id == txtLOCATION && code == EN_CHANGE) {
    ListMonths();
  } else {
    FolderDialog::OnCommand(id, code);
  }
}

void CalendarFolderDialog::ListMonths() {
  const std::wstring folder = Trim(ControlText(txtLOCATION));
  SetControlText(lblSelectedFolder, folder);
  HWND list = Control(flbLIST);
  ::SendMessageW(list, LB_RESETCONTENT, 0, 0);
  for (const std::wstring& name : services().files.FileNames(folder, kBoardEnding)) {
    ::SendMessageW(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
  }
}

}  // namespace varnel
