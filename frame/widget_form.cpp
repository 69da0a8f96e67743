#include "frame/widget_form.h"

#include <utility>

#include "frame/command.h"
#include "frame/frame_painter_win.h"
#include "frame/frame_settings.h"
#include "frame/on_top.h"
#include "frame/pressed_key_win.h"
#include "resources/control_ids.h"
#include "theme/text_field_win.h"
#include "theme/theme_store.h"
#include "win/graphics/system_rect.h"
#include "win/windows/frameless_button.h"
#include "win/windows/message_box.h"
#include "win/windows/popup_menu.h"
#include "win/windows/user_look.h"

namespace varnel {
namespace {

constexpr wchar_t kBarGlyphs[] = {L'\xE204', L'\xE203', L'\xE202'};
constexpr const wchar_t* kBarWords[] = {L"Menu", L"Hide", L"Close"};

}  // namespace

WidgetForm::WidgetForm(Services& services, const FormEntry& entry, int index,
                       std::vector<CommandTable::Rows> menus)
    : PaintedWindow(services.ui),
      services_(services),
      entry_(entry),
      index_(index),
      mover_(*this, services.settings, entry.form_name),
      buttons_(*this),
      commands_(*this, buttons_, services.program, std::move(menus)) {}

WidgetForm::~WidgetForm() {
  services_.forms.Remove(entry_.form_name, *this);
}

bool WidgetForm::Load() {
  theme_ = LoadTheme(services_.settings, entry_.form_name, services_.colours);
  Creation creation;
  creation.class_name = entry_.form_name.data();
  creation.title = entry_.title;
  creation.style = WS_POPUP | WS_CLIPCHILDREN | WS_SYSMENU;
  // Widgets are no entries of the task bar; the manager is.
  creation.extended_style =
      WS_EX_LAYERED | (index_ == kManagerIndex ? WS_EX_APPWINDOW : WS_EX_TOOLWINDOW);
  creation.place = mover_.Restore(index_);
  if (!Create(creation)) {
    ui().log.Write(L"no window for " + std::wstring(entry_.form_name));
    return false;
  }
  CreateBarButtons();
  OnLoad();
  buttons_.ShowFocus(KeyboardPreferred());
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
  on_top_ = StaysOnTop(services_.settings, entry_.form_name);
  KeepOnTop(handle(), on_top_);
  paint_ = WidgetPaintOf(theme_, HighContrastWanted(), services_.colours);
  PutInterfaceFont(paint_, InterfaceFont());
  paint_.readable = ReadCheck(services_.settings, kMakeTextReadable);
  ::SetLayeredWindowAttributes(handle(), 0, WindowAlpha(paint_.theme.bytTHEMEOPACITY), LWA_ALPHA);
}

void WidgetForm::OnLookChanged() {
  ApplyChrome();
  Form_Resize();
  WidgetRefresh();
}

void WidgetForm::SetOnTop(bool on) {
  ChooseOnTop(services_.settings, entry_.form_name, on);
  ApplyChrome();
}

TextStyle WidgetForm::PanelTextStyle(int font_height, Reads reads) const {
  return varnel::PanelTextStyle(paint_, font_height, dpi(), reads);
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

void WidgetForm::DrawPanelButton(const ButtonPainting& painting) {
  PaintTextButton(ui(), painting, paint_, painting.bounds.height() * 2 / 5, dpi());
}

void WidgetForm::OnCommand(int id, int code, HWND control) {
  if (!control) {
    // The system's own handling of Enter and Esc sends commands without a control.
    if (id == IDOK) ::SendMessageW(::GetFocus(), BM_CLICK, 0, 0);
    if (id != IDOK && id != IDCANCEL) RunCommand(id);
    return;
  }
  if (code == BN_DBLCLK && buttons_.Find(id) && SecondClickCounts(id)) code = BN_CLICKED;
  if (code == BN_CLICKED && id == lablTBARTOP) {
    const Rect window = screen_rect();
    ShowMenu({window.left + layout_.bar_buttons[0].left, window.top + layout_.pfrBAR.bottom});
  } else if (code == BN_CLICKED && id == lablTBARTOP + 1) {
    MinimiseToTaskBar(handle());
  } else if (code == BN_CLICKED && id == lablTBARTOP + 2) {
    OnCloseButton();
  } else if (code != BN_CLICKED || !commands_.OnTool(id)) {
    OnControl(id, code);
  }
}

void WidgetForm::OnCloseButton() {
  services_.program.WidgetCheck(index_);
}

bool WidgetForm::OnSightMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_CLOSE:
      // What the user does arrives as a system command: this comes from another program.
      services_.program.CloseFromOutside(index_);
      return true;
    case WM_SYSCOMMAND:
      return OnSystemCommand(wparam & 0xFFF0);
    case WM_SIZE:
      services_.program.SightChanged(index_);
      return false;
    case WM_WINDOWPOSCHANGED:
      if (reinterpret_cast<const WINDOWPOS*>(lparam)->flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)) {
        services_.program.SightChanged(index_);
      }
      return false;
    default:
      return false;
  }
}

bool WidgetForm::OnSystemCommand(WPARAM command) {
  switch (command) {
    case SC_CLOSE:
      OnCloseButton();
      return true;
    case SC_MINIMIZE:
      MinimiseToTaskBar(handle());
      return true;
    case SC_RESTORE:
      RefreshContent();
      BringIntoSight(handle(), SW_SHOWNORMAL, index_ != kManagerIndex);
      return true;
    default:
      return false;
  }
}

void WidgetForm::RunCommand(int id) {
  services_.program.SetCurrentWidget(entry_.form_name);
  if (id == CommandId(TopCommand())) {
    SetOnTop(!on_top_);
  } else if (!commands_.Run(id)) {
    services_.program.RunCommand(id);
  }
}

std::wstring_view WidgetForm::TopCommand() const {
  return entry_.top_command.empty() ? kTopCommand : entry_.top_command;
}

void WidgetForm::ShowMenu(Point at) {
  services_.program.SetCurrentWidget(entry_.form_name);
  std::vector<MenuItem> items = commands_.Menu();
  if (!items.empty()) items.push_back(MenuSeparator());
  for (MenuItem& item : services_.program.SharedMenu()) {
    // The widget's own command stands in for the shared one: nobody wants both.
    if (item.id == CommandId(kTopCommand)) item.id = CommandId(TopCommand());
    items.push_back(std::move(item));
  }
  RunCommand(ShowPopupMenu(handle(), at, items));
}

void WidgetForm::OnContextMenu(LPARAM position) {
  // A menu would keep the end of the movement from the window, which would follow the mouse on.
  if (mover_.dragging()) return;
  if (position == -1) {  // asked for by key
    const Rect window = screen_rect();
    ShowMenu({window.left + layout_.title_text.left, window.top + layout_.pfrBAR.bottom});
  } else {
    ShowMenu({static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))});
  }
}

bool WidgetForm::OnMouseOver(HWND control) {
  if (!services_.program.closing()) buttons_.OnMouseOver(control);
  POINT mouse = {};
  ::GetCursorPos(&mouse);
  const Rect grip = Within(screen_rect(), layout_.size_grip);
  if (control != handle() || !grip.Contains({static_cast<int>(mouse.x), static_cast<int>(mouse.y)}))
    return false;
  ::SetCursor(::LoadCursorW(nullptr, MAKEINTRESOURCEW(32642)));  // the diagonal arrows
  return true;
}

void WidgetForm::OnLeftButtonDown(Point at) {
  if (layout_.pfrBAR.Contains(at)) {
    mover_.DragByBar();
  } else if (layout_.size_grip.Contains(at)) {
    mover_.DragByGrip();
  }
}

void WidgetForm::SetSize(int width, int height) {
  mover_.SetSize({width, height});
}

Focus WidgetForm::FocusNow() const {
  return FocusOf(::GetFocus());
}

bool WidgetForm::OnKey(const MSG& message) {
  const Focus focus = FocusNow();
  if (focus == Focus::kRename) return false;
  const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
  if (down) buttons_.ShowFocus(true);
  if (OnFirstKey(message)) return true;
  const CommandKey key = PressedKey(message);
  return commands_.Run(commands_.OfKey(key, focus)) || MoveByKey(key, focus);
}

bool WidgetForm::MoveByKey(const CommandKey& key, Focus focus) {
  const bool sizes = key.held == (kCtrlHeld | kShiftHeld);
  const Point direction = {(key.code == kKeyRight) - (key.code == kKeyLeft),
                           (key.code == kKeyDown) - (key.code == kKeyUp)};
  if (direction == Point{} || (key.held != kCtrlHeld && !sizes) || FocusKeeps(focus, key)) {
    return false;
  }
  sizes ? mover_.SizeByStep(direction) : mover_.MoveByStep(direction);
  return true;
}

LRESULT WidgetForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (OnSightMessage(message, wparam, lparam)) return 0;
  if (const auto result = mover_.OnMessage(message, wparam, lparam)) return *result;
  if (OnChange(message, wparam)) return 0;
  if (const auto result = TextField::OnParentMessage(message, wparam, lparam)) return *result;
  switch (message) {
    case kButtonAsked:
      return buttons_.OnAsked(reinterpret_cast<HWND>(lparam), wparam).value_or(0);
    case WM_DRAWITEM:
      buttons_.Draw(ui(), *reinterpret_cast<const DRAWITEMSTRUCT*>(lparam), paint_,
                    services_.colours,
                    [this](const ButtonPainting& painting) { DrawPanelButton(painting); });
      return TRUE;
    case WM_COMMAND:
      OnCommand(LOWORD(wparam), HIWORD(wparam), reinterpret_cast<HWND>(lparam));
      return 0;
    case WM_CONTEXTMENU:
      OnContextMenu(lparam);
      return 0;
    case WM_ENTERMENULOOP:
      // A tooltip would lie over the menu that its button opened.
      buttons_.HideTooltip();
      break;
    case WM_SETCURSOR:
      if (OnMouseOver(reinterpret_cast<HWND>(wparam))) return TRUE;
      break;
    case WM_LBUTTONDOWN:
      buttons_.ShowFocus(KeyboardPreferred());
      OnLeftButtonDown({static_cast<short>(LOWORD(lparam)), static_cast<short>(HIWORD(lparam))});
      return 0;
    case WM_PARENTNOTIFY:
      // The mouse is used: where the keyboard goes to is of no interest.
      if (LOWORD(wparam) == WM_LBUTTONDOWN) buttons_.ShowFocus(KeyboardPreferred());
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wparam) == WA_INACTIVE) last_focus_ = ::GetFocus();
      break;
    case WM_SETFOCUS:
      if (::IsChild(handle(), last_focus_)) ::SetFocus(last_focus_);
      return 0;
    default:
      break;
  }
  return PaintedWindow::OnMessage(message, wparam, lparam);
}

bool WidgetForm::OnChange(UINT message, WPARAM wparam) {
  switch (message) {
    case WM_SIZE:
      // Not before there are controls, nor for the icon that a minimised window has become.
      if (!buttons_.all().empty() && wparam != SIZE_MINIMIZED) Form_Resize();
      return true;
    case WM_SETTINGCHANGE:
      if (HighContrastWanted() != paint_.high_contrast) OnLookChanged();
      return true;
    case WM_DPICHANGED:
      Form_Resize();
      WidgetRefresh();
      return true;
    case WM_SYSCOLORCHANGE:
      OnLookChanged();
      return true;
    default:
      return false;
  }
}

}  // namespace varnel
