// The alarm settings, and the alarms themselves: the dialog stays loaded and keeps the presets that
// ring, whether it or the clock is open or not.
#pragma once

#include "frame/alarm_tick.h"
#include "frame/services.h"
#include "widgets/time/alarm_popup_form.h"
#include "widgets/time/alarms.h"
#include "win/dialog.h"

namespace varnel {

// Plays what is set as the alarm sound, once.
void PlayAlarmSound(Services& services, const AlarmSound& sound);

class AlarmDialog : public Dialog, public AlarmTickListener {  // frmCLKas
 public:
  explicit AlarmDialog(Services& services);

  void OnAlarmTick() override;

 private:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  void Store();

  Services& services_;
  AlarmPresets presets_;
  AlarmPopup popup_;
};

}  // namespace varnel
