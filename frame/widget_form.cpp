#include "frame/widget_form.h"

#include "frame/frame_painter_win.h"
#include "frame/frame_settings.h"
#include "frame/screens_win.h"
#include "frame/sizes.h"
#include "resources/control_ids.h"
#include "theme/contrast.h"
#include "theme/theme_store.h"
#include "win/message_box.h"
#include "win/user_look.h"

namespace varnel {
namespace {

constexpr int kHoverTickMs = 100;
constexpr wchar_t kBarGlyphs[] = {L'\xE204', L'\xE203', L'\xE202'};
constexpr const wchar_t* kBarWords[] = {L"Menu", L"Hide", L"Close"};
constexpr int kBarGlyphHeight = 17;
constexpr double kVisibleFace = 1.1;  // the contrast of a button's face with the panel

// The user wants to see the focus even while the mouse is used.
bool KeyboardCuesAlways() {
  BOOL always = FALSE;
  ::SystemParametersInfoW(SPI_GETKEYBOARDCUES, 0, &always, 0);
  return always;
}

}  // namespace

WidgetForm::WidgetForm(Services& services, const FormEntry& entry, int index)
    : PaintedWindow(services.ui),
      services_(services),
      entry_(entry),
      index_(index),
      buttons_(*this),
      tmrBARBTNS_(*this, kHoverTickMs, [this] { HoverTick(tmrBARBTNS_); }),
      tmrPANBTNS_(*this, kHoverTickMs, [this] { HoverTick(tmrPANBTNS_); }) {}

WidgetForm::~WidgetForm() {
  services_.forms.Remove(entry_.form_name, *this);
}

bool WidgetForm::Load() {
  const Screens screens = CurrentScreens();
  place_ = ReadPosition(services_.settings, entry_.form_name, DefaultPlace(index_, screens), true);
  snapped_ = {place_.corner.x, place_.corner.y};
  theme_ = LoadTheme(services_.settings, entry_.form_name, services_.colours);
  Creation creation;
  creation.class_name = entry_.form_name.data();
  creation.title = entry_.title;
  creation.style = WS_POPUP | WS_CLIPCHILDREN | WS_SYSMENU;
  // Widgets are no entries of the task bar; the manager is.
  creation.extended_style =
      WS_EX_LAYERED | (index_ == kManagerIndex ? WS_EX_APPWINDOW : WS_EX_TOOLWINDOW);
  creation.place = PixelsFromPlace(FitPlace(place_, screens), screens);
  if (!Create(creation)) {
    ui().log.Write(L"no window for " + std::wstring(entry_.form_name));
    return false;
  }
  CreateBarButtons();
  OnLoad();
  ShowFocus(KeyboardCuesAlways());
  services_.forms.Add(entry_.form_name, *this);
  ApplyChrome();
  Form_Resize();
  WidgetRefresh();
  return true;
}

void WidgetForm::Unload() {
  if (!handle()) return;
  SaveState(SaveReason::kClose);
  OnUnload();
  services_.forms.Remove(entry_.form_name, *this);
  Destroy();
}

void WidgetForm::SavePlace() {
  if (!handle()) return;
  const WindowState state = ::IsIconic(handle())   ? WindowState::kMinimised
                            : ::IsZoomed(handle()) ? WindowState::kMaximised
                                                   : WindowState::kNormal;
  SavePosition(services_.settings, entry_.form_name, state, place_, true);
}

bool WidgetForm::MayClose() {
  const std::wstring unfinished = Unfinished();
  const Message question{entry_.title, L"%1 Close it all the same?", MessageKind::kQuestion};
  return unfinished.empty() || Ask(handle(), question, {unfinished});
}

void WidgetForm::SaveState(SaveReason) {
  SavePlace();
}

void WidgetForm::Show(bool shown) {
  const bool manager = index_ == kManagerIndex;
  // What ticks rests while nobody sees it.
  if (shown && sight() != Sight::kShown) RefreshContent();
  if (!shown) {
    ::ShowWindow(handle(), SW_HIDE);
    return;
  }
  BringIntoSight(handle(), manager ? SW_SHOWNORMAL : SW_SHOWNOACTIVATE, !manager);
  if (manager) ::SetForegroundWindow(handle());
  // Painted at once, so that nobody sees an empty window first.
  ::RedrawWindow(handle(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void WidgetForm::CreateBarButtons() {
  for (int i = 0; i < kBarButtonCount; ++i) {
    buttons_.Add(lablTBARTOP + i, kBarWords[i], kBarGlyphs[i], true);
  }
}

void WidgetForm::Form_Resize() {
  const Rect area = client();
  layout_ = LayOutFrame({area.width(), area.height()}, dpi());
  for (int i = 0; i < kBarButtonCount; ++i) {
    buttons_.Place(lablTBARTOP + i, layout_.bar_buttons[i]);
  }
  ui().fonts.Trim(200);
  LayOutPanel(layout_.pfrPANEL);
  ::InvalidateRect(handle(), nullptr, FALSE);
}

void WidgetForm::WidgetRefresh() {
  RefreshContent();
  // At once: a dialog that changes the widget would otherwise be painted before it.
  ::RedrawWindow(handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
}

void WidgetForm::ApplyChrome() {
  if (!own_on_top_) on_top_ = ReadFlag(services_.settings, kOnTop);
  KeepOnTop(handle(), on_top_);
  paint_ = WidgetPaintOf(theme_, HighContrastWanted(), services_.colours);
  paint_.readable = ReadCheck(services_.settings, kMakeTextReadable);
  ::SetLayeredWindowAttributes(handle(), 0, WindowAlpha(paint_.theme.bytTHEMEOPACITY), LWA_ALPHA);
}

void WidgetForm::OnLookChanged() {
  ApplyChrome();
  Form_Resize();
  WidgetRefresh();
}

void WidgetForm::SetOnTop(bool on) {
  own_on_top_ = true;
  on_top_ = on;
  ApplyChrome();
}

void WidgetForm::FollowOnTopSetting() {
  own_on_top_ = false;
  ApplyChrome();
}

TextStyle WidgetForm::PanelTextStyle(int font_height, Reads reads) const {
  return varnel::PanelTextStyle(paint_, font_height, dpi(), reads);
}

void WidgetForm::ShowFocus(bool shown) {
  if (std::exchange(focus_shown_, shown) == shown) return;
  if (HWND focus = ::GetFocus(); ::IsChild(handle(), focus)) {
    ::InvalidateRect(focus, nullptr, FALSE);
  }
}

void WidgetForm::RepaintStatus() {
  const RECT strip = ToSystem(layout_.picBOTTOMSTRIP);
  ::InvalidateRect(handle(), &strip, FALSE);
}

void WidgetForm::Paint(Surface& surface) {
  PaintFrame(ui(), surface,
             {layout_, paint_, std::wstring(entry_.title), entry_.glyph, StatusText(), dpi()});
  PaintPanel(surface, layout_.pfrPANEL);
}

void WidgetForm::DrawButton(const DRAWITEMSTRUCT& item) {
  const TextButton* button = buttons_.Find(static_cast<int>(item.CtlID));
  if (!button) return;
  const Rect bounds = FromSystem(item.rcItem);
  Surface surface({bounds.width(), bounds.height()});
  FillRectangle(surface.dc(), bounds, button->on_bar ? chrome().bar.first : chrome().ground);
  const ButtonLook look = buttons_.LookOf(*button, item);
  const ColourPair colours = ButtonColours(paint_, look, services_.colours);
  const ButtonPainting painting{*button,
                                surface,
                                bounds,
                                look,
                                button->on_bar ? colours : SeenOnPanel(colours),
                                (item.itemState & ODS_FOCUS) != 0 && focus_shown_,
                                (item.itemState & ODS_DISABLED) == 0};
  if (button->on_bar) {
    ButtonPainting small = painting;
    small.bounds = Inset(bounds, Scaled(2, dpi()));
    PaintTextButton(ui(), small, paint_, Scaled(kBarGlyphHeight, dpi()), dpi());
  } else {
    DrawPanelButton(painting);
  }
  surface.CopyTo(item.hDC, {0, 0});
}

ColourPair WidgetForm::SeenOnPanel(const ColourPair& button) const {
  const bool lost = ContrastRatio(button.first, chrome().ground) < kVisibleFace;
  return {button.first, lost ? chrome().border : button.second};
}

void WidgetForm::DrawPanelButton(const ButtonPainting& painting) {
  PaintTextButton(ui(), painting, paint_, painting.bounds.height() * 2 / 5, dpi());
}

LRESULT WidgetForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (OnSightMessage(message, wparam, lparam)) return 0;
  switch (message) {
    case WM_DRAWITEM:
      DrawButton(*reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
      return TRUE;
    case WM_SIZE:
      // Not before there are controls, nor for the icon that a minimised window has become.
      if (!buttons_.all().empty() && wparam != SIZE_MINIMIZED) Form_Resize();
      return 0;
    case WM_COMMAND:
      OnCommand(LOWORD(wparam), HIWORD(wparam), reinterpret_cast<HWND>(lparam));
      return 0;
    case WM_CONTEXTMENU:
      OnContextMenu(lparam);
      return 0;
    case WM_SETCURSOR:
      if (OnMouseOver(reinterpret_cast<HWND>(wparam))) return TRUE;
      break;
    case WM_LBUTTONDOWN:
      OnLeftButtonDown({static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))});
      return 0;
    case WM_MOUSEMOVE:
      if (sizing_) DragSize();
      return 0;
    case WM_LBUTTONUP:
      ::ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      if (std::exchange(sizing_, false)) SavePlace();
      return 0;
    case WM_PARENTNOTIFY:
      if (LOWORD(wparam) == WM_LBUTTONDOWN) ShowFocus(KeyboardCuesAlways());
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wparam) == WA_INACTIVE) last_focus_ = ::GetFocus();
      break;
    case WM_SETFOCUS:
      if (::IsChild(handle(), last_focus_)) ::SetFocus(last_focus_);
      return 0;
    case WM_DISPLAYCHANGE:
      ReturnToScreen();
      return 0;
    case WM_SETTINGCHANGE:
      ReturnToScreen();
      if (HighContrastWanted() != paint_.high_contrast) OnLookChanged();
      return 0;
    case WM_DPICHANGED:
      OnDpiChanged(*reinterpret_cast<const RECT*>(lparam));
      return 0;
    case WM_SYSCOLORCHANGE:
      OnLookChanged();
      return 0;
    default:
      break;
  }
  return PaintedWindow::OnMessage(message, wparam, lparam);
}

}  // namespace varnel
