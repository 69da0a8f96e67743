#include "core/menus_form.h"

#include <utility>

#include "win/system/guard.h"

namespace varnel {
namespace {

constexpr UINT kRunPosted = WM_APP;
constexpr int kAlarmTickMs = 100;
constexpr HttpLimits kVersionFileLimits{64 * 1024, 10'000};

}  // namespace

MenusForm::MenusForm(Ui& ui, Program& program, std::function<void()> on_session_end)
    : Window(ui),
      program_(program),
      on_session_end_(std::move(on_session_end)),
      tmrALARM_(*this, kAlarmTickMs, [this] { alarm_tick_(); }),
      web_data_(ui, kVersionFileLimits) {}

void MenusForm::Load(const std::wstring& title) {
  Creation creation;
  creation.class_name = L"frmSTRmn";
  creation.title = title;
  if (!Create(creation)) {
    ui().log.Write(L"the menu form cannot be made");
    return;
  }
  if (alarm_tick_) tmrALARM_.Start();
}

void MenusForm::Unload() {
  tmrALARM_.Stop();
  web_data_.Cancel();
  Destroy();
}

void MenusForm::Post(std::function<void()> work) {
  posted_.push_back(std::move(work));
  ::PostMessageW(handle(), kRunPosted, 0, 0);
}

void MenusForm::RunPosted() {
  // What fails keeps nothing back that was posted after it.
  for (const auto& work : std::exchange(posted_, {})) Guard(ui().log, L"posted work", work);
}

UINT MenusForm::ShowMessage() {
  return ::RegisterWindowMessageW(L"Widget Varnel: show the manager");
}

LRESULT MenusForm::OnMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case kRunPosted:
      RunPosted();
      return 0;
    case WM_COMMAND:
      program_.RunCommand(LOWORD(wparam));
      return 0;
    case WM_CLOSE:
      // Only a program that wants the whole of this one gone closes what nobody sees.
      program_.ExitProgram();
      return 0;
    case WM_QUERYENDSESSION:
      return TRUE;
    case WM_ENDSESSION:
      // The system ends the process after this message, without asking any further.
      if (wparam) on_session_end_();
      return 0;
    default:
      break;
  }
  if (message >= 0xC000 && message == ShowMessage()) {
    if (show_) show_(static_cast<int>(wparam) - 1);
    return 0;
  }
  return Window::OnMessage(message, wparam, lparam);
}

}  // namespace varnel
