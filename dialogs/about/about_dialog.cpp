#include "dialogs/about/about_dialog.h"

#include "base/number_text.h"
#include "dialogs/about/about_text.h"
#include "frame/command_id.h"
#include "frame/product.h"
#include "resources/control_ids.h"
#include "win/system/clipboard.h"
#include "win/system/late_function.h"
#include "win/windows/monitors.h"
#include "win/windows/ui.h"

namespace varnel {
namespace {

SystemFacts FactsOf(HWND window) {
  SystemFacts facts;
  RTL_OSVERSIONINFOW version = {};
  version.dwOSVersionInfoSize = sizeof version;
  // The one that tells the true version whatever the manifest says.
  if (auto* tell = LateFunction<LONG WINAPI(RTL_OSVERSIONINFOW*)>(L"ntdll.dll", "RtlGetVersion")) {
    tell(&version);
  }
  facts.major = static_cast<int>(version.dwMajorVersion);
  facts.minor = static_cast<int>(version.dwMinorVersion);
  facts.build = static_cast<int>(version.dwBuildNumber);
  wchar_t language[LOCALE_NAME_MAX_LENGTH] = {};
  ::GetUserDefaultLocaleName(language, LOCALE_NAME_MAX_LENGTH);
  facts.language = language;
  facts.screen = {::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)};
  facts.dpi = static_cast<int>(::GetDpiForWindow(window));
  facts.monitors = static_cast<int>(Monitors().size());
  return facts;
}

std::wstring BuildText() {
  return NumberText(static_cast<long long>(sizeof(void*)) * 8) + L"-bit, g++ " +
         NumberText(__GNUC__) + L"." + NumberText(__GNUC_MINOR__);
}

}  // namespace

AboutDialog::AboutDialog(Services& services)
    : Dialog(services.ui, L"frmABOUT"), services_(services) {}

void AboutDialog::OnOpen() {
  const std::wstring version = VersionText(VARNEL_VERSION_MAJOR, VARNEL_VERSION_MINOR);
  report_ = AboutReport(version, BuildText(), FactsOf(handle()));
  SetControlText(lblABOUTNAME, std::wstring(kApplicationTitle) + L" " + version);
  SetControlText(txtABOUT, report_);
  // Not in the box, which would be selected whole.
  ::PostMessageW(handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Control(IDOK)), TRUE);
}

void AboutDialog::OnCommand(int id, int code) {
  if (id == IDOK || id == IDCANCEL) return Close();
  if (code != BN_CLICKED) return;
  if (id == cmdABOUTCOPY) CopyText(handle(), report_);
  if (id == cmdABOUTSUPPORT) services_.program.RunCommand(CommandId(L"mnuDCWEB"));
  if (id == cmdABOUTFEEDBACK) services_.program.RunCommand(CommandId(L"mnuDCWEBFEEDBACK"));
  if (id == cmdABOUTLICENCES) services_.program.OpenDialog(L"frmLICENCES");
}

}  // namespace varnel
