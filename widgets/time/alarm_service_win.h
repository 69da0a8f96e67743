// The alarms: they ring for as long as the program lives, whether the clock or a dialog is open or
// not.
#pragma once

#include "frame/family_service.h"
#include "frame/services.h"
#include "widgets/time/alarm_popup_form.h"
#include "widgets/time/alarms.h"

namespace varnel {

class AlarmService : public FamilyService {
 public:
  // Loads the presets. `services` outlive the alarms.
  explicit AlarmService(Services& services);

  const AlarmPresets& presets() const { return presets_; }
  // Stores the presets; from now on they are what rings.
  void SetPresets(const AlarmPresets& presets);

  // Plays a sound once, as an alarm does; the second one that is set.
  void Play(const AlarmSound& sound);
  void PlayChosen();

  // AlarmRefresh of the present moment: rings and shows the popup.
  void OnAlarmTick() override;

 private:
  Services& services_;
  AlarmPresets presets_;
  AlarmPopup popup_;
};

}  // namespace varnel
