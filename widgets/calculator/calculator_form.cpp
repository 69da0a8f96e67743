#include "widgets/calculator/calculator_form.h"

#include <utility>

#include "base/number_text.h"
#include "base/path.h"
#include "frame/pressed_key_win.h"
#include "resources/control_ids.h"
#include "widgets/calculator/calculator_commands.h"
#include "widgets/calculator/pasted_number.h"
#include "win/system/clipboard.h"
#include "win/windows/message_box.h"

namespace varnel {
namespace {

constexpr wchar_t kLogFile[] = L"calc2.dat";
constexpr int kStruckMs = 120;
constexpr int kRetryMs = 2000;
constexpr int kMostPastedUnits = 1000;
constexpr int kStepsToANotch = 3;

constexpr Message kClearQuestion{L"Clear log", L"Delete every sum of the log?",
                                 MessageKind::kQuestion};

}  // namespace

int ButtonOf(CalculatorKey key) {
  const int number = static_cast<int>(key);
  const int point = static_cast<int>(CalculatorKey::kPoint);
  return number < point ? lblNUMBER + number : lblPOINT + number - point;
}

std::optional<CalculatorKey> KeyOf(int id) {
  for (std::size_t i = 0; i < kCalculatorKeyCount; ++i) {
    if (ButtonOf(static_cast<CalculatorKey>(i)) == id) return static_cast<CalculatorKey>(i);
  }
  return std::nullopt;
}

CalculatorForm::CalculatorForm(Services& services, const FormEntry& entry, int index)
    : WidgetForm(services, entry, index, {kCalculatorCommands}),
      log_(services.files, AddTrailingSeparator(services.program_folder) + kLogFile),
      lbl01234567890_(services.ui),
      lblDISPLAYFUNC_(services.ui),
      lblSUB_(services.ui),
      lvwFILES_(services.ui, *this),
      release_timer_(*this, kStruckMs, [this] { ReleaseStruck(); }),
      log_timer_(*this, kRetryMs, [this] { RetryLog(); }) {
  commands().Bind(
      {{L"mnuCALCSHOWHIST", [this] { HistoryShow(); }, {}, [this] { return history_shown_; }},
       {L"mnuCALCDELETESELECTED", [this] { DeleteSelected(); },
        [this] { return !lvwFILES_.Selected().empty(); }},
       {L"mnuCALCCLEARHISTORY", [this] { ClearHistory(); }, [this] { return log_.count() > 0; }},
       {L"mnuCALCCOPY", [this] { Copy(); }},
       {L"mnuCALCPASTE", [this] { PasteNumber(); }},
       {L"mnuCALCSELECTALL", [this] { lvwFILES_.SelectAll(); }}});
}

void CalculatorForm::OnLoad() {
  lbl01234567890_.Load(handle(), lbl01234567890);
  lblDISPLAYFUNC_.Load(handle(), lblDISPLAYFUNC);
  lblSUB_.Load(handle(), lblSUB);
  tab_order_ = ReadingOrder(LayOutCalculator({client().width(), client().height()}, dpi(), false));
  for (const CalculatorKey key : tab_order_) {
    const bool named_as_drawn = KeyName(key) == KeyFace(key);
    buttons().Add(ButtonOf(key), std::wstring(KeyName(key)),
                  named_as_drawn ? L'\0' : KeyFace(key)[0], false);
  }
  lvwFILES_.Load(handle(), lvwFILES, L"Log", SideListKind::kLog);
  log_.Load();
  ShowLog(log_.count());
}

void CalculatorForm::OnUnload() {
  release_timer_.Stop();
  log_timer_.Stop();
}

void CalculatorForm::SaveState(SaveReason reason) {
  WidgetForm::SaveState(reason);
  log_.Retry();
}

std::wstring CalculatorForm::StatusText() const {
  if (!log_.saved()) return L"The log " + std::wstring(FileTrouble(log_.trouble()));
  if (log_.count() == 0) return L"No sums yet";
  return NumberText(static_cast<long long>(log_.count())) +
         (log_.count() == 1 ? L" sum" : L" sums");
}

// --- keys

void CalculatorForm::OnControl(int id, int code) {
  const auto key = KeyOf(id);
  if (key && code == BN_CLICKED) Press(*key);
}

void CalculatorForm::Press(CalculatorKey key) {
  const std::wstring line = engine_.Press(key);
  if (!line.empty()) {
    const std::size_t former = log_.count();
    log_.Append(line);
    if (log_.count() > former + 1) {
      ShowLog(log_.count());  // with lines of others
    } else {
      lvwFILES_.AddRows(log_.count());
      TendLog();
    }
  }
  RefreshContent();
}

bool CalculatorForm::OnFirstKey(const MSG& message) {
  const CommandKey pressed = PressedKey(message);
  if (const auto key = KeyFor(pressed)) {
    Strike(*key);
  } else if (pressed.code == kKeyApplications && pressed.held != kTyped) {
    ::SendMessageW(handle(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(handle()), -1);
  } else {
    lvwFILES_.OnKey(message);
    return false;
  }
  return true;
}

// The button is seen going down for a moment, as if it had been clicked.
void CalculatorForm::Strike(CalculatorKey key) {
  ReleaseStruck();
  struck_id_ = ButtonOf(key);
  ::SendMessageW(::GetDlgItem(handle(), struck_id_), BM_SETSTATE, TRUE, 0);
  release_timer_.Start();
  Press(key);
}

void CalculatorForm::ReleaseStruck() {
  release_timer_.Stop();
  if (struck_id_ != 0) {
    ::SendMessageW(::GetDlgItem(handle(), std::exchange(struck_id_, 0)), BM_SETSTATE, FALSE, 0);
  }
}

// --- clipboard and log

void CalculatorForm::Copy() {
  std::wstring text;
  if (lvwFILES_.HasFocus()) {
    for (const std::size_t line : lvwFILES_.Selected()) {
      if (!text.empty()) text += L"\r\n";
      text += log_.Line(line);
    }
  }
  CopyText(handle(), text.empty() ? engine_.display() : text);
}

void CalculatorForm::PasteNumber() {
  const auto number = ParsePastedNumber(PastedText(handle(), kMostPastedUnits));
  if (!number) return;
  engine_.Enter(*number);
  RefreshContent();
}

void CalculatorForm::OnRowChosen(std::size_t row) {
  engine_.Recall(log_.Line(row));
  RefreshContent();
}

void CalculatorForm::ShowLog(std::size_t visible_line) {
  lvwFILES_.ShowRows(log_.count(), visible_line);
  TendLog();
}

void CalculatorForm::TendLog() {
  if (log_.saved()) {
    log_timer_.Stop();
  } else if (!log_timer_.enabled()) {
    log_timer_.Start();
  }
  RepaintStatus();
}

// What could not be read or saved is tried again until it can.
void CalculatorForm::RetryLog() {
  const FileResult former = log_.trouble();
  log_.Retry();
  if (log_.trouble() != former) ShowLog(log_.count());
}

void CalculatorForm::HistoryShow() {
  history_shown_ = !history_shown_;
  Form_Resize();
}

void CalculatorForm::DeleteSelected() {
  const auto lines = lvwFILES_.Selected();
  if (lines.empty()) return;
  log_.DeleteSelected(lines);
  // The next line is selected, so that several can be deleted one after the other.
  ShowLog(lines.front());
  if (log_.count() > 0) lvwFILES_.Select(std::min(lines.front(), log_.count() - 1));
}

void CalculatorForm::ClearHistory() {
  if (!Ask(handle(), kClearQuestion) || !handle()) return;
  log_.Clear();
  ShowLog(0);
}

// A turn of the wheel scrolls the number under the pointer, and from anywhere else the log.
void CalculatorForm::OnWheel(Point at, int turn) {
  // A fine wheel turns by parts of a step.
  wheel_turn_ += -turn * kStepsToANotch;
  const int steps = wheel_turn_ / WHEEL_DELTA;
  wheel_turn_ %= WHEEL_DELTA;
  if (Within(layout().pfrPANEL, places_.box).Contains(at)) {
    ScrollDisplay(steps);
  } else {
    lvwFILES_.ScrollBy(steps);
  }
}

LRESULT CalculatorForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == WM_MOUSEWHEEL) {
    const Rect window = screen_rect();
    OnWheel({static_cast<short>(LOWORD(lparam)) - window.left,
             static_cast<short>(HIWORD(lparam)) - window.top},
            static_cast<short>(HIWORD(wparam)));
    return 0;
  }
  if (message == WM_NOTIFY) {
    auto& header = *reinterpret_cast<NMHDR*>(lparam);
    return header.idFrom == lvwFILES ? lvwFILES_.OnNotify(header) : 0;
  }
  return WidgetForm::OnMessage(message, wparam, lparam);
}

}  // namespace varnel
