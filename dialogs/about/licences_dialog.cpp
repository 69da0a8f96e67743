#include "dialogs/about/licences_dialog.h"

#include "resources/control_ids.h"
#include "win/system/resource_data.h"
#include "win/windows/ui.h"

namespace varnel {

void LicencesDialog::OnOpen() {
  notices_ = ReadNotices(ResourceData(ui().instance, L"NOTICES", L"DATA"));
  for (const Notice& notice : notices_) {
    ::SendMessageW(Control(lstLICENCES), LB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>(notice.title.c_str()));
  }
  ::SendMessageW(Control(lstLICENCES), LB_SETCURSEL, 0, 0);
  ShowChosen();
}

void LicencesDialog::ShowChosen() {
  const LRESULT chosen = ::SendMessageW(Control(lstLICENCES), LB_GETCURSEL, 0, 0);
  if (chosen < 0 || chosen >= std::ssize(notices_)) return;
  SetControlText(txtLICENCE, notices_[static_cast<std::size_t>(chosen)].text);
}

void LicencesDialog::OnCommand(int id, int code) {
  if (id == lstLICENCES && code == LBN_SELCHANGE) ShowChosen();
  if (id == IDOK || id == IDCANCEL) Close();
}

}  // namespace varnel
