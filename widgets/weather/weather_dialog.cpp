#include "widgets/weather/weather_dialog.h"

#include <algorithm>
#include <utility>

#include "resources/control_ids.h"
#include "widgets/weather/type_ahead.h"
#include "widgets/weather/weather_settings.h"
#include "win/windows/ui.h"

namespace varnel {
namespace {

constexpr int kLongestName = 254;  // characters that a setting can hold

}  // namespace

WeatherDialog::WeatherDialog(Services& services, WeatherService& weather)
    : Dialog(services.ui, L"frmWTHpr"),
      services_(services),
      weather_(weather),
      countries_{cboCOUNTRY, {}, {}},
      cities_{cboCOUNTRYAREA, {}, {}} {}

bool WeatherDialog::United() const {
  return Checked(optLOCATIONS + 1);
}

void WeatherDialog::OnOpen() {
  for (const int box : {cboCOUNTRY, cboCOUNTRYAREA}) {
    ::SendMessageW(Control(box), CB_LIMITTEXT, kLongestName, 0);
  }
  SetChecked(optTEMP + ReadFlag(services_.settings, kTempSelected), true);
  const bool united = ReadFlag(services_.settings, kWeatherWorld);
  SetChecked(optLOCATIONS + united, true);
  ChooseList(united);
}

void WeatherDialog::ChooseList(bool united) {
  SetControlText(lblCountry, united ? L"&State:" : L"&Country:");
  Fill(countries_, weather_.places().Areas(united));
  const bool stored = united == ReadFlag(services_.settings, kWeatherWorld);
  SetBoxText(countries_, stored ? services_.settings.Read(kWeatherCountry) : L"");
  FillCities();
  SetBoxText(cities_, stored ? services_.settings.Read(kWeatherCity) : L"");
  ShowPick();
}

void WeatherDialog::Fill(PlaceBox& box, std::vector<std::wstring> items) {
  HWND list = Control(box.id);
  ::SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  ::SendMessageW(list, CB_RESETCONTENT, 0, 0);
  for (const std::wstring& item : items) {
    ::SendMessageW(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
  }
  ::SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  ::InvalidateRect(list, nullptr, TRUE);
  box.items = std::move(items);
}

void WeatherDialog::FillCities() {
  listed_country_ = ControlText(countries_.id);
  const std::wstring city = ControlText(cities_.id);
  Fill(cities_, weather_.places().Cities(United(), listed_country_));
  // The city stays if the country has one of that name too.
  SetBoxText(cities_, std::ranges::count(cities_.items, city) ? city : L"");
}

void WeatherDialog::SetBoxText(PlaceBox& box, const std::wstring& text) {
  filling_ = true;
  SetControlText(box.id, text);
  filling_ = false;
  box.typed = text;
}

void WeatherDialog::OnCommand(int id, int code) {
  switch (id) {
    case optLOCATIONS:
    case optLOCATIONS + 1:
      // A button that only gets the focus sends its click too.
      if (code == BN_CLICKED) ChooseList(United());
      break;
    case cboCOUNTRY:
      OnBox(countries_, code);
      break;
    case cboCOUNTRYAREA:
      OnBox(cities_, code);
      break;
    case btnSEARCH:
      CompleteBox(countries_);
      FillCities();
      ShowPick();
      break;
    case cmdOKfrmWTHpr:
      CompleteBox(countries_);
      CompleteBox(cities_);
      Store();
      Close();
      break;
    case cmdCancelfrmWTHpr:
      Close();
      break;
    default:
      break;
  }
}

void WeatherDialog::OnBox(PlaceBox& box, int code) {
  switch (code) {
    case CBN_EDITCHANGE:
      if (!filling_) OnTyped(box);
      break;
    case CBN_SELCHANGE: {
      const LRESULT index = ::SendMessageW(Control(box.id), CB_GETCURSEL, 0, 0);
      if (index < 0 || index >= std::ssize(box.items)) return;
      SetBoxText(box, box.items[static_cast<std::size_t>(index)]);
      OnChosen(box);
      break;
    }
    case CBN_KILLFOCUS:
      CompleteBox(box);
      ::SendMessageW(Control(box.id), CB_SETEDITSEL, 0, MAKELPARAM(0xFFFF, 0));
      OnChosen(box);
      break;
    default:
      break;
  }
}

void WeatherDialog::OnTyped(PlaceBox& box) {
  const std::wstring text = ControlText(box.id);
  const auto completion = CompleteTyped(box.items, text, box.typed);
  if (completion) {
    SetBoxText(box, box.items[completion->item]);
    ::SendMessageW(Control(box.id), CB_SETEDITSEL, 0,
                   MAKELPARAM(static_cast<WORD>(completion->typed), 0xFFFF));
  }
  box.typed = text;
  ShowPick();
}

void WeatherDialog::OnChosen(PlaceBox& box) {
  if (&box == &countries_ && ControlText(box.id) != listed_country_) FillCities();
  ShowPick();
}

std::wstring WeatherDialog::Completed(const PlaceBox& box) const {
  const std::wstring text = ControlText(box.id);
  if (std::ranges::count(box.items, text)) return text;
  const auto item = TypeAheadMatch(box.items, text);
  return item ? box.items[*item] : text;
}

void WeatherDialog::CompleteBox(PlaceBox& box) {
  if (const std::wstring text = Completed(box); text != ControlText(box.id)) SetBoxText(box, text);
}

void WeatherDialog::ShowPick() {
  const std::wstring area = Completed(countries_);
  const std::wstring city = Completed(cities_);
  const auto place = weather_.places().Resolve(United(), area, city);
  SetControlText(lblPICK, place ? L"Weather for " + place->city + L", " + place->area + L"."
                          : city.empty() || area != listed_country_
                              ? L"Type the first letters, or choose from the lists."
                              : L"No such place is known; the weather stays as it is.");
}

void WeatherDialog::Store() {
  Settings& settings = services_.settings;
  settings.Write(kTempSelected, Checked(optTEMP) ? L"0" : L"1");
  settings.Write(kWeatherWorld, Checked(optLOCATIONS) ? L"0" : L"1");
  settings.Write(kWeatherCountry, ControlText(countries_.id));
  settings.Write(kWeatherCity, ControlText(cities_.id));
  weather_.WeatherDataGet();
}

}  // namespace varnel
