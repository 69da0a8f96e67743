#include "catalogue_win.h"

#include "core/options_dialog.h"
#include "dialogs/about/about_dialog.h"
#include "dialogs/about/licences_dialog.h"
#include "dialogs/about/page_dialog.h"
#include "dialogs/preview/preview_dialog.h"
#include "dialogs/theme/theme_dialog.h"
#include "widgets/boards/board_versions_dialog.h"
#include "widgets/boards/calendar_folder_dialog.h"
#include "widgets/boards/calendar_form.h"
#include "widgets/boards/calendar_text_dialog.h"
#include "widgets/boards/icon_picker_dialog.h"
#include "widgets/boards/whiteboard_folder_dialog.h"
#include "widgets/boards/whiteboard_form.h"
#include "widgets/boards/whiteboard_text_dialog.h"
#include "widgets/calculator/calculator_form.h"
#include "widgets/notes/note_versions_dialog.h"
#include "widgets/notes/notes_dialog.h"
#include "widgets/notes/notes_folder.h"
#include "widgets/notes/notes_form.h"
#include "widgets/notes/spelling/spell_service_win.h"
#include "widgets/time/alarm_dialog.h"
#include "widgets/time/alarm_service_win.h"
#include "widgets/time/clock_dialog.h"
#include "widgets/time/clock_form.h"
#include "widgets/time/countdown_form.h"
#include "widgets/time/stopwatch_form.h"
#include "widgets/weather/weather_dialog.h"
#include "widgets/weather/weather_form.h"
#include "widgets/weather/weather_service_win.h"

namespace varnel {
namespace {

void AddProgram(Catalogue& catalogue) {
  catalogue.AddDialog<OptionsDialog>(L"frmVRNpr");
  catalogue.AddDialog<ThemeDialog>(L"frmTHEME");
  catalogue.AddDialog<PreviewDialog>(L"frmNOTpp", catalogue.printing());
  catalogue.AddDialog<AboutDialog>(L"frmABOUT");
  catalogue.AddDialog<LicencesDialog>(L"frmLICENCES");
  catalogue.AddDialog<DonationDialog>(L"frmDONATE");
  catalogue.AddDialog<OtherAppsDialog>(L"frmMORE");
}

void AddTime(Catalogue& catalogue) {
  auto& alarms = catalogue.AddService<AlarmService>();
  catalogue.AddWidget<ClockForm>(0, alarms);
  catalogue.AddWidget<StopwatchForm>(4);
  catalogue.AddWidget<CountdownForm>(5);
  catalogue.AddDialog<ClockDialog>(L"frmCLKpr", alarms);
  catalogue.AddDialog<AlarmDialog>(L"frmCLKas", alarms);
}

void AddCalculator(Catalogue& catalogue) {
  catalogue.AddWidget<CalculatorForm>(1);
}

void AddWeather(Catalogue& catalogue) {
  auto& weather = catalogue.AddService<WeatherService>();
  catalogue.AddWidget<WeatherForm>(7, weather);
  catalogue.AddDialog<WeatherDialog>(L"frmWTHpr", weather);
}

void AddBoards(Catalogue& catalogue) {
  auto& whiteboard = catalogue.AddService<BoardLink>();
  catalogue.AddWidget<WhiteboardForm>(6, whiteboard, catalogue.printing());
  catalogue.AddDialog<WhiteboardTextDialog>(L"frmWBDit", whiteboard);
  catalogue.AddDialog<WhiteboardFolderDialog>(L"frmWBDpr", whiteboard);
  catalogue.AddDialog<WhiteboardVersionsDialog>(L"frmWBDvr", whiteboard);
  auto& calendar = catalogue.AddService<CalendarLink>();
  catalogue.AddWidget<CalendarForm>(2, calendar, catalogue.printing());
  catalogue.AddDialog<CalendarTextDialog>(L"frmCALit", calendar);
  catalogue.AddDialog<IconPickerDialog>(L"frmCALip", calendar);
  catalogue.AddDialog<CalendarFolderDialog>(L"frmCALpr", calendar);
  catalogue.AddDialog<CalendarVersionsDialog>(L"frmCALvr", calendar);
  catalogue.AddFolder(kWhiteboardFolder);
  catalogue.AddFolder(kCalendarFolder);
}

void AddNotes(Catalogue& catalogue) {
  auto& notes = catalogue.AddService<NotesLink>();
  catalogue.AddFolder(kNotesFolder);
  auto& spelling = catalogue.AddService<SpellService>();
  catalogue.AddWidget<NotesForm>(3, notes, spelling, catalogue.printing());
  catalogue.AddDialog<NotesDialog>(L"frmNOTpr", notes);
  catalogue.AddDialog<NoteVersionsDialog>(L"frmNOTvr", notes);
}

constexpr Family kFamilies[] = {AddProgram, AddTime,   AddCalculator,
                                AddWeather, AddBoards, AddNotes};

}  // namespace

std::span<const Family> ProgramFamilies() {
  return kFamilies;
}

}  // namespace varnel
