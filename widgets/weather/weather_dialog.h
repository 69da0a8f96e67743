// The dialog in which the weather's place and scale are chosen.
#pragma once

#include <string>
#include <vector>

#include "frame/services.h"
#include "widgets/weather/weather_service_win.h"
#include "win/windows/dialog.h"

namespace varnel {

class WeatherDialog : public Dialog {  // frmWTHpr
 public:
  WeatherDialog(Services& services, WeatherService& weather);

 private:
  // A combo box in which places are chosen or typed.
  struct PlaceBox {
    int id;
    std::vector<std::wstring> items;
    std::wstring typed;  // what the user has typed in it, without what was offered
  };

  void OnOpen() override;
  void OnCommand(int id, int code) override;

  bool United() const;  // the United States list is chosen
  void ChooseList(bool united);
  void FillCities();
  void Fill(PlaceBox& box, std::vector<std::wstring> items);
  void OnBox(PlaceBox& box, int code);
  void OnTyped(PlaceBox& box);
  void OnChosen(PlaceBox& box);
  // The box's text, or the item that it begins.
  std::wstring Completed(const PlaceBox& box) const;
  void CompleteBox(PlaceBox& box);
  void SetBoxText(PlaceBox& box, const std::wstring& text);
  void ShowPick();
  void Store();

  Services& services_;
  WeatherService& weather_;
  PlaceBox countries_;
  PlaceBox cities_;
  std::wstring listed_country_;  // whose cities are listed
  bool filling_ = false;         // the boxes are being written by the program
};

}  // namespace varnel
