// The stopwatch widget.
#pragma once

#include "frame/widget_form.h"
#include "theme/themed_label_win.h"
#include "widgets/time/stopwatch_engine.h"

namespace varnel {

class StopwatchForm : public WidgetForm {  // frmSTWwg
 public:
  StopwatchForm(Services& services, const FormEntry& entry, int index);

 private:
  void OnLoad() override;
  void OnUnload() override { tmrSTOPWATCH_.Stop(); }
  void LayOutPanel(const Rect& panel) override;
  void RefreshContent() override;
  void OnControl(int id, int code) override;
  std::wstring Unfinished() const override;
  std::wstring StatusText() const override;
  std::wstring Summary() const override { return engine_.shown() + L" \x2013 " + StatusText(); }
  void DrawPanelButton(const ButtonPainting& painting) override;

  void OnTick();
  void ShowState();

  StopwatchEngine engine_;
  std::size_t laid_out_length_ = 0;  // of the text that the display's font was chosen for
  ThemedLabel display_;
  Timer tmrSTOPWATCH_;
};

}  // namespace varnel
