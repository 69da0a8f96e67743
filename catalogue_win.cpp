#include "catalogue_win.h"

#include "core/options_dialog.h"
#include "dialogs/theme/theme_dialog.h"
#include "widgets/boards/board_folders.h"
#include "widgets/calculator/calculator_form.h"
#include "widgets/notes/notes_folder.h"
#include "widgets/time/alarm_dialog.h"
#include "widgets/time/clock_dialog.h"
#include "widgets/time/clock_form.h"
#include "widgets/time/countdown_form.h"
#include "widgets/time/stopwatch_form.h"
#include "widgets/weather/weather_dialog.h"
#include "widgets/weather/weather_form.h"

namespace varnel {
namespace {

constexpr CatalogueWidget kWidgets[] = {{0, MakeWidget<ClockForm>},
                                        {1, MakeWidget<CalculatorForm>},
                                        {4, MakeWidget<StopwatchForm>},
                                        {5, MakeWidget<CountdownForm>},
                                        {7, MakeWidget<WeatherForm>}};
constexpr CatalogueDialog kDialogs[] = {{L"frmVRNpr", MakeDialog<OptionsDialog>},
                                        {L"frmTHEME", MakeDialog<ThemeDialog>},
                                        {L"frmCLKpr", MakeDialog<ClockDialog>},
                                        {L"frmWTHpr", MakeDialog<WeatherDialog>},
                                        {L"frmCLKas", MakeDialog<AlarmDialog>, true}};
constexpr FolderSetting kFolders[] = {kWhiteboardFolder, kNotesFolder, kCalendarFolder};
constexpr Catalogue kCatalogue{kWidgets, kDialogs, kFolders};

}  // namespace

const Catalogue& ProgramCatalogue() {
  return kCatalogue;
}

}  // namespace varnel
