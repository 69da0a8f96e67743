#include "tools/shots/subjects.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

#include "base/number_text.h"
#include "resources/control_ids.h"
#include "tests/rig/controls.h"
#include "tests/rig/dialogs.h"
#include "tests/rig/files.h"
#include "tests/rig/input.h"
#include "tests/rig/menus.h"
#include "tools/shots/note_subjects.h"
#include "tools/shots/preview_subjects.h"
#include "tools/shots/sample_boards.h"
#include "tools/shots/sample_month.h"

namespace varnel::shots {
namespace {

using namespace rig;

constexpr wchar_t kStart[] = L"frmVRNpr\\Details";
constexpr wchar_t kClockDetails[] = L"frmCLKpr\\Details";

const std::vector<StoredText> kClassicClock = {{kClockDetails, L"Style-modern", L"0"}};
const std::vector<StoredText> kTwelveHourClock = {{kClockDetails, L"Style-24Hour", L"0"}};
const std::vector<StoredText> kSetCountdown = {
    {L"frmCDNwg\\Details", L"Timer-Interval-hrs", L"01"},
    {L"frmCDNwg\\Details", L"Timer-Interval-mins", L"25"}};
const std::vector<StoredText> kAlarms = {
    {L"frmCLKas\\Details", L"Alarm Preset Message_0", L"Get up"},
    {L"frmCLKas\\Details", L"Alarm Preset Time_0", L"06:45:00"},
    {L"frmCLKas\\Details", L"Alarm Preset Use_0", L"1"},
    {L"frmCLKas\\Details", L"Alarm Preset Message_1", L"Call the people from the workshop back"},
    {L"frmCLKas\\Details", L"Alarm Preset Time_1", L"14:30:00"}};
const std::vector<StoredText> kNoWeather = {
    {L"frmWTHpr\\Details", L"Weather Feed Endpoint", kNowhere}};
const std::vector<StoredText> kAllWidgets = {
    {kStart, L"Start-Load-Clock", L"True"},       {kStart, L"Start-Load-Calc", L"True"},
    {kStart, L"Start-Load-Calendar", L"True"},    {kStart, L"Start-Load-Notes", L"True"},
    {kStart, L"Start-Load-Stopwatch", L"True"},   {kStart, L"Start-Load-Timer", L"True"},
    {kStart, L"Start-Load-Whiteboard", L"True"},  {kStart, L"Start-Load-Weather", L"True"},
    {kStart, L"Program Minimize on Start", L"0"},
};

const std::vector<StoredText> kSomeWidgets = {{kStart, L"Start-Load-Clock", L"True"},
                                              {kStart, L"Start-Load-Calendar", L"True"},
                                              {kStart, L"Start-Load-Notes", L"True"},
                                              {kStart, L"Start-Load-Weather", L"True"}};

Preparation Command(const wchar_t* name) {
  return [name](const Program&, HWND form) { Choose(form, name); };
}

// Opens the theme dialog on one of its tabs.
Preparation ThemeTab(int tab) {
  return [tab](const Program& program, HWND form) {
    Choose(form, L"mnuDCSETTINGS");
    HWND dialog = WaitForForm(program, L"frmTHEME");
    Send(Control(dialog, tabMAIN), TCM_SETCURFOCUS, static_cast<WPARAM>(tab));
  };
}

Preparation Presses(std::initializer_list<int> controls) {
  return [controls = std::vector<int>(controls)](const Program&, HWND form) {
    for (const int control : controls) Send(Control(form, control), BM_CLICK);
  };
}

// The local time in a few seconds, as an alarm has it.
std::wstring SoonText() {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  const int soon = (now.wHour * 3600 + now.wMinute * 60 + now.wSecond + 3) % 86400;
  return PaddedNumber(soon / 3600, 2) + L":" + PaddedNumber(soon / 60 % 60, 2) + L":" +
         PaddedNumber(soon % 60, 2);
}

void LetAlarmRing(const Program& program, HWND clock) {
  Choose(clock, L"mnuCLOCKALARMSET");
  HWND dialog = WaitForForm(program, L"frmCLKas");
  SetText(Control(dialog, cboTIME), SoonText());
  Send(Control(dialog, cmdOKfrmCLKas), BM_CLICK);
}

// Does some sums, with nothing before them in the log; the last is still to be finished.
void DoSums(const Program& program, HWND calculator) {
  Choose(calculator, L"mnuCALCCLEARHISTORY");
  if (HWND question = WaitForDialog(program)) CloseDialog(question, IDYES);
  Presses({lblNUMBER + 1, lblNUMBER + 9, lblPOINT, lblNUMBER + 9, lblNUMBER + 5, lblMULTIPLY,
           lblNUMBER + 3, lblEQUALS, lblNUMBER + 1, lblDIVIDE, lblNUMBER + 3, lblADD, lblNUMBER + 1,
           lblNUMBER + 2, lblEQUALS, lblNUMBER + 8, lblMULTIPLY, lblNUMBER + 7})(program,
                                                                                 calculator);
}

void DoSumsUnseen(const Program& program, HWND calculator) {
  DoSums(program, calculator);
  Choose(calculator, L"mnuCALCSHOWHIST");
}

void LetWeatherCome(const Program&, HWND weather) {
  WaitUntil([weather] { return Text(Control(weather, lblTEMPERATURE)) != L"-"; });
}

void LetWeatherFail(const Program&, HWND weather) {
  WaitUntil([weather] { return Text(Control(weather, lblUPDATED)).starts_with(L"The server"); });
}

// Shows the first board, whose name comes first, with a text put on it, and a pen chosen.
void LabelBoard(const Program& program, HWND whiteboard) {
  const Rect small = RectOf(whiteboard);
  const bool roomy = small.width() > 420;
  if (!roomy) ::SetWindowPos(whiteboard, nullptr, 20, 20, 620, 420, SWP_NOZORDER);
  HWND list = Control(whiteboard, lvwFILES);
  const Rect rows = RectOf(list);
  Click({rows.left + 20, rows.top + 20});
  WaitUntil([&] { return Text(Control(whiteboard, lblWhiteboard)) == L"Garden plan"; });
  ClickOn(Control(whiteboard, cmdPEN + 4));
  Choose(whiteboard, L"mnuWBOARDINSTEXT");
  HWND dialog = WaitForForm(program, L"frmWBDit");
  SetText(Control(dialog, txtINSE), L"pond");
  Send(Control(dialog, cmdOKfrmWBDit), BM_CLICK);
  const Rect board = RectOf(Control(whiteboard, picMAINBOARD));
  Click({board.left + 70, board.top + 140});
  ClickOn(Control(whiteboard, cmdPEN + 5));
  MoveMouse({board.left + 100, board.bottom + 20});
  ::SetWindowPos(whiteboard, nullptr, small.left, small.top, small.width(), small.height(),
                 SWP_NOZORDER);
}

// A board's text, not put down yet.
void FloatText(const Program& program, HWND whiteboard) {
  LabelBoard(program, whiteboard);
  Choose(whiteboard, L"mnuWBOARDINSTEXT");
  HWND dialog = WaitForForm(program, L"frmWBDit");
  SetText(Control(dialog, txtINSE), L"path to the gate");
  Send(Control(dialog, cmdOKfrmWBDit), BM_CLICK);
}

const std::vector<StoredText> kNoBoardList = {{L"frmWBDwg\\Details", L"Show-Side-Bar", L"False"}};

void OpenMenu(const Program& program, HWND form) {
  Click({RectOf(form).left + 60, RectOf(form).top + 10}, MouseButton::kRight);
  WaitForMenus(program, 1);
}

void ShowButtonLooks(const Program&, HWND form) {
  Activate(form);
  PressKey(VK_TAB);
  MoveMouse(CentreOf(Control(form, lblNUMBER + 4)));
}

// Puts a picture and a text on days of the month, with a pen chosen.
void FillMonth(const Program& program, HWND calendar) {
  const Rect small = RectOf(calendar);
  ::SetWindowPos(calendar, nullptr, small.left, small.top, 620, 420, SWP_NOZORDER);
  const Rect board = RectOf(Control(calendar, picMAINBOARD));
  const auto day = [&](double column, double row) {
    return Point{static_cast<int>(board.left + 30 + (board.width() - 30) * column / 7),
                 static_cast<int>(board.top + 24 + (board.height() - 24) * row / 6)};
  };
  Choose(calendar, L"mnuCALINSPIC");
  HWND picker = WaitForForm(program, L"frmCALip");
  Send(Control(picker, cmdOKfrmCALip), BM_CLICK);
  Click(day(5.7, 2.6));
  Send(Control(calendar, cmdPEN + 6), BM_CLICK);
  Choose(calendar, L"mnuCALINSTXT");
  HWND dialog = WaitForForm(program, L"frmCALit");
  SetText(Control(dialog, txtINSERTBOX), L"Anna 7");
  Send(Control(dialog, cmdOKfrmCALit), BM_CLICK);
  Click(day(4.6, 2.6));
  Send(Control(calendar, cmdPEN + 5), BM_CLICK);
  MoveMouse(day(2.5, 1.5));
  ::SetWindowPos(calendar, nullptr, small.left, small.top, small.width(), small.height(),
                 SWP_NOZORDER);
}

// Changes what is shown, saves it and opens the dialog with what it was before.
Preparation Versions(const Preparation& change, const wchar_t* commands) {
  return [change, commands](const Program& program, HWND form) {
    change(program, form);
    Choose(form, std::wstring(commands) + L"SAVE");
    const Rect board = RectOf(Control(form, picMAINBOARD));
    Drag({board.left + 30, board.bottom - 30}, {board.left + 90, board.bottom - 30});
    Choose(form, std::wstring(commands) + L"SAVE");
    Choose(form, std::wstring(commands) + L"VERSIONS");
  };
}

Preparation PickerTab(int tab) {
  return [tab](const Program& program, HWND form) {
    Choose(form, L"mnuCALINSPIC");
    HWND picker = WaitForForm(program, L"frmCALip");
    Send(Control(picker, tabMAIN), TCM_SETCURFOCUS, static_cast<WPARAM>(tab));
  };
}

void ShowLicences(const Program& program, HWND form) {
  Choose(form, L"mnuDCABOUT");
  Send(Control(WaitForForm(program, L"frmABOUT"), cmdABOUTLICENCES), BM_CLICK);
}

void LetStopwatchRun(const Program& program, HWND stopwatch) {
  Presses({lblStartfrmSTWwg})(program, stopwatch);
  WaitUntil([stopwatch] { return Text(Control(stopwatch, lblELAPSED)) > L"00:12"; }, 20'000);
}

// All widgets at work, each in a theme of its own.
std::vector<Subject> GallerySubjects() {
  const auto piece = [](const wchar_t* name, int widget, const wchar_t* preset,
                        const Preparation& prepare, const std::vector<StoredText>& settings = {}) {
    return Subject{std::wstring(L"gallery-") + name,
                   widget,
                   kPlain,
                   settings,
                   prepare,
                   Part::kGallery,
                   preset};
  };
  std::vector<Subject> pieces = {
      piece(L"manager", kManager, L"", {}, kSomeWidgets),
      piece(L"clock", kClock, L"Bright\\Orange", {}, kAlarms),
      piece(L"weather", kWeather, L"Soft\\Sky", LetWeatherCome),
      piece(L"notes", kNotes, L"Pale\\Green", WriteNotes),
      piece(L"calendar", kCalendar, L"Slate\\Forest", FillMonth),
      piece(L"whiteboard", kWhiteboard, L"Frosted\\Purple", LabelBoard),
      piece(L"calculator", kCalculator, L"Light\\White", DoSums),
      piece(L"stopwatch", kStopwatch, L"Neon\\Cyan", LetStopwatchRun),
      piece(L"countdown", kCountdown, L"Soft\\Pink", Presses({lblStart}), kSetCountdown)};
  pieces[4].plant = PlantMonth;
  pieces[5].plant = PlantBoards;
  return pieces;
}

Subject CalendarDialog(const std::wstring& name, const Preparation& open, const wchar_t* form) {
  return {name, kCalendar, kDpis, {}, open, Part::kForm, form, PlantMonth};
}

std::vector<Subject> CalendarSubjects() {
  return {
      {L"calendar", kCalendar, kDpis | kManyPresets, {}, FillMonth, Part::kWidget, {}, PlantMonth},
      {L"calendar-menu", kCalendar, kPlain, {}, OpenMenu, Part::kForm, L"#32768", PlantMonth},
      CalendarDialog(L"calendar-text", Command(L"mnuCALINSTXT"), L"frmCALit"),
      CalendarDialog(L"calendar-folder", Command(L"mnuCALPROPS"), L"frmCALpr"),
      CalendarDialog(L"calendar-versions", Versions(FillMonth, L"mnuCAL"), L"frmCALvr"),
      CalendarDialog(L"calendar-picker-family", PickerTab(0), L"frmCALip"),
      CalendarDialog(L"calendar-picker-work", PickerTab(6), L"frmCALip")};
}

std::vector<Subject> WhiteboardSubjects() {
  return {
      {L"whiteboard",
       kWhiteboard,
       kDpis | kManyPresets,
       {},
       LabelBoard,
       Part::kWidget,
       {},
       PlantBoards},
      {L"whiteboard-no-list",
       kWhiteboard,
       kPlain,
       kNoBoardList,
       {},
       Part::kWidget,
       {},
       PlantBoards},
      {L"whiteboard-float", kWhiteboard, kPlain, {}, FloatText, Part::kWidget, {}, PlantBoards},
      {L"whiteboard-menu", kWhiteboard, kPlain, {}, OpenMenu, Part::kForm, L"#32768", PlantBoards},
      {L"whiteboard-text",
       kWhiteboard,
       kDpis,
       {},
       Command(L"mnuWBOARDINSTEXT"),
       Part::kForm,
       L"frmWBDit",
       PlantBoards},
      {L"whiteboard-versions",
       kWhiteboard,
       kDpis,
       {},
       Versions(LabelBoard, L"mnuWBOARD"),
       Part::kForm,
       L"frmWBDvr",
       PlantBoards},
      {L"whiteboard-folder",
       kWhiteboard,
       kDpis,
       {},
       Command(L"mnuWBOARDPROPS"),
       Part::kForm,
       L"frmWBDpr",
       PlantBoards},
  };
}

}  // namespace

const std::vector<std::wstring> kFewPresetNames = {L"Neon\\Cyan", L"Soft\\Pink", L"Light\\White",
                                                   L"Slate\\Forest"};
const std::vector<std::wstring> kManyPresetNames = {
    L"Neon\\Cyan",     L"Soft\\Pink",   L"Light\\White", L"Slate\\Forest",
    L"Bright\\Yellow", L"Dark\\Red",    L"Flat\\Gray",   L"Frosted\\Sky",
    L"Glass\\Orange",  L"Pale\\Purple", L"Neon\\Black",  L"Dark\\Black"};

namespace {

std::vector<Subject> OtherSubjects() {
  return {
      {L"desktop", kManager, kPlain, kAllWidgets, {}, Part::kDesktop},
      {L"manager", kManager, kDpis | kManyPresets},
      {L"manager-looks", kManager, kPlain, {}, ShowButtonLooks},
      {L"clock", kClock, kDpis | kManyPresets},
      {L"clock-classic", kClock, kDpis, kClassicClock},
      {L"clock-12-hours", kClock, kPlain, kTwelveHourClock},
      {L"stopwatch", kStopwatch, kDpis | kManyPresets},
      {L"stopwatch-running", kStopwatch, kPlain, {}, Presses({lblStartfrmSTWwg})},
      {L"countdown", kCountdown, kDpis | kManyPresets, kSetCountdown},
      {L"countdown-running", kCountdown, kPlain, kSetCountdown, Presses({lblStart})},
      {L"calculator", kCalculator, kDpis | kManyPresets, {}, DoSums},
      {L"calculator-no-log", kCalculator, kFewPresets, {}, DoSumsUnseen},
      {L"calculator-menu", kCalculator, kPlain, {}, OpenMenu, Part::kForm, L"#32768"},
      {L"empty-calculator", kCalculator, kFewPresets},
      {L"empty-notes", kNotes, kFewPresets},
      {L"empty-whiteboard", kWhiteboard, kFewPresets},
      {L"weather", kWeather, kDpis | kManyPresets, {}, LetWeatherCome},
      {L"weather-failed", kWeather, kPlain, kNoWeather, LetWeatherFail},
      {L"weather-properties",
       kWeather,
       kDpis,
       {},
       Command(L"mnuWEATHERPROPS"),
       Part::kForm,
       L"frmWTHpr"},
      {L"options", kManager, kDpis, {}, Command(L"mnuDCGENSET"), Part::kForm, L"frmVRNpr"},
      {L"about", kManager, kDpis, {}, Command(L"mnuDCABOUT"), Part::kForm, L"frmABOUT"},
      {L"licences", kManager, kDpis, {}, ShowLicences, Part::kForm, L"frmLICENCES"},
      {L"donate", kManager, kDpis, {}, Command(L"mnuDCDONATE"), Part::kForm, L"frmDONATE"},
      {L"other-apps", kManager, kDpis, {}, Command(L"mnuDCMORE"), Part::kForm, L"frmMORE"},
      {L"clock-properties", kClock, kDpis, {}, Command(L"mnuCLOCKPROPS"), Part::kForm, L"frmCLKpr"},
      {L"alarms", kClock, kDpis, kAlarms, Command(L"mnuCLOCKALARMSET"), Part::kForm, L"frmCLKas"},
      {L"alarm-popup", kClock, kDpis, kAlarms, LetAlarmRing, Part::kForm, L"frmCLKam"},
      {L"theme-dialog-main", kClock, kDpis, {}, ThemeTab(0), Part::kForm, L"frmTHEME"},
      {L"theme-dialog-bars", kClock, kDpis, {}, ThemeTab(1), Part::kForm, L"frmTHEME"},
      {L"theme-dialog-panel", kClock, kDpis, {}, ThemeTab(2), Part::kForm, L"frmTHEME"},
      {L"menu", kClock, kDpis, {}, OpenMenu, Part::kForm, L"#32768"},
  };
}

}  // namespace

const std::vector<Subject>& Subjects() {
  static const std::vector<Subject> subjects = [] {
    // First, while nothing lies about that other subjects have written.
    std::vector<Subject> all = GallerySubjects();
    std::ranges::move(OtherSubjects(), std::back_inserter(all));
    std::ranges::move(NoteSubjects(), std::back_inserter(all));
    std::ranges::move(WhiteboardSubjects(), std::back_inserter(all));
    std::ranges::move(CalendarSubjects(), std::back_inserter(all));
    std::ranges::move(PreviewSubjects(), std::back_inserter(all));
    return all;
  }();
  return subjects;
}

}  // namespace varnel::shots
