#include "dialogs/about/page_dialog.h"

#include "dialogs/about/about_text.h"
#include "resources/control_ids.h"
#include "win/net/web_page.h"

namespace varnel {
namespace {

constexpr HttpLimits kLimits{64 * 1024, 10'000};

constexpr PageDialog::Traits kDonation{
    L"frmDONATE", &WebAddresses::donation,
    L"Widget Varnel is free, shows no advertisements and collects nothing about you. If it serves "
    L"you well, a donation helps to keep it so. How to give is told on its page:"};
constexpr PageDialog::Traits kOtherApps{
    L"frmMORE", &WebAddresses::other_apps,
    L"Other programs of the maker, what each is for and where to get it, are told on their page:"};

}  // namespace

PageDialog::PageDialog(Services& services, const Traits& traits)
    : Dialog(services.ui, traits.form_name),
      services_(services),
      traits_(traits),
      web_(services.ui, kLimits) {}

DonationDialog::DonationDialog(Services& services) : PageDialog(services, kDonation) {}

OtherAppsDialog::OtherAppsDialog(Services& services) : PageDialog(services, kOtherApps) {}

void PageDialog::OnOpen() {
  SetControlText(lblPAGEWORDS, std::wstring(traits_.words));
  Fetch();
}

void PageDialog::OnReopen() {
  Fetch();
}

void PageDialog::Fetch() {
  const std::wstring page = ReadWebAddresses(services_.settings).*traits_.page;
  SetControlText(txtPAGETEXT, L"Asking for " + page + L" ...");
  web_.Start(TextOfPage(page), [this, page](const HttpResult& result) {
    if (!open()) return;
    SetControlText(txtPAGETEXT, result.ok ? BoxText(result.body)
                                          : L"The page cannot be shown here: " + result.reason +
                                                L".\r\n\r\nIt lies at " + page + L".");
  });
}

void PageDialog::OnCommand(int id, int code) {
  if (id == cmdOPENPAGE && code == BN_CLICKED) {
    OpenWebPage(handle(), ReadWebAddresses(services_.settings).*traits_.page);
  }
  if (id == IDOK || id == IDCANCEL) {
    web_.Cancel();
    Close();
  }
}

}  // namespace varnel
