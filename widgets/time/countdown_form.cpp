#include "widgets/time/countdown_form.h"

#include "resources/control_ids.h"
#include "theme/contrast.h"
#include "win/graphics/font_measure.h"
#include "win/system/sound.h"
#include "win/windows/message_box.h"

namespace varnel {
namespace {

constexpr int kTickMs = 1000;
constexpr int kDaySeconds = 24 * 60 * 60;
constexpr TextFieldKind kDigits{
    .most = 3, .digits_only = true, .centred = true, .chosen_whole = true};
constexpr int kOutlineRoom = 3;  // at 96 dpi, between a field and its outline
constexpr CountdownField kFields[] = {CountdownField::kHours, CountdownField::kMinutes,
                                      CountdownField::kSeconds};
constexpr const wchar_t* kIntervalWords[] = {L"Set", L"h", L"m", L"s"};

}  // namespace

CountdownForm::CountdownForm(Services& services, const FormEntry& entry, int index)
    : WidgetForm(services, entry, index),
      engine_(services.settings),
      tmrTIMER_(*this, kTickMs, [this] { OnTick(); }) {
  for (auto& label : separators_) label = std::make_unique<ThemedLabel>(services.ui);
  for (auto& label : interval_labels_) label = std::make_unique<ThemedLabel>(services.ui);
}

void CountdownForm::OnLoad() {
  for (int i = 0; i < 3; ++i) fields_[i].Load(handle(), txtHRS + i, kDigits);
  for (int i = 0; i < 3; ++i) interval_fields_[i].Load(handle(), txtSUBHRS + i, kDigits);
  for (int i = 0; i < 2; ++i) {
    separators_[i]->Load(handle(), lblSEP1 + i);
    separators_[i]->SetText(L":");
  }
  for (int i = 0; i < 4; ++i) {
    interval_labels_[i]->Load(handle(), lblINTERVAL + i);
    interval_labels_[i]->SetText(kIntervalWords[i]);
  }
  buttons().Add(lblStart, std::wstring(engine_.start_caption()), 0, false);
  buttons().Add(lblStop, std::wstring(engine_.stop_caption()), 0, false);
  ShowState();
}

std::size_t CountdownForm::MostDigits() const {
  std::size_t most = 0;
  for (const CountdownField field : kFields) {
    most = std::max(most, engine_.DisplayText(field).size());
  }
  return most;
}

void CountdownForm::LayOutPanel(const Rect& panel) {
  laid_out_digits_ = MostDigits();
  const CountdownLayout place =
      LayOutCountdown({panel.width(), panel.height()}, dpi(), std::wstring(laid_out_digits_, L'0'),
                      FontMeasure(ui().fonts, paint().theme.strTHEMEPANELFONTNAME, false));
  const TextStyle style = FieldStyle(place.font_height);
  for (int i = 0; i < 3; ++i) fields_[i].Place(Within(panel, place.fields[i]), style);
  for (int i = 0; i < 2; ++i) {
    separators_[i]->Place(Within(panel, place.separators[i]), style);
    separators_[i]->Show(true);
  }
  PlaceInterval(place, panel);
  buttons().Place(lblStart, Within(panel, place.buttons.start));
  buttons().Place(lblStop, Within(panel, place.buttons.stop));
}

TextStyle CountdownForm::FieldStyle(int font_height) const {
  TextStyle style = PanelTextStyle(font_height);
  style.prefer_ink = true;
  return style;
}

void CountdownForm::PlaceInterval(const CountdownLayout& place, const Rect& panel) {
  const bool shown = !place.interval_label.empty();
  const TextStyle style = FieldStyle(place.interval_font_height);
  for (int i = 0; i < 4; ++i) {
    const Rect& box = i == 0 ? place.interval_label : place.interval_units[i - 1];
    interval_labels_[i]->Place(Within(panel, box), style);
    interval_labels_[i]->Show(shown);
  }
  for (int i = 0; i < 3; ++i) {
    interval_boxes_[i] = shown ? place.interval_fields[i] : Rect{};
    interval_fields_[i].Place(shown ? Within(panel, interval_boxes_[i]) : Rect{}, style);
  }
}

void CountdownForm::PaintPanel(Surface& surface, const Rect& panel) {
  const TextStyle style = FieldStyle(1);
  const Colour outline = OutlineColour(WritingOf(style).colour, style.ground);
  for (const Rect& box : interval_boxes_) {
    if (box.empty()) continue;
    FrameRectangle(surface.dc(), Inset(Within(panel, box), -Scaled(kOutlineRoom, dpi())), outline);
  }
}

void CountdownForm::RefreshContent() {
  ShowFields(0);
}

void CountdownForm::ShowFields(int edited_id) {
  for (int i = 0; i < 3; ++i) {
    fields_[i].SetText(engine_.DisplayText(kFields[i]));
    if (txtSUBHRS + i != edited_id) interval_fields_[i].SetText(engine_.IntervalText(kFields[i]));
  }
  // The font follows the number of digits.
  if (MostDigits() != laid_out_digits_) LayOutPanel(layout().pfrPANEL);
}

void CountdownForm::ShowState() {
  buttons().SetText(lblStart, engine_.start_caption());
  buttons().SetText(lblStop, engine_.stop_caption());
  if (engine_.counting() != tmrTIMER_.enabled()) {
    if (engine_.counting()) {
      tmrTIMER_.Start();
    } else {
      tmrTIMER_.Stop();
    }
  }
  ShowFields(0);
  ShowStatus();
}

void CountdownForm::ShowStatus() {
  buttons().Enable(lblStart, engine_.can_start());
  buttons().Enable(lblStop, engine_.can_stop());
  ends_at_.clear();
  if (const int left = engine_.remaining(); engine_.counting() && left < kDaySeconds) {
    LocalTime end = services().clock.Now();
    const int seconds = (end.hour * 60 + end.minute) * 60 + end.second + left;
    end.hour = seconds / 3600 % 24;
    end.minute = seconds / 60 % 60;
    ends_at_ = services().formatter.Format(end, L"Short Time");
  }
  RepaintStatus();
}

void CountdownForm::DrawPanelButton(const ButtonPainting& painting) {
  const bool primary = painting.button.id == lblStart;
  WidgetForm::DrawPanelButton(primary ? Primary(painting, paint()) : Quiet(painting, paint()));
}

void CountdownForm::OnTick() {
  switch (engine_.Tick()) {
    case CountdownTick::kNothing:
      break;
    case CountdownTick::kChanged:
      ShowFields(0);
      break;
    case CountdownTick::kEnded:
      AnnounceEnd();
      break;
  }
}

void CountdownForm::AnnounceEnd() {
  services().sound.PlayResource(kBellName);
  Ask(handle(), {kCountdownEndTitle, kCountdownEndText});
  engine_.AcknowledgeEnd();
  if (handle()) ShowState();
}

void CountdownForm::OnControl(int id, int code) {
  const bool display = id >= txtHRS && id <= txtSECS;
  const bool interval = id >= txtSUBHRS && id <= txtSUBSECS;
  if (code == BN_CLICKED && (id == lblStart || id == lblStop)) {
    if (id == lblStart) {
      engine_.PressStart();
    } else {
      engine_.PressStop();
    }
    ShowState();
  } else if (code == EN_CHANGE && (display || interval)) {
    OnFieldChanged(id);
  }
}

void CountdownForm::OnFieldChanged(int id) {
  const int index = id >= txtSUBHRS ? id - txtSUBHRS : id - txtHRS;
  engine_.Edit(kFields[index], (id >= txtSUBHRS ? interval_fields_ : fields_)[index].text());
  ShowFields(id);
  ShowStatus();
}

std::wstring CountdownForm::Unfinished() const {
  return engine_.counting() ? L"The countdown is running, and would not come to its end." : L"";
}

std::wstring CountdownForm::StatusText() const {
  if (!ends_at_.empty()) return L"Ends at " + ends_at_;
  return L"Set to " + engine_.IntervalText(kFields[0]) + L":" + engine_.IntervalText(kFields[1]) +
         L":" + engine_.IntervalText(kFields[2]);
}

std::wstring CountdownForm::Summary() const {
  if (!engine_.can_stop()) return StatusText();
  const std::wstring left = engine_.DisplayText(kFields[0]) + L":" +
                            engine_.DisplayText(kFields[1]) + L":" +
                            engine_.DisplayText(kFields[2]);
  return left + (engine_.counting() ? L" left" : L" left, paused");
}

}  // namespace varnel
