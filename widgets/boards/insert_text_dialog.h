// The dialogs in which text for a board is typed.
#pragma once

#include <string>

#include "base/settings.h"
#include "frame/services.h"
#include "win/windows/dialog.h"

namespace varnel {

// The dialog's resource has a box for the text, the control cboSIZE, OK and Cancel.
class InsertTextDialog : public Dialog {
 public:
  // `size` is the setting that keeps the size, in points.
  InsertTextDialog(Services& services, const wchar_t* form_name, int text_box, const Setting& size)
      : Dialog(services.ui, form_name), services_(services), text_box_(text_box), size_(size) {}

 protected:
  void OnOpen() override;
  void OnCommand(int id, int code) override;
  // The user pressed OK; the dialog closes afterwards.
  virtual void OnText(const std::wstring& text, int points) = 0;
  Services& services() const { return services_; }

 private:
  Services& services_;
  const int text_box_;
  const Setting& size_;
};

}  // namespace varnel
