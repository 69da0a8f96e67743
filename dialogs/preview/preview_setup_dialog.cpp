// The part of the preview that sets up the page: paper, margins, colour, header and footer.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "dialogs/preview/preview_dialog.h"
#include "frame/pages/page_texts.h"
#include "resources/control_ids.h"
#include "win/windows/popup_menu.h"

namespace varnel {
namespace {

constexpr const wchar_t* kSetupPages[] = {L"Page", L"Header and footer"};
constexpr int kLongestText = 200;
constexpr PageEdge kEdges[] = {PageEdge::kLeft, PageEdge::kTop, PageEdge::kRight,
                               PageEdge::kBottom};
constexpr int kMargins = 4;
constexpr int kTexts = 6;

std::wstring& TextAt(PageTexts& texts, int index) {
  return index < 3 ? texts.header[static_cast<std::size_t>(index)]
                   : texts.footer[static_cast<std::size_t>(index - 3)];
}

}  // namespace

std::wstring PreviewDialog::Length(int twips) const {
  return LengthText(twips, unit_, decimal_);
}

std::optional<int> PreviewDialog::LengthIn(int id) const {
  return ReadLength(ControlText(id), unit_);
}

void PreviewDialog::FillSetup() {
  for (int page = 0; page < static_cast<int>(std::size(kSetupPages)); ++page) {
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    std::wstring text = kSetupPages[page];
    item.pszText = text.data();
    ::SendMessageW(Control(tabSETUP), TCM_INSERTITEMW, static_cast<WPARAM>(page),
                   reinterpret_cast<LPARAM>(&item));
  }
  for (int i = 0; i < kTexts; ++i) {
    ::SendMessageW(Control(txtTEXTS + i), EM_LIMITTEXT, kLongestText, 0);
  }
}

void PreviewDialog::ShowSetupPage() {
  const LRESULT page = ::SendMessageW(Control(tabSETUP), TCM_GETCURSEL, 0, 0);
  const Rect& shown = measured_[tabSETUP];
  const bool room = setup_wanted_ && shown.width() > 0;
  ::ShowWindow(Control(tabSETUP), room ? SW_SHOWNA : SW_HIDE);
  for (int id = labSETUP; id <= chkSECONDPAGE; ++id) {
    HWND control = Control(id);
    const bool of_page = (id < labTEXTS) == (page == 0);
    if (control) ::ShowWindow(control, room && of_page ? SW_SHOWNA : SW_HIDE);
  }
}

// What cannot be changed: while it is printed, and what does not matter for this paper or document.
void PreviewDialog::EnableSetup() {
  const bool free = !printing();
  for (int id = cboPAPER; id <= chkSECONDPAGE; ++id) {
    if (Control(id)) Enable(id, free);
  }
  const bool own = free && settings_.paper == kOwnPaper;
  for (int i = 0; i < 2; ++i) Enable(txtPAPERSIZE + i, own);
  const bool picture = free && document_ && document_->is_picture();
  for (int i = 0; i < 2; ++i) Enable(optFITTED + i, picture);
  Enable(cmdPRINT, free);
}

void PreviewDialog::ShowMargins() {
  const PageMargins& margins = pages_.setup().margins;
  for (int i = 0; i < kMargins; ++i) {
    SetControlText(txtMARGIN + i, Length(MarginOf(margins, kEdges[i])));
  }
}

void PreviewDialog::ShowSetup() {
  filling_ = true;
  ShowPapers();
  SetControlText(txtPAPERSIZE, Length(settings_.size.width));
  SetControlText(txtPAPERSIZE + 1, Length(settings_.size.height));
  for (int i = 0; i < 2; ++i) {
    SetChecked(optLANDSCAPE + i, settings_.landscape == (i == 1));
    SetChecked(optFITTED + i, settings_.fitted == (i == 0));
  }
  ShowMargins();
  SetChecked(chkCOLOUR, settings_.colour);
  SetChecked(chkSECONDPAGE, settings_.texts.from_second_page);
  for (int i = 0; i < kTexts; ++i) {
    const std::wstring& text = TextAt(settings_.texts, i);
    if (ControlText(txtTEXTS + i) != text) SetControlText(txtTEXTS + i, text);
  }
  filling_ = false;
  EnableSetup();
}

// --- paper

void PreviewDialog::AskForPapers() {
  if (desk_.printer.name.empty()) desk_.printer = DefaultPrinter();
  printer_ = desk_.printer.name;
  of_printer_.clear();
  query_ = std::make_unique<PaperQuery>(printer_);
  StartTicking();
}

// The printer has answered.
void PreviewDialog::FillPapers() {
  for (const PaperQuery::Paper& paper : query_->papers()) {
    of_printer_.push_back({paper.number, paper.name, paper.size});
  }
  query_.reset();
  filling_ = true;
  ShowPapers();
  filling_ = false;
  ShowStatus();
}

void PreviewDialog::ShowPapers() {
  papers_ = OfferedPapers(of_printer_, settings_.size);
  const auto known = std::ranges::find(papers_, settings_.paper, &Paper::number);
  // A paper of another printer keeps its size.
  if (known == papers_.end()) settings_.paper = kOwnPaper;
  ::SendMessageW(Control(cboPAPER), CB_RESETCONTENT, 0, 0);
  for (std::size_t i = 0; i < papers_.size(); ++i) {
    ::SendMessageW(Control(cboPAPER), CB_ADDSTRING, 0,
                   reinterpret_cast<LPARAM>(PaperCaption(papers_[i], unit_, decimal_).c_str()));
    if (papers_[i].number == settings_.paper) {
      ::SendMessageW(Control(cboPAPER), CB_SETCURSEL, i, 0);
    }
  }
}

void PreviewDialog::OnPaper() {
  const LRESULT chosen = ::SendMessageW(Control(cboPAPER), CB_GETCURSEL, 0, 0);
  if (chosen < 0 || chosen >= std::ssize(papers_)) return;
  const Paper& paper = papers_[static_cast<std::size_t>(chosen)];
  settings_.paper = paper.number;
  settings_.size = paper.size;
  Apply();
}

void PreviewDialog::TakePaperSize(int index) {
  int& side = index == 0 ? settings_.size.width : settings_.size.height;
  const auto length = LengthIn(txtPAPERSIZE + index);
  if (length && Length(*length) != Length(side)) {
    side = SanePaperSide(*length);
    Apply();
  }
  SetControlText(txtPAPERSIZE + index, Length(side));
}

// --- margins and the rest

void PreviewDialog::TakeMargin(int index) {
  const PageSetup& setup = pages_.setup();
  const PageEdge edge = kEdges[index];
  const auto length = LengthIn(txtMARGIN + index);
  if (length && Length(*length) != Length(MarginOf(setup.margins, edge))) {
    settings_.margins = WithMargin(setup.paper, setup.margins, edge, *length);
    Apply();
  }
  SetControlText(txtMARGIN + index, Length(MarginOf(pages_.setup().margins, edge)));
}

void PreviewDialog::OnMargins(const PageMargins& margins, bool done) {
  if (printing()) return;
  settings_.margins = margins;
  filling_ = true;
  SetUpPages();
  ShowMargins();
  filling_ = false;
  if (done) Apply();
}

void PreviewDialog::OnText(int index) {
  TextAt(settings_.texts, index) = ControlText(txtTEXTS + index);
  // At each key: nothing else on the window changes, and all settings are kept when it closes.
  SetUpPages();
  CountPages();
  ShowPage();
}

void PreviewDialog::InsertField() {
  std::vector<MenuItem> items;
  for (std::size_t i = 0; i < kPageFields.size(); ++i) {
    MenuItem item;
    item.id = static_cast<int>(i) + 1;
    item.caption = kPageFields[i].name;
    item.key = std::wstring(L"&") + kPageFields[i].letter;
    items.push_back(std::move(item));
  }
  RECT button = {};
  ::GetWindowRect(Control(cmdFIELD), &button);
  const int chosen = ShowPopupMenu(
      handle(), {static_cast<int>(button.left), static_cast<int>(button.bottom)}, items);
  if (chosen <= 0 || !open()) return;
  HWND box = Control(txtTEXTS + last_text_);
  const std::wstring field =
      std::wstring(L"&") + kPageFields[static_cast<std::size_t>(chosen - 1)].letter;
  ::SendMessageW(box, EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(field.c_str()));
  ::SetFocus(box);
}

void PreviewDialog::SetUpPages() {
  pages_.SetUp(SetupOf(settings_), picSHEETS_->page());
  StartTicking();
}

void PreviewDialog::Apply() {
  if (printing()) return;
  SetUpPages();
  ShowSetup();
  CountPages();
  ShowZoom();
  ShowPage();
  WritePrintSettings(services_.settings, settings_);
}

void PreviewDialog::OnSetup(int id, int code) {
  if (printing()) return;
  if (id >= txtTEXTS && id < txtTEXTS + kTexts) {
    if (code == EN_SETFOCUS) last_text_ = id - txtTEXTS;
    if (code == EN_CHANGE) OnText(id - txtTEXTS);
  } else if (code == EN_KILLFOCUS) {
    if (id >= txtMARGIN && id < txtMARGIN + kMargins) TakeMargin(id - txtMARGIN);
    if (id >= txtPAPERSIZE && id < txtPAPERSIZE + 2) TakePaperSize(id - txtPAPERSIZE);
    if (id == txtPAGE) OnEnter(txtPAGE);
  } else if (id == cboPAPER && code == CBN_SELCHANGE) {
    OnPaper();
  } else if (code == BN_CLICKED && id == cmdFIELD) {
    InsertField();
  } else if (code == BN_CLICKED) {
    settings_.landscape = Checked(optLANDSCAPE + 1);
    settings_.colour = Checked(chkCOLOUR);
    settings_.fitted = Checked(optFITTED);
    settings_.texts.from_second_page = Checked(chkSECONDPAGE);
    Apply();
  }
}

}  // namespace varnel
