// The clock widget.
#pragma once

#include "frame/widget_form.h"
#include "theme/themed_label_win.h"
#include "widgets/time/clock_layout.h"

namespace varnel {

class AlarmService;

class ClockForm : public WidgetForm {  // frmCLKwg
 public:
  // `alarms` outlive the form.
  ClockForm(Services& services, const FormEntry& entry, int index, const AlarmService& alarms);

 private:
  std::wstring Summary() const override { return AlarmStatus(services().clock.Now()); }
  void OnLoad() override;
  void OnUnload() override { tmrCLOCK_.Stop(); }
  void LayOutPanel(const Rect& panel) override;
  void RefreshContent() override;
  std::wstring StatusText() const override;

  void OnTick();
  void ShowTime(const LocalTime& now);
  void PlaceLabels();
  std::wstring AlarmStatus(const LocalTime& now) const;

  const AlarmService& alarms_;
  ClockSettings settings_;  // as of the last refresh: asked for anew, they would cost each second
  ClockDisplay shown_;
  ClockDisplay shape_;  // what the labels are laid out for
  ClockLayout labels_;
  std::size_t strip_date_ = 0;  // for DateOf: what has room in the strip
  int second_ = -1;             // of the last refresh
  std::wstring alarm_status_;   // as of the last refresh
  ThemedLabel lblPANECLOCK_;
  ThemedLabel lblSECS_;
  ThemedLabel lblSTYLE_;
  ThemedLabel lbl7Sept2010_;
  Timer tmrCLOCK_;
};

}  // namespace varnel
