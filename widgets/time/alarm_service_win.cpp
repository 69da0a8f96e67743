#include "widgets/time/alarm_service_win.h"

#include "widgets/time/sound_commands.h"
#include "win/system/sound.h"

namespace varnel {

AlarmService::AlarmService(Services& services)
    : services_(services), presets_(LoadAlarmPresets(services.settings)), popup_(services) {}

void AlarmService::SetPresets(const AlarmPresets& presets) {
  presets_ = presets;
  SaveAlarmPresets(services_.settings, presets_);
}

void AlarmService::Play(const AlarmSound& sound) {
  if (sound.bell) {
    services_.sound.PlayResource(kBellName);
  } else {
    PlayFile(services_.sound, sound.file);
  }
}

void AlarmService::PlayChosen() {
  Play(LoadAlarmSound(services_.settings));
}

void AlarmService::OnAlarmTick() {
  for (const AlarmRing& ring : AlarmRefresh(presets_, services_.clock.Now())) {
    PlayChosen();
    popup_.Ring(ring);
  }
}

}  // namespace varnel
