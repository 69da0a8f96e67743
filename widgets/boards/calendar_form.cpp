#include "widgets/boards/calendar_form.h"

#include <windows.h>

#include <oleacc.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/resample.h"
#include "resources/control_ids.h"
#include "widgets/boards/board_folders.h"
#include "widgets/boards/calendar_commands.h"
#include "widgets/boards/calendar_settings.h"
#include "win/graphics/pictures.h"
#include "win/system/user_week.h"

namespace varnel {
namespace {

constexpr BoardTraits kTraits{kCalendarPen,
                              kCalendarPenWidth,
                              kCalendarTextSize,
                              L"mnuCAL",
                              lblMONTHBAR,
                              lblTest,
                              cmdCALTOOL + static_cast<int>(CalendarTool::kPenWidth)};

constexpr int kOneDayMs = 24 * 60 * 60 * 1000;
constexpr int kMonthsOfAYear = 12;
constexpr int kIconSides[] = {48, 96};  // of the pictures that there are, in pixels

// The picture with its colours weakened by its opacity.
Image Premultiplied(const Image& straight) {
  Image picture = straight;
  for (std::uint32_t& pixel : picture.All()) {
    pixel = MixPixels(0, pixel | 0xFF000000U, pixel >> 24);
  }
  return picture;
}

}  // namespace

CalendarForm::CalendarForm(Services& services, const FormEntry& entry, int index,
                           CalendarLink& link, PrintDesk& printing)
    : BoardForm(services, entry, index, kTraits, kCalendarCommands, Canvas::kClearSheet),
      link_(link),
      printing_(printing),
      calendar_(services.files, services.formatter, board_,
                [this](Month month, const MonthInk& ink) { return PictureOfMonth(month, ink); }),
      lblSeptember2015_(services.ui),
      lablDAYNO_(services.ui),
      lablDAY_(services.ui),
      lblDATETODAY_(services.ui),
      lblSCREEN_(services.ui),
      lblMOUSE_(services.ui),
      watch_(services.ui,
             [this] {
               if (calendar_.Refresh()) MonthShown();
             }),
      midnight_timer_(*this, kOneDayMs, [this] { OnNewDay(); }) {
  const auto by_months = [this](int months) { return [this, months] { ShowMonthBeside(months); }; };
  commands().Bind(
      {{L"mnuCALTODAY", [this] { GoToToday(); }},
       {L"mnuCALPREVIOUS", by_months(-1), [this] { return calendar_.month() != kFirstMonth; }},
       {L"mnuCALNEXT", by_months(1), [this] { return calendar_.month() != kLastMonth; }},
       {L"mnuCALPREVIOUSYEAR", by_months(-kMonthsOfAYear)},
       {L"mnuCALNEXTYEAR", by_months(kMonthsOfAYear)},
       {L"mnuCALSAVE", [this] { SaveMonth(); }, [this] { return board_.BoardModified(); }},
       {L"mnuCALVERSIONS", {}, [this] { return !calendar_.Versions().empty(); }},
       {L"mnuCALSCREENCLR", [this] { Clear(); }},
       {L"mnuCALINSTXT", [this] { CalendarInsertText(); }},
       {L"mnuCALINSPIC", [this] { CalendarInsertChoose(); }},
       {L"mnuCALPRINT", [this] { CalendarPrint(); }}});
}

// --- months

void CalendarForm::FolderChanged() {
  const std::wstring folder =
      ReadFolder(services().settings, kCalendarFolder, services().program_folder);
  calendar_.Adopt(folder, ThisMonth(), UserFirstWeekday());
  watch_.Watch(folder);
  MonthShown();
}

void CalendarForm::CalendarBoardLoad() {
  calendar_.Load();
  MonthShown();
}

void CalendarForm::ShowMonthBeside(int months) {
  ShowMonth(MovedBy(calendar_.month(), months));
}

void CalendarForm::ShowMonth(Month month) {
  picMAINBOARD_.EndStroke();
  if (month != calendar_.month()) calendar_.Show(month);
  MonthShown();
}

// What is unsaved is saved even where the month stays.
void CalendarForm::GoToToday() {
  picMAINBOARD_.EndStroke();
  calendar_.Save();
  ShowMonth(ThisMonth());
}

void CalendarForm::MonthShown() {
  if (!handle()) return;
  const LocalTime now = services().clock.Now();
  today_ = DateOf(now);
  month_offset_ = MonthsBetween(ThisMonth(), calendar_.month());
  month_grid_ = GridOfMonth(calendar_.month(), calendar_.first_weekday(), true);
  midnight_timer_.Restart(SecondsToMidnight(now) * 1000);
  // At once, as it is what the user waits for; what stands around it follows.
  CalendarRefreshBoard();
  ::UpdateWindow(picMAINBOARD_.handle());
  Form_Resize();
  WidgetRefresh();
}

void CalendarForm::OnNewDay() {
  if (DateOf(services().clock.Now()) == today_) {
    midnight_timer_.Restart(SecondsToMidnight(services().clock.Now()) * 1000);
    return;
  }
  // Who looked at this month goes on to do so, but not in the middle of a stroke.
  const bool busy = board_.drawing() || board_.floating();
  if (month_offset_ == 0 && !busy && ThisMonth() != calendar_.month()) {
    calendar_.Show(ThisMonth());
  }
  MonthShown();
}

void CalendarForm::OnLanguage() {
  calendar_.SetFirstWeekday(UserFirstWeekday());
  if (calendar_.Save()) calendar_.Load();
  MonthShown();
}

void CalendarForm::RestoreVersion(const DocumentVersion& version) {
  PutDown();
  calendar_.Restore(version);
  MonthShown();
}

bool CalendarForm::SaveMonth() {
  PutDown();
  return calendar_.Save();
}

// --- what a month's grid says

std::wstring CalendarForm::DayName(const Date& date, std::wstring_view pattern) const {
  LocalTime time;
  time.year = date.year;
  time.month = date.month;
  time.day = date.day;
  time.weekday = WeekdayOf(date);
  return services().formatter.Format(time, pattern);
}

MonthGrid CalendarForm::GridOfMonth(Month month, int first_weekday, bool with_today) const {
  constexpr Date kSomeSunday{2023, 1, 1};
  MonthGrid grid;
  grid.month = month;
  grid.days = GridOf(month, first_weekday);
  const auto rule = static_cast<FirstWeek>(UserFirstWeekRule());
  for (int i = 0; i < kWeekDays; ++i) {
    Date day = kSomeSunday;
    day.day += (first_weekday + i) % kWeekDays;
    const auto column = static_cast<std::size_t>(i);
    grid.names[column] = DayName(day, L"dddd");
    grid.brief_names[column] = DayName(day, L"ddd");
  }
  for (std::size_t i = 0; i < grid.weeks.size(); ++i) {
    grid.weeks[i] = WeekNumber(grid.days[i * kWeekDays], first_weekday, rule);
  }
  for (std::size_t i = 0; i < grid.days.size(); ++i) {
    grid.holidays[i] = calendar_.holidays().NameOf(grid.days[i]);
    if (with_today && grid.days[i] == today_) grid.today = static_cast<int>(i);
  }
  return grid;
}

// "Wednesday 16 September, week 38 - today"
std::wstring CalendarForm::DayText(const Date& date, std::wstring_view pattern) const {
  const auto day = std::ranges::find(month_grid_.days, date);
  std::wstring text = DayName(date, pattern);
  if (day == month_grid_.days.end()) return text;
  const auto cell = static_cast<std::size_t>(day - month_grid_.days.begin());
  text += L", week " + NumberText(month_grid_.weeks[cell / kWeekDays]);
  const std::wstring& holiday = month_grid_.holidays[cell];
  if (!holiday.empty()) text += L" - " + holiday;
  if (date == today_) text += L" - today";
  return text;
}

void CalendarForm::OnPointer(Point at) {
  const int cell = grid_.CellAt(at);
  if (std::exchange(pointed_, cell) != cell) PlaceStripLabels();
}

AccessibleSource CalendarForm::TellBoard() {
  AccessibleSource source;
  source.whole = [this] { return AccessiblePart{calendar_.title(), ROLE_SYSTEM_TABLE}; };
  source.count = [] { return kGridDays; };
  source.part = [this](int index) {
    const auto cell = static_cast<std::size_t>(index);
    AccessiblePart day{DayText(month_grid_.days[cell], L"dddd d mmmm"), ROLE_SYSTEM_CELL,
                       STATE_SYSTEM_READONLY};
    if (index == month_grid_.today) day.state |= STATE_SYSTEM_SELECTED;
    const Rect view = picMAINBOARD_.View();
    day.place = Within({-view.left, -view.top, view.right, view.bottom}, grid_.cells[cell]);
    return day;
  };
  return source;
}

// --- objects

void CalendarForm::CalendarInsertText() {
  picMAINBOARD_.EndStroke();
  services().program.OpenDialog(L"frmCALit");
}

void CalendarForm::CalendarInsertChoose() {
  picMAINBOARD_.EndStroke();
  services().program.OpenDialog(L"frmCALip");
}

int CalendarForm::TextWidth() const {
  return std::max(1, grid_.cells[0].width() - Scaled(8, dpi()));
}

void CalendarForm::InsertText(const std::wstring& text, int points, bool wrap) {
  FloatText(text, points, wrap ? TextWidth() : 0);
}

// Three fifths of a day high, and made from the picture that is nearest above that.
void CalendarForm::InsertIcon(const OfferedPicture& picture) {
  const Rect& cell = grid_.cells[0];
  const int side = std::max(8, std::min(cell.width(), cell.height()) * 3 / 5);
  const auto source = [picture, side](double scale) {
    const int wished = static_cast<int>(side * scale + 0.5);
    const std::string_view file = wished <= kIconSides[0] ? picture.small : picture.large;
    return Resampled(Premultiplied(DecodePicture(file).image), {wished, wished});
  };
  FloatPicture(FloatKind::kIcon, source);
}

// --- messages

// A notch is a month, with Ctrl a year; an object that floats is scaled.
void CalendarForm::OnWheel(int turn, bool ctrl) {
  if (board_.floating()) {
    picMAINBOARD_.OnWheel(turn, ctrl, false);
    return;
  }
  wheel_turn_ -= turn;
  const int steps = wheel_turn_ / WHEEL_DELTA;
  wheel_turn_ %= WHEEL_DELTA;
  if (steps != 0) ShowMonthBeside(ctrl ? steps * kMonthsOfAYear : steps);
}

LRESULT CalendarForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_MOUSEWHEEL:
      OnWheel(GET_WHEEL_DELTA_WPARAM(wparam), (wparam & MK_CONTROL) != 0);
      return 0;
    case WM_TIMECHANGE:
    case WM_POWERBROADCAST:
      // The clock was set, or the computer slept past midnight.
      OnNewDay();
      break;
    case WM_SETTINGCHANGE:
      if (UserFirstWeekday() != calendar_.wished_weekday()) OnLanguage();
      break;
    default:
      break;
  }
  return BoardForm::OnMessage(message, wparam, lparam);
}

}  // namespace varnel
