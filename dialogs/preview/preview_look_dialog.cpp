// The part of the preview that looks at pages: zoom, going from page to page, keys.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>

#include "base/number_text.h"
#include "base/text.h"
#include "dialogs/preview/preview_dialog.h"
#include "frame/pages/page_text.h"
#include "resources/control_ids.h"

namespace varnel {
namespace {

constexpr UINT kTickMs = 15;
constexpr int kPagesATime = 4;
constexpr ULONGLONG kSliceMs = 8;

bool IsTextBox(HWND control) {
  wchar_t name[16] = {};
  ::GetClassNameW(control, name, 16);
  return EqualsIgnoreCase(name, L"Edit");
}

}  // namespace

void PreviewDialog::StartTicking() {
  ::SetTimer(handle(), kTick, kTickMs, nullptr);
}

// What there is to do beside the user: laying out, asking the printer, printing. It rests when all
// is done.
void PreviewDialog::Tick() {
  const ULONGLONG start = ::GetTickCount64();
  bool laid_out = false;
  while (pages_.GoOn(kPagesATime)) {
    laid_out = true;
    if (::GetTickCount64() - start >= kSliceMs) break;
  }
  if (laid_out) {
    CountPages();
    // The last page may be another one than before.
    if (pages_.count().settled) ShowPage();
  }
  if (query_ && query_->done()) FillPapers();
  if (printing()) FeedPrinter();
  if (pages_.count().settled && !query_ && !printing()) ::KillTimer(handle(), kTick);
}

void PreviewDialog::CountPages() {
  picSHEETS_->Refresh();
  picTHUMBS_->Refresh();
  const std::wstring count = NumberText(pages_.pages());
  SetControlText(lblPAGES, L"of " + count + (pages_.count().settled ? L"" : L" +"));
  ShowStatus();
}

void PreviewDialog::ShowPage() {
  if (!to_follow_) to_follow_ = ::SetTimer(handle(), kFollow, kTickMs, nullptr) != 0;
}

void PreviewDialog::FollowPage() {
  ::KillTimer(handle(), kFollow);
  to_follow_ = false;
  const int page = picSHEETS_->page();
  picTHUMBS_->GoTo(page);
  if (::GetFocus() != Control(txtPAGE)) SetControlText(txtPAGE, NumberText(page + 1));
  const bool first = page == 0;
  const bool last = page + 1 >= pages_.pages() && pages_.count().settled;
  Enable(cmdFIRSTPAGE, !first);
  Enable(cmdPREVIOUSPAGE, !first);
  Enable(cmdNEXTPAGE, !last);
  Enable(cmdLASTPAGE, !last);
  ::SetWindowTextW(picSHEETS_->handle(), PageText(pages_.At(page)->page).c_str());
  ShowStatus();
}

void PreviewDialog::ShowStatus() {
  if (printing()) return;
  std::wstring status =
      L"Page " + NumberText(picSHEETS_->page() + 1) + L" of " + NumberText(pages_.pages());
  for (const Paper& paper : papers_) {
    if (paper.number == settings_.paper) status += L"  \u00b7  " + paper.name;
  }
  if (!told_.empty()) {
    status += L"  \u00b7  " + told_;
  } else if (printer_.empty()) {
    status += L"  \u00b7  There is no printer: the pages can be looked at, not printed";
  } else {
    status += L"  \u00b7  " + printer_;
  }
  if (ControlText(lblSTATUS) != status) SetControlText(lblSTATUS, status);
}

void PreviewDialog::ShowZoom() {
  if (!picSHEETS_ || !picSHEETS_->handle()) return;
  const std::wstring text = ZoomText(settings_.zoom);
  // What is selected there stays so.
  if (ControlText(cboZOOM) != text) SetControlText(cboZOOM, text);
  constexpr int kColumns[] = {1, 2, 4};
  for (int i = 0; i < 3; ++i) SetChecked(optSHEETS + i, kColumns[i] == settings_.columns);
  SetChecked(chkTHUMBS, settings_.thumbs);
  SetChecked(chkSETUP, setup_wanted_);
}

void PreviewDialog::SetZoom(const SheetZoom& zoom, std::optional<Point> at) {
  settings_.zoom = zoom;
  picSHEETS_->Show(zoom, settings_.columns, at);
  ShowZoom();
}

void PreviewDialog::StepZoom(int steps, std::optional<Point> at) {
  SetZoom({SheetZoom::Kind::kPercent, SteppedPercent(picSHEETS_->percent(), steps)}, at);
}

void PreviewDialog::OnZoom(int steps, Point at) {
  StepZoom(steps, at);
}

void PreviewDialog::OnPage(int page) {
  if (picSHEETS_->page() != page) {
    picSHEETS_->GoTo(page);  // and tells that
    return;
  }
  ShowPage();
}

void PreviewDialog::GoTo(int page) {
  // What was not laid out yet may be asked for.
  while (page >= pages_.pages() && pages_.GoOn(kPagesATime)) {
  }
  CountPages();
  picSHEETS_->GoTo(page);
  ShowPage();
}

// A view further, or the next row of sheets where all of a row is seen at once.
void PreviewDialog::Turn(int views) {
  const SheetLayout& layout = picSHEETS_->layout();
  const Rect sheet = layout.Sheet(picSHEETS_->page());
  if (sheet.height() < picSHEETS_->client().height()) {
    const int row = picSHEETS_->page() / layout.columns() * layout.columns();
    picSHEETS_->GoTo(std::max(row + views * layout.columns(), 0));
  } else {
    picSHEETS_->ScrollByViews(views);
  }
}

bool PreviewDialog::OnViewKey(WPARAM key, bool ctrl) {
  switch (key) {
    case VK_NEXT:
      ctrl ? GoTo(picSHEETS_->page() + 1) : Turn(1);
      return true;
    case VK_PRIOR:
      ctrl ? GoTo(picSHEETS_->page() - 1) : Turn(-1);
      return true;
    case VK_HOME:
      GoTo(0);
      return true;
    case VK_END:
      pages_.Finish();
      GoTo(pages_.pages() - 1);
      return true;
    default:
      return false;
  }
}

// Enter in a box takes what is written there; elsewhere it presses a button.
bool PreviewDialog::OnEnter(int id) {
  if (id == txtPAGE) {
    if (const auto page = WholeNumber(ControlText(txtPAGE))) {
      GoTo(static_cast<int>(std::clamp<long long>(*page, 1, 1'000'000)) - 1);
    }
    SetControlText(txtPAGE, NumberText(picSHEETS_->page() + 1));
    ::SendMessageW(Control(txtPAGE), EM_SETSEL, 0, -1);
    return true;
  }
  if (id == cboZOOM) {
    if (const auto zoom = ReadZoom(ControlText(cboZOOM))) SetZoom(*zoom);
    SetControlText(cboZOOM, ZoomText(settings_.zoom));
    return true;
  }
  if ((id >= txtPAPERSIZE && id < txtPAPERSIZE + 2) || (id >= txtMARGIN && id < txtMARGIN + 4) ||
      (id >= txtTEXTS && id < txtTEXTS + 6)) {
    OnSetup(id, EN_KILLFOCUS);
    ::SendMessageW(Control(id), EM_SETSEL, 0, -1);
    return true;
  }
  return false;
}

bool PreviewDialog::OnKey(const MSG& message) {
  if (message.message != WM_KEYDOWN || !picSHEETS_ || !picSHEETS_->handle()) return false;
  const bool ctrl = ::GetKeyState(VK_CONTROL) < 0;
  HWND focus = ::GetFocus();
  if (message.wParam == VK_ESCAPE && picSHEETS_->CancelDrag()) return true;
  if (message.wParam == VK_RETURN) {
    HWND parent = ::GetParent(focus);
    return OnEnter(::GetDlgCtrlID(parent == Control(cboZOOM) ? parent : focus));
  }
  if (ctrl) {
    switch (message.wParam) {
      case 'P':
        Print();
        return true;
      case 'G':
        ::SetFocus(Control(txtPAGE));
        ::SendMessageW(Control(txtPAGE), EM_SETSEL, 0, -1);
        return true;
      case '0':
        SetZoom({});
        return true;
      case '1':
        SetZoom({SheetZoom::Kind::kPercent, 100});
        return true;
      case '2':
        SetZoom({SheetZoom::Kind::kPageWidth});
        return true;
      case VK_OEM_PLUS:
      case VK_ADD:
        StepZoom(1);
        return true;
      case VK_OEM_MINUS:
      case VK_SUBTRACT:
        StepZoom(-1);
        return true;
      default:
        break;
    }
  }
  return !IsTextBox(focus) && focus != Control(cboPAPER) && OnViewKey(message.wParam, ctrl);
}

void PreviewDialog::OnTool(int id) {
  constexpr int kColumns[] = {1, 2, 4};
  switch (id) {
    case cmdPRINT:
      return Print();
    case cmdFIRSTPAGE:
      return GoTo(0);
    case cmdPREVIOUSPAGE:
      return GoTo(picSHEETS_->page() - 1);
    case cmdNEXTPAGE:
      return GoTo(picSHEETS_->page() + 1);
    case cmdLASTPAGE:
      pages_.Finish();
      return GoTo(pages_.pages() - 1);
    case cmdZOOMOUT:
      return StepZoom(-1);
    case cmdZOOMIN:
      return StepZoom(1);
    case optSHEETS:
    case optSHEETS + 1:
    case optSHEETS + 2:
      settings_.columns = kColumns[id - optSHEETS];
      return SetZoom(settings_.zoom);
    case chkTHUMBS:
      settings_.thumbs = Checked(chkTHUMBS);
      return Arrange();
    case chkSETUP:
      setup_wanted_ = Checked(chkSETUP);
      return Arrange();
    case cmdSTOPPRINT:
      cancelling_ = true;
      if (job_) job_->Cancel();
      return;
    case IDCANCEL:
      return CloseAll();
    default:
      return OnSetup(id, BN_CLICKED);
  }
}

void PreviewDialog::OnCommand(int id, int code) {
  if (!picSHEETS_ || filling_) return;
  if (id == cboZOOM) {
    if (code == CBN_SELCHANGE) {
      const LRESULT chosen = ::SendMessageW(Control(cboZOOM), CB_GETCURSEL, 0, 0);
      wchar_t text[32] = {};
      ::SendMessageW(Control(cboZOOM), CB_GETLBTEXT, static_cast<WPARAM>(chosen),
                     reinterpret_cast<LPARAM>(text));
      if (const auto zoom = ReadZoom(text)) SetZoom(*zoom);
    } else if (code == CBN_KILLFOCUS) {
      OnEnter(cboZOOM);
    }
  } else if (code == BN_CLICKED) {
    OnTool(id);
  } else {
    OnSetup(id, code);
  }
}

}  // namespace varnel
