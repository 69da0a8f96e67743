#include "widgets/time/alarm_dialog.h"

#include "resources/control_ids.h"
#include "widgets/time/sound_commands.h"
#include "win/sound.h"

namespace varnel {
namespace {

constexpr int kLongestMessage = 254;  // characters that a setting can hold
constexpr int kLongestTime = 20;

}  // namespace

void PlayAlarmSound(Services& services, const AlarmSound& sound) {
  if (sound.bell) {
    services.sound.PlayResource(kBellName);
  } else {
    PlayFile(services.sound, sound.file);
  }
}

AlarmDialog::AlarmDialog(Services& services)
    : Dialog(services.ui, L"frmCLKas"),
      services_(services),
      presets_(LoadAlarmPresets(services.settings)),
      popup_(services) {}

void AlarmDialog::OnAlarmTick() {
  for (const AlarmRing& ring : AlarmRefresh(presets_, services_.clock.Now())) {
    PlayAlarmSound(services_, LoadAlarmSound(services_.settings));
    popup_.Ring(ring);
  }
}

void AlarmDialog::OnOpen() {
  const std::vector<std::wstring> hours = QuarterHours();
  for (int i = 0; i < kAlarmPresets; ++i) {
    HWND times = Control(cboTIME + i);
    for (const std::wstring& hour : hours) {
      ::SendMessageW(times, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(hour.c_str()));
    }
    ::SendMessageW(times, CB_LIMITTEXT, kLongestTime, 0);
    ::SendMessageW(Control(txtMESSAGE + i), EM_LIMITTEXT, kLongestMessage, 0);
    SetChecked(chkSET + i, presets_[i].use);
    SetControlText(cboTIME + i, presets_[i].time);
    SetControlText(txtMESSAGE + i, presets_[i].message);
  }
}

void AlarmDialog::OnCommand(int id, int code) {
  if (code != BN_CLICKED) return;
  if (id == cmdAlarmPreview) PlayAlarmSound(services_, LoadAlarmSound(services_.settings));
  if (id == cmdOKfrmCLKas) Store();
  if (id == cmdOKfrmCLKas || id == cmdCancelfrmCLKas) Close();
}

void AlarmDialog::Store() {
  for (int i = 0; i < kAlarmPresets; ++i) {
    presets_[i] = {Checked(chkSET + i), ControlText(cboTIME + i), ControlText(txtMESSAGE + i)};
  }
  SaveAlarmPresets(services_.settings, presets_);
}

}  // namespace varnel
