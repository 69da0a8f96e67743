#include "widgets/time/clock_dialog.h"

#include "resources/control_ids.h"
#include "widgets/time/clock_engine.h"
#include "win/windows/file_dialogs.h"
#include "win/windows/ui.h"

namespace varnel {
namespace {

constexpr wchar_t kSoundFilter[] = L"MP3 Files (*.mp3)|*.mp3|WAV Files (*.wav)|*.wav";
constexpr int kLongestPattern = 254;  // characters that a setting can hold

}  // namespace

ClockDialog::ClockDialog(Services& services, AlarmService& alarms)
    : Dialog(services.ui, L"frmCLKpr"), services_(services), alarms_(alarms) {}

void ClockDialog::OnOpen() {
  const ClockSettings values = LoadClockSettings(services_.settings);
  SetChecked(values.modern ? optSTYLEMOD : optSTYLECLASS, true);
  SetChecked(values.system_date ? optDATESYS : optDATECUST, true);
  SetControlText(txtCUSTOM, values.custom_date);
  SetChecked(chkSECS, values.seconds);
  SetChecked(chkAMPM, values.marker);
  SetChecked(chk24HR, values.hours_24);
  const AlarmSound sound = LoadAlarmSound(services_.settings);
  SetChecked(sound.bell ? optAUDIO : optAUDIOFILE, true);
  SetControlText(txtAUDIO, sound.file);
  for (const int box : {txtCUSTOM, txtAUDIO}) {
    ::SendMessageW(Control(box), EM_LIMITTEXT, kLongestPattern, 0);
  }
  EnableDependents();
}

void ClockDialog::EnableDependents() {
  Enable(txtCUSTOM, Checked(optDATECUST));
  Enable(txtAUDIO, Checked(optAUDIOFILE));
  Enable(cmdBrowsefrmCLKpr, Checked(optAUDIOFILE));
}

void ClockDialog::OnCommand(int id, int code) {
  if (code != BN_CLICKED) return;
  switch (id) {
    case cmdOKfrmCLKpr:
      Store();
      Close();
      break;
    case cmdCancelfrmCLKpr:
      Close();
      break;
    case cmdBrowsefrmCLKpr:
      Browse();
      break;
    case cmdTest:
      alarms_.Play(ChosenSound());
      break;
    default:
      EnableDependents();
  }
}

void ClockDialog::Browse() {
  const std::wstring path = BrowseForFile(handle(), {L"Select a file", kSoundFilter});
  if (!path.empty()) SetControlText(txtAUDIO, path);
}

AlarmSound ClockDialog::ChosenSound() const {
  return {Checked(optAUDIO), ControlText(txtAUDIO)};
}

void ClockDialog::Store() {
  ClockSettings values;
  values.modern = Checked(optSTYLEMOD);
  values.system_date = Checked(optDATESYS);
  values.custom_date = ControlText(txtCUSTOM);
  values.seconds = Checked(chkSECS);
  values.marker = Checked(chkAMPM);
  values.hours_24 = Checked(chk24HR);
  SaveClockSettings(services_.settings, values);
  SaveAlarmSound(services_.settings, ChosenSound());
  if (LiveForm* clock = services_.forms.Find(L"frmCLKwg")) {
    clock->Form_Resize();
    clock->WidgetRefresh();
  }
}

}  // namespace varnel
