// The licences of what the program contains of others, to be read without a web.
#pragma once

#include <vector>

#include "dialogs/about/about_text.h"
#include "frame/services.h"
#include "win/windows/dialog.h"

namespace varnel {

class LicencesDialog : public Dialog {  // frmLICENCES
 public:
  explicit LicencesDialog(Services& services) : Dialog(services.ui, L"frmLICENCES") {}

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  void ShowChosen();

  std::vector<Notice> notices_;
};

}  // namespace varnel
