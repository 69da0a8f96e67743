#include "widgets/time/clock_form.h"

#include "frame/frame_painter_win.h"
#include "resources/control_ids.h"
#include "widgets/time/alarm_service_win.h"
#include "widgets/time/clock_commands.h"
#include "win/graphics/font_measure.h"

namespace varnel {
namespace {

constexpr int kTickMs = 100;

}  // namespace

ClockForm::ClockForm(Services& services, const FormEntry& entry, int index,
                     const AlarmService& alarms)
    : WidgetForm(services, entry, index, {kClockCommands}),
      alarms_(alarms),
      lblPANECLOCK_(services.ui),
      lblSECS_(services.ui),
      lblSTYLE_(services.ui),
      lbl7Sept2010_(services.ui),
      tmrCLOCK_(*this, kTickMs, [this] { OnTick(); }) {}

void ClockForm::OnLoad() {
  lblPANECLOCK_.Load(handle(), lblPANECLOCK);
  lblSECS_.Load(handle(), lblSECS);
  lblSTYLE_.Load(handle(), lblSTYLE);
  lbl7Sept2010_.Load(handle(), lbl7Sept2010);
  tmrCLOCK_.Start();
}

void ClockForm::OnTick() {
  // Ten ticks a second keep the change of the second prompt; only one of them has anything to show.
  const LocalTime now = services().clock.Now();
  if (now.second != second_ && sight() == Sight::kShown) ShowTime(now);
}

void ClockForm::RefreshContent() {
  settings_ = LoadClockSettings(services().settings);
  ShowTime(services().clock.Now());
}

void ClockForm::ShowTime(const LocalTime& now) {
  second_ = now.second;
  const std::wstring former_status = StatusText();
  shown_ = ReadDisplay(settings_, now, services().formatter);
  alarm_status_ = AlarmStatus(now);
  if (ShapeOf(shown_) != shape_) LayOutPanel(layout().pfrPANEL);
  lblPANECLOCK_.SetText(shown_.time);
  lblSECS_.SetText(shown_.seconds);
  lblSTYLE_.SetText(shown_.marker);
  lbl7Sept2010_.SetText(shown_.date);
  if (StatusText() != former_status) RepaintStatus();
}

void ClockForm::LayOutPanel(const Rect& panel) {
  shape_ = ShapeOf(shown_);
  labels_ = LayOutClock({panel.width(), panel.height()}, dpi(), shape_,
                        FontMeasure(ui().fonts, paint().theme.strTHEMEPANELFONTNAME, false));
  PlaceLabels();
  const TextStyle strip = StripTextStyle(paint(), dpi());
  strip_date_ = StripDate(shape_, layout().status_text.width(), strip.font.height,
                          FontMeasure(ui().fonts, strip.font.face, false));
}

void ClockForm::PlaceLabels() {
  const Rect& panel = layout().pfrPANEL;
  const int room = HaloRoom(dpi());
  const Rect boxes[] = {labels_.time.box, labels_.seconds.box, labels_.marker.box,
                        labels_.date.box};
  const auto place = [&](ThemedLabel& label, const LabelPlace& place, const TextStyle& style) {
    label.Place(Within(panel, Grown(place.box, room, boxes)), style);
    label.Show(place.shown());
  };
  TextStyle time = PanelTextStyle(labels_.time.font_height);
  time.tabular = true;
  const Reads as_time = IsLarge(time) ? Reads::kAsLarge : Reads::kByItsHeight;
  place(lblPANECLOCK_, labels_.time, time);
  TextStyle seconds = PanelTextStyle(labels_.seconds.font_height, as_time);
  seconds.tabular = true;
  place(lblSECS_, labels_.seconds, seconds);
  place(lblSTYLE_, labels_.marker, PanelTextStyle(labels_.marker.font_height, as_time));
  place(lbl7Sept2010_, labels_.date, PanelTextStyle(labels_.date.font_height));
}

std::wstring ClockForm::StatusText() const {
  // A date that the panel has no room for stands in the strip.
  return labels_.date.shown() ? alarm_status_ : DateOf(shown_, strip_date_);
}

std::wstring ClockForm::AlarmStatus(const LocalTime& now) const {
  constexpr std::wstring_view kWholeMinute = L":00";
  const auto next = NextAlarm(alarms_.presets(), now);
  if (!next) return L"No alarm is set";
  std::wstring_view time = next->time;
  if (time.ends_with(kWholeMinute)) time.remove_suffix(kWholeMinute.size());
  std::wstring status = L"Next alarm " + std::wstring(time);
  return next->message.empty() ? status : status + L" \x2013 " + next->message;
}

}  // namespace varnel
