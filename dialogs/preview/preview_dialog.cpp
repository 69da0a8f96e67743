#include "dialogs/preview/preview_dialog.h"

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <array>

#include "base/number_text.h"
#include "base/text.h"
#include "dialogs/preview/icon_button_win.h"
#include "resources/control_ids.h"
#include "win/graphics/system_rect.h"
#include "win/system/user_units.h"
#include "win/windows/common_controls.h"
#include "win/windows/monitors.h"

namespace varnel {
namespace {

constexpr int kThumbsWidth = 140;  // at 96 dpi, as the next two
constexpr Size kSmallest{480, 360};
constexpr int kToolGap = 6;

struct IconButton {
  int id;
  wchar_t glyph;
};
constexpr IconButton kIconButtons[] = {{cmdFIRSTPAGE, L'\xE270'}, {cmdPREVIOUSPAGE, L'\xE210'},
                                       {cmdNEXTPAGE, L'\xE211'},  {cmdLASTPAGE, L'\xE271'},
                                       {cmdZOOMOUT, L'\xE273'},   {cmdZOOMIN, L'\xE272'}};

// The tools that stay together, by their first and last number.
struct ToolGroup {
  int first;
  int last;
};
constexpr ToolGroup kGroups[] = {{cmdPRINT, cmdPRINT},    {cmdFIRSTPAGE, cmdLASTPAGE},
                                 {cmdZOOMOUT, cmdZOOMIN}, {optSHEETS, optSHEETS + 2},
                                 {chkTHUMBS, chkSETUP},   {IDCANCEL, IDCANCEL}};

std::vector<int> ControlsOf(const ToolGroup& group) {
  std::vector<int> ids;
  for (int id = group.first; id <= group.last; ++id) ids.push_back(id);
  // The page's number and count stand among the buttons for pages, the zoom between its own.
  if (group.first == cmdFIRSTPAGE) ids.insert(ids.end(), {txtPAGE, lblPAGES});
  return ids;
}

}  // namespace

PreviewDialog::PreviewDialog(Services& services, PrintDesk& desk)
    : Dialog(services.ui, L"frmNOTpp"), services_(services), desk_(desk) {
  LoadCommonControls(ICC_TAB_CLASSES | ICC_PROGRESS_CLASS);
}

void PreviewDialog::OnOpen() {
  unit_ = UserLengthUnit();
  decimal_ = UserDecimal();
  settings_ = ReadPrintSettings(services_.settings, unit_);
  MeasureControls();
  picSHEETS_ = std::make_unique<SheetView>(ui(), SheetView::Kind::kSheets, pages_, *this, unit_);
  picTHUMBS_ = std::make_unique<SheetView>(ui(), SheetView::Kind::kThumbs, pages_, *this, unit_);
  if (!picSHEETS_->Load(handle(), picSHEETS, L"Pages") ||
      !picTHUMBS_->Load(handle(), picTHUMBS, L"Thumbs")) {
    ui().log.Write(L"no window for the sheets of the preview");
  }
  tooltip_ = Tooltip();
  tip_ = nullptr;
  told_.clear();
  to_follow_ = false;
  for (int step : ZoomSteps()) {
    ::SendMessageW(Control(cboZOOM), CB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>((NumberText(step) + L" %").c_str()));
  }
  for (const wchar_t* name : {L"Page width", L"Whole page"}) {
    ::SendMessageW(Control(cboZOOM), CB_INSERTSTRING, 0, reinterpret_cast<LPARAM>(name));
  }
  FillSetup();
  AskForPapers();
  TakeDocument();
  const Rect work = MonitorAt(FromSystem([this] {
                      RECT place = {};
                      ::GetWindowRect(handle(), &place);
                      return place;
                    }()))
                        .work_area;
  RECT place = {};
  ::GetWindowRect(handle(), &place);
  const Rect wished = FromSystem(place);
  const Size size{std::min(wished.width(), work.width()), std::min(wished.height(), work.height())};
  ::SetWindowPos(handle(), nullptr, work.left + (work.width() - size.width) / 2,
                 work.top + (work.height() - size.height) / 2, size.width, size.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
  Arrange();
}

void PreviewDialog::OnReopen() {
  if (printing() || document_ == desk_.document()) return;
  TakeDocument();
}

void PreviewDialog::TakeDocument() {
  document_ = desk_.document();
  PageFields fields;
  if (document_) {
    const LocalTime now = services_.clock.Now();
    fields.title = document_->title();
    fields.file = document_->file();
    fields.date = services_.formatter.Format(now, L"Short Date");
    fields.time = services_.formatter.Format(now, L"Short Time");
  }
  ::SetWindowTextW(handle(), (fields.title.empty() ? std::wstring(L"Print Preview")
                                                   : fields.title + L" - Print Preview")
                                 .c_str());
  told_.clear();
  pages_.Open(document_, SetupOf(settings_), std::move(fields));
  ShowSetup();
  picSHEETS_->Refresh();
  picTHUMBS_->Refresh();
  picSHEETS_->GoTo(0);
  SetZoom(settings_.zoom);
  CountPages();
  ShowPage();
  StartTicking();
}

void PreviewDialog::CloseAll() {
  if (MayStopPrinting() && open()) Close();
}

void PreviewDialog::OnDestroy() {
  job_.reset();
  order_.reset();
  query_.reset();
  WritePrintSettings(services_.settings, settings_);
  pages_.Close();
  document_.reset();
  desk_.Clear();
}

// --- the window

Rect PreviewDialog::Measured(int id) const {
  const auto found = measured_.find(id);
  if (found == measured_.end()) return {};
  const int dpi = static_cast<int>(::GetDpiForWindow(handle()));
  const auto now = [&](int length) { return ::MulDiv(length, dpi, measured_dpi_); };
  const Rect& place = found->second;
  return {now(place.left), now(place.top), now(place.right), now(place.bottom)};
}

void PreviewDialog::MeasureControls() {
  measured_.clear();
  measured_dpi_ = static_cast<int>(::GetDpiForWindow(handle()));
  for (HWND child = ::GetWindow(handle(), GW_CHILD); child;
       child = ::GetWindow(child, GW_HWNDNEXT)) {
    RECT place = {};
    ::GetWindowRect(child, &place);
    ::MapWindowPoints(nullptr, handle(), reinterpret_cast<POINT*>(&place), 2);
    measured_[::GetDlgCtrlID(child)] = FromSystem(place);
  }
}

PreviewParts PreviewDialog::Parts(std::vector<int>& widths) const {
  const int dpi = static_cast<int>(::GetDpiForWindow(handle()));
  for (const ToolGroup& group : kGroups) {
    Rect all;
    for (const int id : ControlsOf(group)) all = Union(all, Measured(id));
    widths.push_back(all.width());
  }
  RECT client = {};
  ::GetClientRect(handle(), &client);
  PreviewParts parts;
  parts.client = {static_cast<int>(client.right), static_cast<int>(client.bottom)};
  parts.groups = widths;
  parts.tool_height = Measured(cmdPRINT).height();
  parts.gap = Scaled(kToolGap, dpi);
  parts.status_height = Measured(cmdSTOPPRINT).height() + parts.gap;
  if (settings_.thumbs) parts.thumbs_width = Scaled(kThumbsWidth, dpi);
  const Rect tab = Measured(tabSETUP);
  if (setup_wanted_) parts.setup = {tab.width() + parts.gap, tab.height()};
  return parts;
}

void PreviewDialog::Arrange() {
  if (!picSHEETS_ || !picSHEETS_->handle() || !picTHUMBS_->handle()) return;
  std::vector<int> widths;
  const PreviewLayout layout = LayOutPreview(Parts(widths));
  for (std::size_t i = 0; i < std::size(kGroups); ++i) {
    Rect all;
    for (const int id : ControlsOf(kGroups[i])) all = Union(all, Measured(id));
    for (const int id : ControlsOf(kGroups[i])) {
      const Rect own = Measured(id);
      PlaceWindow(Control(id), RectAt({layout.groups[i].x + own.left - all.left,
                                       layout.groups[i].y + own.top - all.top},
                                      {own.width(), own.height()}));
    }
  }
  PlaceWindow(picSHEETS_->handle(), layout.sheets);
  if (!layout.thumbs.empty()) PlaceWindow(picTHUMBS_->handle(), layout.thumbs);
  ::ShowWindow(picTHUMBS_->handle(), layout.thumbs.empty() ? SW_HIDE : SW_SHOWNA);
  PlaceSetup(layout.setup);
  PlaceStatus(layout.status);
  ShowZoom();
  ::InvalidateRect(handle(), nullptr, TRUE);
}

// The setup's controls keep their places to each other.
void PreviewDialog::PlaceSetup(const Rect& panel) {
  const Rect tab = Measured(tabSETUP);
  for (int id = tabSETUP; id <= chkSECONDPAGE; ++id) {
    if (HWND control = Control(id)) {
      const Rect own = Measured(id);
      PlaceWindow(control, RectAt({panel.left + own.left - tab.left, panel.top + own.top - tab.top},
                                  {own.width(), own.height()}));
    }
  }
  ShowSetupPage();
}

void PreviewDialog::PlaceStatus(const Rect& status) {
  const Rect stop = Measured(cmdSTOPPRINT);
  const Rect bar = Measured(prgPRINT);
  const Rect line = Measured(lblSTATUS);
  int right = status.right;
  const auto centred = [&status](int left, const Rect& own) {
    return RectAt({left, (status.top + status.bottom - own.height()) / 2},
                  {own.width(), own.height()});
  };
  for (const int id : {cmdSTOPPRINT, prgPRINT}) {
    ::ShowWindow(Control(id), printing() ? SW_SHOWNA : SW_HIDE);
  }
  if (printing()) {
    PlaceWindow(Control(cmdSTOPPRINT), centred(right - stop.width(), stop));
    right -= stop.width() + Measured(cmdPRINT).left * 2;
    PlaceWindow(Control(prgPRINT), centred(right - bar.width(), bar));
    right -= bar.width() + Measured(cmdPRINT).left * 2;
  }
  Rect place = centred(status.left, line);
  place.right = std::max(right, place.left + 1);
  PlaceWindow(Control(lblSTATUS), place);
}

void PreviewDialog::SetSmallest(MINMAXINFO& info) const {
  const int dpi = static_cast<int>(::GetDpiForWindow(handle()));
  info.ptMinTrackSize = {Scaled(kSmallest.width, dpi), Scaled(kSmallest.height, dpi)};
}

void PreviewDialog::DrawButton(const DRAWITEMSTRUCT& item) {
  for (const IconButton& button : kIconButtons) {
    if (static_cast<UINT>(button.id) == item.CtlID) {
      DrawIconButton(ui(), item, button.glyph, static_cast<int>(::GetDpiForWindow(handle())));
    }
  }
}

void PreviewDialog::ShowTip(HWND control) {
  if (control == tip_) return;
  tip_ = control;
  const int id = ::GetDlgCtrlID(control);
  std::wstring text;
  if (std::ranges::any_of(kIconButtons, [id](const auto& button) { return button.id == id; })) {
    text = ControlText(id);
  }
  if (id == optSHEETS) text = L"One sheet";
  if (id == optSHEETS + 1) text = L"Two sheets side by side";
  if (id == optSHEETS + 2) text = L"Four sheets side by side";
  tooltip_.Attach(handle(), control, text);
}

bool PreviewDialog::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_TIMER:
      if (wparam == kTick) Tick();
      if (wparam == kFollow) FollowPage();
      return wparam == kTick || wparam == kFollow;
    case WM_SIZE:
      if (wparam != SIZE_MINIMIZED) Arrange();
      return true;
    case WM_DESTROY:
      OnDestroy();
      return false;
    case WM_GETMINMAXINFO:
      SetSmallest(*reinterpret_cast<MINMAXINFO*>(lparam));
      return true;
    case WM_DRAWITEM:
      DrawButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
      return true;
    case WM_SETCURSOR:
      ShowTip(reinterpret_cast<HWND>(wparam));
      return false;
    case WM_MOUSEWHEEL:
      // Turned over the tools: it is for the sheets.
      if (!picSHEETS_ || !picSHEETS_->handle()) return false;
      ::SendMessageW(picSHEETS_->handle(), message, wparam, lparam);
      return true;
    case WM_NOTIFY: {
      const auto& header = *reinterpret_cast<const NMHDR*>(lparam);
      if (header.idFrom == tabSETUP && header.code == TCN_SELCHANGE) ShowSetupPage();
      return false;
    }
    default:
      return false;
  }
}

}  // namespace varnel
