// A page of the maker's shown as a dialog: what the program itself has to say, the page's text from
// the web, and the way to the page in the browser.
#pragma once

#include <string>
#include <string_view>

#include "frame/services.h"
#include "frame/web_addresses.h"
#include "win/net/http.h"
#include "win/windows/dialog.h"

namespace varnel {

class PageDialog : public Dialog {
 public:
  // Which page it is, and what stands above its text; both outlive the dialog.
  struct Traits {
    const wchar_t* form_name;
    std::wstring WebAddresses::*page;
    std::wstring_view words;
  };

 protected:
  PageDialog(Services& services, const Traits& traits);

 private:
  void OnOpen() override;
  void OnReopen() override;
  void OnCommand(int id, int code) override;
  // Asks the web anew; what it answers stands in the box, or why it does not.
  void Fetch();

  Services& services_;
  const Traits& traits_;
  HttpFetch web_;
};

class DonationDialog : public PageDialog {  // frmDONATE
 public:
  explicit DonationDialog(Services& services);
};

class OtherAppsDialog : public PageDialog {  // frmMORE
 public:
  explicit OtherAppsDialog(Services& services);
};

}  // namespace varnel
