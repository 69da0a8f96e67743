#include "dialogs/theme/theme_dialog.h"

#include <commctrl.h>

#include <algorithm>
#include <iterator>

#include "dialogs/theme/place_beside.h"
#include "dialogs/theme/theme_preview_win.h"
#include "frame/frame_settings.h"
#include "resources/control_ids.h"
#include "theme/preset_generator.h"
#include "win/graphics/system_rect.h"
#include "win/windows/common_controls.h"
#include "win/windows/monitors.h"

namespace varnel {
namespace {

constexpr int kGap = 10;  // between the dialog and its target, at 96 dpi
constexpr int kLongestName = 100;
constexpr int kTabLine = 2;

constexpr const wchar_t* kPages[] = {L"Main Theme", L"Top Bar / Bottom Bar", L"Large Panel"};
constexpr int kAfterPages = 1480;
// The controls of a page are numbered in one go.
constexpr int kFirstOfPage[] = {lstFOLDERS, cboBAR, cboPANEL, kAfterPages};

struct Slider {
  int control;
  int label;
  int number;
};
constexpr Slider kSliders[] = {{hsbOPACITY, lblVALUE, kOpacityNumber},
                               {hsbCONTRAST, lblCONTRAST, kContrastNumber},
                               {hsbBARANGLE, lblANGLE, kAngleNumber}};

struct ColourField {
  int swatch;
  int button;
  Colour ThemeRecord::*member;
};
constexpr ColourField kColours[] = {
    {lblCOLORMAIN, btnCOLORMAIN, &ThemeRecord::lngTHEMECOLOR},
    {lblCOLORBAR, btnCOLORBAR, &ThemeRecord::lngTHEMEBARFONTCOLOR},
    {lblCOLORPANEL, btnCOLORPANEL, &ThemeRecord::lngTHEMEPANELFONTCOLOR}};

struct FontField {
  int combo;
  std::wstring ThemeRecord::*member;
};
constexpr FontField kFonts[] = {{cboBAR, &ThemeRecord::strTHEMEBARFONTNAME},
                                {cboPANEL, &ThemeRecord::strTHEMEPANELFONTNAME}};

LPARAM TextParameter(const std::wstring& text) {
  return reinterpret_cast<LPARAM>(text.c_str());
}

}  // namespace

ThemeDialog::ThemeDialog(Services& services)
    : Dialog(services.ui, L"frmTHEME"),
      services_(services),
      editor_(services.settings, services.files, services.colours, services.program_folder),
      presets_(services.colours) {
  LoadCommonControls(ICC_TAB_CLASSES | ICC_LISTVIEW_CLASSES | ICC_BAR_CLASSES);
}

void ThemeDialog::OnOpen() {
  FillTabs();
  const std::vector<std::wstring> faces = OfferedFontFaces();
  for (std::size_t i = 0; i < fonts_.size(); ++i) fonts_[i].Attach(Control(kFonts[i].combo), faces);
  presets_.Attach(Control(lvwTHEMES), static_cast<int>(::GetDpiForWindow(handle())));
  for (const std::wstring_view style : kStyleFolders) {
    ::SendMessageW(Control(lstFOLDERS), LB_ADDSTRING, 0, TextParameter(std::wstring(style)));
  }
  ::SendMessageW(Control(txtPRESETNEW), EM_LIMITTEXT, kLongestName, 0);
  for (const Slider& slider : kSliders) {
    const ThemeNumber& number = ThemeNumberAt(slider.number);
    ::SendMessageW(Control(slider.control), TBM_SETRANGE, FALSE,
                   MAKELPARAM(number.low, number.high));
    ::SendMessageW(Control(slider.control), TBM_SETPAGESIZE, 0, 15);
  }
  for (const int mark : {icoREADBAR, icoREADPANEL}) {
    const int side = ::GetSystemMetrics(SM_CXSMICON);
    ::SendMessageW(Control(mark), STM_SETICON,
                   reinterpret_cast<WPARAM>(::LoadImageW(nullptr, MAKEINTRESOURCEW(32515),
                                                         IMAGE_ICON, side, side, LR_SHARED)),
                   0);
  }
  TakeTarget();
}

void ThemeDialog::OnReopen() {
  if (asking_ || editor_.target() == services_.program.CurrentForm().entry().form_name) return;
  ReturnTarget();
  TakeTarget();
}

void ThemeDialog::TakeTarget() {
  LiveForm& form = services_.program.CurrentForm();
  editor_.Open(form.entry(), form.theme());
  ::SetWindowTextW(handle(), std::wstring(editor_.caption()).c_str());
  SetControlText(txtPRESETNEW, L"");
  ::SendMessageW(Control(lstFOLDERS), LB_SELECTSTRING, static_cast<WPARAM>(-1),
                 TextParameter(editor_.folder()));
  FillPresets();
  ShowPage(0);
  ShowValues();
  MoveBeside(form);
}

void ThemeDialog::MoveBeside(const LiveForm& form) {
  RECT own = {};
  ::GetWindowRect(handle(), &own);
  const Rect target = form.Bounds();
  const Rect place = FromSystem(own);
  const Rect beside =
      PlaceBeside({place.width(), place.height()}, target, MonitorAt(target).work_area,
                  Scaled(kGap, static_cast<int>(::GetDpiForWindow(handle()))));
  ::SetWindowPos(handle(), nullptr, beside.left, beside.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ThemeDialog::ShowOnTarget(const ThemeRecord& theme) {
  LiveForm* live = services_.forms.Find(editor_.target());
  if (!live) return;
  live->theme() = theme;
  live->ApplyChrome();
  live->Form_Resize();
  live->WidgetRefresh();
}

void ThemeDialog::ReturnTarget() {
  if (editor_.changed()) ShowOnTarget(editor_.kept());
}

void ThemeDialog::FillTabs() {
  const int dpi = static_cast<int>(::GetDpiForWindow(handle()));
  TabCtrl_SetPadding(Control(tabMAIN), Scaled(10, dpi), Scaled(4, dpi));
  for (int i = 0; i < static_cast<int>(std::size(kPages)); ++i) {
    std::wstring title = kPages[i];
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = title.data();
    ::SendMessageW(Control(tabMAIN), TCM_INSERTITEMW, i, reinterpret_cast<LPARAM>(&item));
  }
  // No more than the tabs and a line below them: the pages stand on the dialog itself.
  RECT strip = {};
  ::GetClientRect(Control(tabMAIN), &strip);
  RECT tab = {};
  TabCtrl_GetItemRect(Control(tabMAIN), 0, &tab);
  ::SetWindowPos(Control(tabMAIN), nullptr, 0, 0, strip.right, tab.bottom + kTabLine,
                 SWP_NOMOVE | SWP_NOZORDER);
}

void ThemeDialog::ShowPage(int page) {
  TabCtrl_SetCurSel(Control(tabMAIN), page);
  for (HWND child = ::GetWindow(handle(), GW_CHILD); child;
       child = ::GetWindow(child, GW_HWNDNEXT)) {
    const int id = ::GetDlgCtrlID(child);
    if (id < kFirstOfPage[0] || id >= kFirstOfPage[std::size(kPages)]) continue;
    const bool on_page = id >= kFirstOfPage[page] && id < kFirstOfPage[page + 1];
    ::ShowWindow(child, on_page ? SW_SHOWNA : SW_HIDE);
  }
}

// Ctrl+Tab goes to the next page, with Shift to the one before.
bool ThemeDialog::OnKey(const MSG& message) {
  if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || ::GetKeyState(VK_CONTROL) >= 0) {
    return false;
  }
  constexpr int kCount = static_cast<int>(std::size(kPages));
  const int step = ::GetKeyState(VK_SHIFT) < 0 ? kCount - 1 : 1;
  ShowPage((TabCtrl_GetCurSel(Control(tabMAIN)) + step) % kCount);
  // What had the focus may be on the page that went.
  if (!::IsWindowVisible(::GetFocus())) ::SetFocus(Control(tabMAIN));
  return true;
}

void ThemeDialog::Changed() {
  ShowOnTarget(editor_.theme());
  ShowValues();
}

void ThemeDialog::ShowValues() {
  const ThemeRecord& theme = editor_.theme();
  filling_ = true;
  for (const Slider& slider : kSliders) {
    ::SendMessageW(Control(slider.control), TBM_SETPOS, TRUE, SliderPlace(theme, slider.number));
    SetControlText(slider.label, NumberLabel(theme, slider.number));
  }
  for (std::size_t i = 0; i < fonts_.size(); ++i) fonts_[i].Show(theme.*kFonts[i].member);
  filling_ = false;
  for (const ColourField& colour : kColours) {
    ::InvalidateRect(Control(colour.swatch), nullptr, FALSE);
  }
  ::InvalidateRect(Control(picPREVIEW), nullptr, FALSE);
  ShowReadability();
  EnableButtons();
}

void ThemeDialog::ShowReadability() {
  const Readability readability = ReadabilityOf(editor_.theme(), services_.colours);
  const auto show = [this](int label, int mark, double ratio) {
    SetControlText(label, RatioText(ratio));
    ::ShowWindow(Control(mark), HardToRead(ratio) ? SW_SHOWNA : SW_HIDE);
  };
  show(lblREADBAR, icoREADBAR, readability.bar);
  show(lblREADPANEL, icoREADPANEL, readability.panel);
  const bool hard = HardToRead(readability.bar) || HardToRead(readability.panel);
  const bool helped = hard && ReadCheck(services_.settings, kMakeTextReadable);
  SetControlText(lblREADHINT, !hard ? L"Both are easy to read."
                              : helped
                                  ? L"Under 4.5 : 1 small text is hard to read. It is written in "
                                    L"a darker or lighter shade."
                                  : L"Under 4.5 : 1 small text is hard to read.");
}

void ThemeDialog::EnableButtons() {
  Enable(btnDELETE, editor_.PresetNamed(ControlText(txtPRESETNEW)).has_value());
  Enable(btnDELETEALL, !presets_.presets().empty());
  // One place, two buttons: the caption tells whether closing drops anything.
  const bool changed = editor_.changed();
  ::ShowWindow(Control(cmdOKfrmTHEME), changed ? SW_HIDE : SW_SHOWNA);
  ::ShowWindow(Control(btnCLOSEDLG), changed ? SW_SHOWNA : SW_HIDE);
  // Keys would go nowhere from a control that has just become useless.
  HWND focus = ::GetFocus();
  if (::IsChild(handle(), focus) && (!::IsWindowVisible(focus) || !::IsWindowEnabled(focus))) {
    ::SendMessageW(handle(), WM_NEXTDLGCTL, 0, FALSE);
  }
}

void ThemeDialog::OnCommand(int id, int code) {
  switch (id) {
    case tabMAIN:
      return;
    case lstFOLDERS:
      if (code == LBN_SELCHANGE) SelectFolder();
      return;
    case flbLIST:
      if (code == LBN_SELCHANGE) {
        presets_.Choose(static_cast<int>(::SendMessageW(Control(flbLIST), LB_GETCURSEL, 0, 0)));
      }
      return;
    case txtPRESETNEW:
      OnNameBox(code);
      return;
    case cboBAR:
    case cboPANEL:
      OnFont(id, code);
      return;
    default:
      break;
  }
  if (code != BN_CLICKED) return;
  switch (id) {
    case btnNEW:
      NewPreset();
      break;
    case btnDELETE:
      DeletePreset();
      break;
    case btnDELETEALL:
      DeleteAllPresets();
      break;
    case btnAPPLY:
      Apply();
      break;
    case cmdOKfrmTHEME:
    case btnCLOSEDLG:
      Close();
      break;
    default:
      PickColour(id);
  }
}

bool ThemeDialog::OnMessage(UINT message, WPARAM, LPARAM lparam) {
  switch (message) {
    case WM_NOTIFY:
      ::SetWindowLongPtrW(handle(), DWLP_MSGRESULT,
                          OnNotify(*reinterpret_cast<const NMHDR*>(lparam)));
      return true;
    case WM_HSCROLL:
      OnSlider(reinterpret_cast<HWND>(lparam));
      return true;
    case WM_DRAWITEM:
      Draw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
      return true;
    case WM_DESTROY:
      editor_.StoreFolder();
      ReturnTarget();
      return true;
    default:
      return false;
  }
}

LRESULT ThemeDialog::OnNotify(const NMHDR& notice) {
  if (notice.code == TCN_SELCHANGE) ShowPage(TabCtrl_GetCurSel(notice.hwndFrom));
  if (notice.idFrom != lvwTHEMES) return 0;
  if (notice.code == NM_CUSTOMDRAW) {
    return presets_.OnCustomDraw(reinterpret_cast<const NMLVCUSTOMDRAW&>(notice));
  }
  if (notice.code == LVN_ITEMCHANGED && !filling_) {
    const auto& change = reinterpret_cast<const NMLISTVIEW&>(notice);
    const bool chosen = change.uNewState & ~change.uOldState & LVIS_SELECTED;
    if (chosen) SelectPreset(change.iItem);
  }
  return 0;
}

void ThemeDialog::Draw(const DRAWITEMSTRUCT& item) {
  const int dpi = static_cast<int>(::GetDpiForWindow(handle()));
  const Rect box = FromSystem(item.rcItem);
  const ThemeRecord& theme = editor_.theme();
  if (item.CtlID == picPREVIEW) {
    Surface surface({box.width(), box.height()});
    PaintThemePreview(ui(), surface, theme, editor_.target_entry(), dpi,
                      ReadCheck(services_.settings, kMakeTextReadable), services_.colours);
    surface.CopyTo(item.hDC, {0, 0});
  }
  for (const ColourField& colour : kColours) {
    if (static_cast<int>(item.CtlID) != colour.swatch) continue;
    PaintSwatch(item.hDC, box, theme.*colour.member, dpi, services_.colours);
  }
}

void ThemeDialog::OnSlider(HWND slider) {
  const int id = ::GetDlgCtrlID(slider);
  for (const Slider& each : kSliders) {
    if (each.control != id) continue;
    const auto place = static_cast<int>(::SendMessageW(slider, TBM_GETPOS, 0, 0));
    if (place == SliderPlace(editor_.theme(), each.number)) return;
    ThemeNumberAt(each.number).write(editor_.theme(), place);
    Changed();
  }
}

void ThemeDialog::OnFont(int combo, int code) {
  if (filling_) return;
  for (std::size_t i = 0; i < fonts_.size(); ++i) {
    if (kFonts[i].combo != combo) continue;
    if (const auto face = fonts_[i].Chosen(code)) {
      editor_.theme().*kFonts[i].member = *face;
      Changed();
    } else if (code == CBN_KILLFOCUS) {
      ShowValues();  // in place of what was typed and is no font
    }
  }
}

void ThemeDialog::PickColour(int button) {
  const auto* field = std::ranges::find(kColours, button, &ColourField::button);
  if (field == std::end(kColours)) return;
  const Colour start = Translate(editor_.theme().*field->member, services_.colours);
  const auto picked = colours_.Pick(handle(), static_cast<COLORREF>(start));
  if (!picked || !handle()) return;
  editor_.theme().*field->member = static_cast<Colour>(*picked);
  Changed();
}

void ThemeDialog::Apply() {
  editor_.Apply();
  // Like every confirmed change of settings, this brings the start with Windows in line with them.
  services_.program.RegisterRunAtLogon();
  Changed();
}

}  // namespace varnel
