#include "core/tray_form.h"

#include "core/core_settings.h"
#include "win/windows/popup_menu.h"

namespace varnel {
namespace {

// The icon's notifications arrive under the number of a mouse move, with the mouse message itself
// as the position.
constexpr UINT kTrayMessage = WM_MOUSEMOVE;
constexpr UINT kLeftDoubleClick = 3;  // counted from WM_MOUSEMOVE
constexpr UINT kRightButtonUp = 5;
constexpr int kMostTries = 10;
constexpr int kRetryMs = 2000;

}  // namespace

TrayForm::TrayForm(Ui& ui, Program& program)
    : Window(ui), program_(program), retry_(*this, kRetryMs, [this] { AddIcon(); }) {}

void TrayForm::Load() {
  taskbar_created_ = ::RegisterWindowMessageW(L"TaskbarCreated");
  Creation creation;
  creation.class_name = L"frmSTRtr";
  creation.title = kApplicationTitle;
  if (!Create(creation)) {
    ui().log.Write(L"the tray form cannot be made");
    return;
  }
  icon_ = std::make_unique<TrayIcon>(handle(), kTrayMessage, TrayIconSelect(),
                                     std::wstring(kApplicationTitle));
  AddIcon();
}

void TrayForm::Unload() {
  retry_.Stop();
  icon_.reset();
  Destroy();
}

void TrayForm::AddIcon() {
  if (icon_->Add() || ++tries_ >= kMostTries) {
    retry_.Stop();
  } else if (!retry_.enabled()) {
    retry_.Start();
  }
}

HICON TrayForm::TrayIconSelect() const {
  // Shared: the system owns it and picks the size made for the notification area.
  return static_cast<HICON>(::LoadImageW(ui().instance, MAKEINTRESOURCEW(kApplicationIcon),
                                         IMAGE_ICON, ::GetSystemMetrics(SM_CXSMICON),
                                         ::GetSystemMetrics(SM_CYSMICON), LR_SHARED));
}

LRESULT TrayForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == kTrayMessage && wparam == TrayIcon::kId) {
    OnTrayMouse(static_cast<UINT>(lparam));
    return 0;
  }
  if (message == taskbar_created_ && taskbar_created_ != 0 && icon_) {
    icon_->Forget();
    tries_ = 0;
    AddIcon();
    return 0;
  }
  if (message == WM_CLOSE) {
    // Only a program that wants the whole of this one gone closes what nobody sees.
    program_.ExitProgram();
    return 0;
  }
  return Window::OnMessage(message, wparam, lparam);
}

void TrayForm::OnTrayMouse(UINT mouse_message) {
  const UINT action = mouse_message - WM_MOUSEMOVE;
  if (action == kLeftDoubleClick) program_.ShowManager();
  if (action == kRightButtonUp) {
    POINT point = {};
    ::GetCursorPos(&point);
    const int chosen = ShowPopupMenu(
        handle(), {static_cast<int>(point.x), static_cast<int>(point.y)}, program_.TrayMenu());
    program_.RunCommand(chosen);
  }
}

}  // namespace varnel
