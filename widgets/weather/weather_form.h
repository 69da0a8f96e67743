// The weather widget.
#pragma once

#include <array>

#include "frame/widget_form.h"
#include "theme/themed_label_win.h"
#include "widgets/weather/weather_layout.h"
#include "widgets/weather/weather_status.h"

namespace varnel {

class WeatherService;

class WeatherForm : public WidgetForm {  // frmWTHwg
 public:
  WeatherForm(Services& services, const FormEntry& entry, int index, WeatherService& weather);

 private:
  struct DayLabels {
    explicit DayLabels(Ui& ui) : date(ui), icon(ui), temps(ui) {}
    ThemedLabel date;
    ThemedLabel icon;
    ThemedLabel temps;
  };

  void OnLoad() override;
  void OnUnload() override;
  void LayOutPanel(const Rect& panel) override;
  void RefreshContent() override;
  void PaintPanel(Surface& surface, const Rect& panel) override;
  void DrawPanelButton(const ButtonPainting& painting) override;
  void OnControl(int id, int code) override;
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override;

  std::wstring Summary() const override;
  void PlaceLabels(const Rect& panel);
  void PlaceStrip();

  WeatherService& weather_;
  WeatherLayout places_;
  ThemedLabel lblWeatherCountry_;
  ThemedLabel lblWeathersymbol_;
  ThemedLabel lblTEMPERATURE_;
  ThemedLabel lblDESC_;
  std::array<DayLabels, 3> days_;
  ThemedLabel lblUPDATED_;
  Timer tmrWEATHER_;  // once after loading: reads what is stored and fetches anew
  Timer minutely_;
};

}  // namespace varnel
