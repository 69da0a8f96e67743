// The clock's properties: time style, date style, what is shown, and the alarm sound.
#pragma once

#include "frame/services.h"
#include "widgets/time/alarm_service_win.h"
#include "win/windows/dialog.h"

namespace varnel {

class ClockDialog : public Dialog {  // frmCLKpr
 public:
  ClockDialog(Services& services, AlarmService& alarms);

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  AlarmSound ChosenSound() const;
  void Store();
  void Browse();
  void EnableDependents();

  Services& services_;
  AlarmService& alarms_;  // whose sound can be tried here
};

}  // namespace varnel
