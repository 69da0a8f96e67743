#include "widgets/weather/weather_form.h"

#include "base/image.h"
#include "base/rounded_box.h"
#include "frame/frame_painter_win.h"
#include "resources/control_ids.h"
#include "widgets/weather/live_source.h"
#include "widgets/weather/weather_commands.h"
#include "widgets/weather/weather_glyphs.h"
#include "widgets/weather/weather_service_win.h"
#include "win/graphics/font_measure.h"
#include "win/net/web_page.h"
#include "win/windows/window_text.h"

namespace varnel {
namespace {

constexpr int kFirstReadingMs = 20;  // timers wait until the widget is painted
constexpr int kMinuteMs = 60 * 1000;
constexpr int kStripGap = 12;  // at 96 dpi
constexpr double kCardCorner = 6;

}  // namespace

WeatherForm::WeatherForm(Services& services, const FormEntry& entry, int index,
                         WeatherService& weather)
    : WidgetForm(services, entry, index, {kWeatherCommands}),
      weather_(weather),
      lblWeatherCountry_(services.ui),
      lblWeathersymbol_(services.ui),
      lblTEMPERATURE_(services.ui),
      lblDESC_(services.ui),
      days_{DayLabels(services.ui), DayLabels(services.ui), DayLabels(services.ui)},
      lblUPDATED_(services.ui),
      tmrWEATHER_(*this, kFirstReadingMs,
                  [this] {
                    tmrWEATHER_.Stop();
                    weather_.WeatherDataGet();
                  }),
      minutely_(*this, kMinuteMs, [this] {
        weather_.KeepUpToDate();
        RefreshContent();  // the data may be of yesterday by now
      }) {
  commands().Bind({{L"mnuWEATHERREFRESH", [this] { weather_.WeatherRefresh(); }}});
}

void WeatherForm::OnLoad() {
  lblWeatherCountry_.Load(handle(), lblWeatherCountry);
  lblWeathersymbol_.Load(handle(), lblWeathersymbol);
  lblTEMPERATURE_.Load(handle(), lblTEMPERATURE);
  lblDESC_.Load(handle(), lblDESC);
  for (int i = 0; i < 3; ++i) {
    DayLabels& day = days_[static_cast<std::size_t>(i)];
    day.date.Load(handle(), lblFOREDATE + i);
    day.icon.Load(handle(), lblFOREICON + i);
    day.temps.Load(handle(), lblFORETEMP + i);
  }
  lblUPDATED_.Load(handle(), lblUPDATED);
  buttons().Add(lblATTRIBUTION, L"", 0, false);
  tmrWEATHER_.Start();
  minutely_.Start();
}

void WeatherForm::OnUnload() {
  tmrWEATHER_.Stop();
  minutely_.Stop();
}

void WeatherForm::LayOutPanel(const Rect& panel) {
  places_ = LayOutWeather({panel.width(), panel.height()}, dpi(), weather_.labels(),
                          FontMeasure(ui().fonts, paint().theme.strTHEMEPANELFONTNAME, false));
  PlaceLabels(panel);
  PlaceStrip();
}

void WeatherForm::PlaceLabels(const Rect& panel) {
  const auto place = [&](ThemedLabel& label, const LabelPlace& where, const TextStyle& style) {
    label.Place(Within(panel, where.box), style);
    label.Show(where.shown());
  };
  const auto style = [this](const LabelPlace& where, bool icon, Colour ground) {
    TextStyle made = PanelTextStyle(where.font_height);
    if (icon) made.font.face = kIconFontName;
    made.ground = ground;
    return made;
  };
  const Colour ground = chrome().ground;
  const Colour card = CardColours(paint(), services().colours).first;
  place(lblWeatherCountry_, places_.location, style(places_.location, false, ground));
  place(lblWeathersymbol_, places_.symbol, style(places_.symbol, true, ground));
  place(lblTEMPERATURE_, places_.temperature, style(places_.temperature, false, ground));
  place(lblDESC_, places_.condition, style(places_.condition, false, ground));
  for (std::size_t i = 0; i < days_.size(); ++i) {
    const auto& [date, icon, temps] = places_.forecast[i];
    place(days_[i].date, date, style(date, false, card));
    place(days_[i].icon, icon, style(icon, true, card));
    place(days_[i].temps, temps, style(temps, false, card));
  }
}

void WeatherForm::PlaceStrip() {
  const TextStyle style = StripTextStyle(paint(), dpi());
  const FontMeasure measure(ui().fonts, style.font.face, false);
  Rect room = layout().status_text;
  room.top += 1;  // below the line that the frame draws
  const WeatherStrip texts = ChooseStrip(weather_.status(), room.width(), Scaled(kStripGap, dpi()),
                                         style.font.height, measure);
  const int width = measure.Measure(texts.attribution, style.font.height).width;
  lblUPDATED_.SetText(texts.status);
  lblUPDATED_.Place({room.left, room.top, room.right - width, room.bottom}, style);
  lblUPDATED_.Show(true);
  buttons().SetText(lblATTRIBUTION, texts.attribution);
  buttons().Enable(lblATTRIBUTION, width > 0);
  buttons().Place(lblATTRIBUTION, {room.right - width, room.top, room.right, room.bottom});
}

void WeatherForm::RefreshContent() {
  const auto glyph = [](int icon) { return std::wstring(1, WeatherGlyph(icon)); };
  const WeatherLabels& shown = weather_.labels();
  lblWeatherCountry_.SetText(shown.location);
  lblWeathersymbol_.SetText(glyph(shown.symbol));
  lblTEMPERATURE_.SetText(shown.temperature);
  lblDESC_.SetText(shown.condition);
  for (std::size_t i = 0; i < days_.size(); ++i) {
    days_[i].date.SetText(shown.forecast[i].date);
    days_[i].icon.SetText(glyph(shown.forecast[i].icon));
    days_[i].temps.SetText(shown.forecast[i].temps);
  }
  PlaceStrip();
}

std::wstring WeatherForm::Summary() const {
  const WeatherLabels& shown = weather_.labels();
  const std::wstring status = WindowText(lblUPDATED_.handle());
  if (shown.symbol == kIconNotAvailable) return status;
  return shown.location + L": " + shown.temperature + L", " + shown.condition;
}

void WeatherForm::PaintPanel(Surface& surface, const Rect& panel) {
  if (places_.pfrFORECAST.empty()) return;
  // A card on a white ground is white too; then its outline shows it.
  const auto [face, outline] = CardColours(paint(), services().colours);
  DrawRoundedBox(surface.pixels(), surface.size(), Within(panel, places_.pfrFORECAST),
                 kCardCorner * dpi() / kDefaultDpi, OpaquePixel(face), OpaquePixel(outline));
}

void WeatherForm::DrawPanelButton(const ButtonPainting& painting) {
  TextStyle style = StripTextStyle(paint(), dpi());
  style.align = Align::kLeft;
  PaintText(ui(), painting.surface, painting.bounds, WindowText(painting.button.handle), style);
  if (painting.look == ButtonLook::kNormal && !painting.focused) return;
  const int bottom = painting.bounds.bottom - Scaled(3, dpi());
  FillRectangle(painting.surface.dc(),
                {0, bottom - Scaled(1, dpi()), painting.bounds.right, bottom}, style.colour);
}

void WeatherForm::OnControl(int id, int code) {
  if (id == lblATTRIBUTION && code == BN_CLICKED) {
    OpenWebPage(handle(), std::wstring(kLiveAttributionAddress));
  }
}

LRESULT WeatherForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  const LRESULT result = WidgetForm::OnMessage(message, wparam, lparam);
  if (message == WM_SETCURSOR && buttons().hovered() && buttons().hovered()->id == lblATTRIBUTION) {
    ::SetCursor(::LoadCursorW(nullptr, MAKEINTRESOURCEW(32649)));  // the hand of links
    return TRUE;
  }
  return result;
}

}  // namespace varnel
