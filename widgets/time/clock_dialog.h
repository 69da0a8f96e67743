// The clock's properties: time style, date style, what is shown, and the alarm sound.
#pragma once

#include "frame/services.h"
#include "widgets/time/alarms.h"
#include "win/dialog.h"

namespace varnel {

class ClockDialog : public Dialog {  // frmCLKpr
 public:
  explicit ClockDialog(Services& services);

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  AlarmSound ChosenSound() const;
  void Store();
  void Browse();
  void EnableDependents();

  Services& services_;
};

}  // namespace varnel
