// The dialog in which the alarms are set.
#pragma once

#include "frame/services.h"
#include "widgets/time/alarm_service_win.h"
#include "win/windows/dialog.h"

namespace varnel {

class AlarmDialog : public Dialog {  // frmCLKas
 public:
  AlarmDialog(Services& services, AlarmService& alarms);

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  bool TimesAreValid();
  void Store();

  AlarmService& alarms_;
};

}  // namespace varnel
