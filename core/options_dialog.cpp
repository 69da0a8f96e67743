#include "core/options_dialog.h"

#include "core/core_settings.h"
#include "core/widget_index.h"
#include "frame/frame_settings.h"
#include "frame/on_top.h"
#include "resources/control_ids.h"
#include "win/windows/ui.h"

namespace varnel {
namespace {

struct Option {
  int control;
  const Setting& setting;
};
constexpr Option kOptions[] = {{chkSTARTUP, kProgramLaunch},
                               {chkMINSTART, kMinimizeOnStart},
                               {chkONTOP, kOnTop},
                               {chkREADABLE, kMakeTextReadable}};

}  // namespace

OptionsDialog::OptionsDialog(Services& services)
    : Dialog(services.ui, L"frmVRNpr"), services_(services) {}

void OptionsDialog::OnOpen() {
  for (const Option& option : kOptions) {
    SetChecked(option.control, ReadCheck(services_.settings, option.setting));
  }
}

void OptionsDialog::OnCommand(int id, int) {
  if (id == IDOK) Store();
  if (id == IDOK || id == IDCANCEL) Close();
}

void OptionsDialog::Store() {
  // A choice for one widget lasts until there is another one for all.
  if (Checked(chkONTOP) != ReadCheck(services_.settings, kOnTop)) {
    ForgetOnTop(services_.settings, kManagerForm.form_name);
    for (int i = 0; i < kWidgetCount; ++i) {
      ForgetOnTop(services_.settings, WidgetAt(i)->form_name);
    }
  }
  for (const Option& option : kOptions) {
    WriteCheck(services_.settings, option.setting, Checked(option.control));
  }
  services_.program.RegisterRunAtLogon();
  for (const auto& [name, form] : services_.forms.all()) {
    form->ApplyChrome();
    form->Form_Resize();
    form->WidgetRefresh();
  }
}

}  // namespace varnel
