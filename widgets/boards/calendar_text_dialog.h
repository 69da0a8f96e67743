// The dialog in which text for the calendar is typed.
#pragma once

#include "resources/control_ids.h"
#include "widgets/boards/calendar_link.h"
#include "widgets/boards/calendar_settings.h"
#include "widgets/boards/insert_text_dialog.h"

namespace varnel {

class CalendarTextDialog : public InsertTextDialog {  // frmCALit
 public:
  CalendarTextDialog(Services& services, CalendarLink& link)
      : InsertTextDialog(services, L"frmCALit", txtINSERTBOX, kCalendarTextSize), link_(link) {}

 private:
  void OnOpen() override {
    InsertTextDialog::OnOpen();
    SetChecked(chkWRAP, ReadCheck(services().settings, kCalendarTextWrap));
  }
  void OnText(const std::wstring& text, int points) override {
    const bool wrap = Checked(chkWRAP);
    WriteCheck(services().settings, kCalendarTextWrap, wrap);
    if (link_.widget) link_.widget->InsertText(text, points, wrap);
  }

  CalendarLink& link_;
};

}  // namespace varnel
