#include "widgets/time/alarm_dialog.h"

#include "base/number_text.h"
#include "base/text.h"
#include "resources/control_ids.h"

namespace varnel {
namespace {

constexpr int kLongestMessage = 30'000;
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
  if (id == cmdOKfrmCLKas && !TimesAreValid()) return;
  if (id == cmdOKfrmCLKas) Store();
  if (id == cmdOKfrmCLKas || id == cmdCancelfrmCLKas) Close();
}

// Leads to the first time that is none. One that is empty may stay while its alarm is off.
bool AlarmDialog::TimesAreValid() {
  for (int i = 0; i < kAlarmPresets; ++i) {
    const std::wstring time = ControlText(cboTIME + i);
    if (IsAlarmTime(time) || (Trim(time).empty() && !Checked(chkSET + i))) continue;
    SetControlText(lblALARMHINT,
                   time.empty() ? L"Alarm " + NumberText(i + 1) + L" needs a time, such as 7:30."
                                : L"\x201C" + time + L"\x201D is no time. Write 7:30 or 7:30 pm.");
    ::MessageBeep(MB_ICONWARNING);
    ::SendMessageW(handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(cboTIME + i)), TRUE);
    ::SendMessageW(Control(cboTIME + i), CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
    return false;
  }
  return true;
}

void AlarmDialog::Store() {
  AlarmPresets presets;
  for (int i = 0; i < kAlarmPresets; ++i) {
    presets[i] = {Checked(chkSET + i), ControlText(cboTIME + i), ControlText(txtMESSAGE + i)};
  }
  alarms_.SetPresets(presets);
}

}  // namespace varnel
