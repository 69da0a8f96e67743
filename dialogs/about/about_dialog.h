// The about box: what the program is, where it runs, and where to turn to.
#pragma once

#include <string>

#include "frame/services.h"
#include "win/windows/dialog.h"

namespace varnel {

class AboutDialog : public Dialog {  // frmABOUT
 public:
  explicit AboutDialog(Services& services);

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;

  Services& services_;
  std::wstring report_;  // what "Copy" copies
};

}  // namespace varnel
