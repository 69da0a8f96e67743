#include "widgets/time/stopwatch_form.h"

#include "resources/control_ids.h"
#include "widgets/time/clock_commands.h"
#include "widgets/time/timer_layout.h"
#include "win/graphics/font_measure.h"
#include "win/system/clipboard.h"

namespace varnel {
namespace {

constexpr int kTickMs = 100;

}  // namespace

StopwatchForm::StopwatchForm(Services& services, const FormEntry& entry, int index)
    : WidgetForm(services, entry, index, {kStopwatchCommands}),
      display_(services.ui),
      tmrSTOPWATCH_(*this, kTickMs, [this] { OnTick(); }) {
  commands().Bind({{L"mnuSTWCOPY", [this] { CopyText(handle(), engine_.shown()); }}});
}

void StopwatchForm::OnLoad() {
  display_.Load(handle(), lblELAPSED);
  buttons().Add(lblStartfrmSTWwg, std::wstring(engine_.left_caption()), 0, false);
  buttons().Add(lblStopfrmSTWwg, std::wstring(engine_.right_caption()), 0, false);
  ShowState();
}

void StopwatchForm::OnTick() {
  engine_.Tick();
  RefreshContent();
}

void StopwatchForm::RefreshContent() {
  // The font follows the number of digits, which grows after 99 minutes.
  if (engine_.shown().size() != laid_out_length_) LayOutPanel(layout().pfrPANEL);
  display_.SetText(engine_.shown());
}

void StopwatchForm::LayOutPanel(const Rect& panel) {
  laid_out_length_ = engine_.shown().size();
  const StopwatchLayout place =
      LayOutStopwatch({panel.width(), panel.height()}, dpi(), engine_.shown(),
                      FontMeasure(ui().fonts, paint().theme.strTHEMEPANELFONTNAME, false));
  TextStyle style = PanelTextStyle(place.font_height);
  style.tabular = true;
  display_.Place(Within(panel, place.display), style);
  display_.Show(place.font_height > 0);
  buttons().Place(lblStartfrmSTWwg, Within(panel, place.buttons.start));
  buttons().Place(lblStopfrmSTWwg, Within(panel, place.buttons.stop));
}

void StopwatchForm::ShowState() {
  buttons().SetText(lblStartfrmSTWwg, engine_.left_caption());
  buttons().SetText(lblStopfrmSTWwg, engine_.right_caption());
  buttons().Enable(lblStopfrmSTWwg, engine_.begun());
  RepaintStatus();
}

void StopwatchForm::DrawPanelButton(const ButtonPainting& painting) {
  const bool primary = painting.button.id == lblStartfrmSTWwg;
  WidgetForm::DrawPanelButton(primary ? Primary(painting, paint()) : Quiet(painting, paint()));
}

void StopwatchForm::OnControl(int id, int code) {
  if (code != BN_CLICKED) return;
  if (id == lblStartfrmSTWwg) {
    engine_.PressLeft();
    if (engine_.running()) {
      tmrSTOPWATCH_.Start();
    } else {
      tmrSTOPWATCH_.Stop();
    }
    ShowState();
  } else if (id == lblStopfrmSTWwg) {
    engine_.PressRight();
    ShowState();
    WidgetRefresh();
  }
}

std::wstring StopwatchForm::Unfinished() const {
  return engine_.running() ? L"The stopwatch is running, and its time would be lost." : L"";
}

std::wstring StopwatchForm::StatusText() const {
  if (engine_.lapse_held()) {
    return engine_.running() ? L"Lapse held \x2013 the count goes on"
                             : L"Lapse held \x2013 Resume shows the count";
  }
  if (engine_.running()) return L"Running";
  return engine_.begun() ? L"Paused" : L"Ready";
}

}  // namespace varnel
