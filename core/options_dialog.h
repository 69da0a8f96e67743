// The start-up options of the program.
#pragma once

#include "frame/services.h"
#include "win/windows/dialog.h"

namespace varnel {

class OptionsDialog : public Dialog {  // frmVRNpr
 public:
  explicit OptionsDialog(Services& services);

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  void Store();

  Services& services_;
};

}  // namespace varnel
