#include "widgets/time/alarm_dialog.h"

#include "resources/control_ids.h"

namespace varnel {
namespace {

constexpr int kLongestMessage = 254;  // characters that a setting can hold
constexpr int kLongestTime = 20;

}  // namespace

AlarmDialog::AlarmDialog(Services& services, AlarmService& alarms)
    : Dialog(services.ui, L"frmCLKas"), alarms_(alarms) {}

void AlarmDialog::OnOpen() {
  const std::vector<std::wstring> hours = QuarterHours();
  const AlarmPresets& presets = alarms_.presets();
  for (int i = 0; i < kAlarmPresets; ++i) {
    HWND times = Control(cboTIME + i);
    for (const std::wstring& hour : hours) {
      ::SendMessageW(times, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(hour.c_str()));
    }
    ::SendMessageW(times, CB_LIMITTEXT, kLongestTime, 0);
    ::SendMessageW(Control(txtMESSAGE + i), EM_LIMITTEXT, kLongestMessage, 0);
    SetChecked(chkSET + i, presets[i].use);
    SetControlText(cboTIME + i, presets[i].time);
    SetControlText(txtMESSAGE + i, presets[i].message);
  }
}

void AlarmDialog::OnCommand(int id, int code) {
  if (code != BN_CLICKED) return;
  if (id == cmdAlarmPreview) alarms_.PlayChosen();
  if (id == cmdOKfrmCLKas) Store();
  if (id == cmdOKfrmCLKas || id == cmdCancelfrmCLKas) Close();
}

void AlarmDialog::Store() {
  AlarmPresets presets;
  for (int i = 0; i < kAlarmPresets; ++i) {
    presets[i] = {Checked(chkSET + i), ControlText(cboTIME + i), ControlText(txtMESSAGE + i)};
  }
  alarms_.SetPresets(presets);
}

}  // namespace varnel
