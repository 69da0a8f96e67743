#include "core/application_win.h"

#include <utility>

#include "base/path.h"
#include "core/core_settings.h"
#include "core/start_options.h"
#include "theme/preset_generator.h"
#include "win/net/web_page.h"
#include "win/system/guard.h"
#include "win/system/process.h"
#include "win/system/single_instance.h"
#include "win/windows/hourglass.h"
#include "win/windows/message_loop.h"

namespace varnel {
namespace {

std::wstring FolderOf(const std::wstring& path) {
  return path.substr(0, path.rfind(L'\\') + 1);
}

std::wstring BaseName(const std::wstring& path) {
  const std::wstring name = path.substr(path.rfind(L'\\') + 1);
  return name.substr(0, name.rfind(L'.'));
}

std::wstring ProgramFolder(const CommandLine& command_line) {
  return AddTrailingSeparator(command_line.program_folder.empty() ? FolderOf(ProgramPath())
                                                                  : command_line.program_folder);
}

}  // namespace

Application::Application(HINSTANCE instance, const CommandLine& command_line,
                         std::span<const Family> families)
    : command_line_(command_line),
      families_(families),
      ui_{instance, {}, {}},
      settings_(registry_, RegistryRoot(command_line.settings_title)),
      sound_(instance),
      services_{ui_,      settings_, files_, clock_, formatter_,
                colours_, forms_,    *this,  sound_, ProgramFolder(command_line)},
      catalogue_(services_),
      menus_(ui_, *this, [this] { OnSessionEnd(); }),
      update_checker_(ui_, menus_.webDATA(),
                      [this](std::function<void()> work) { menus_.Post(std::move(work)); }),
      tray_(ui_, *this),
      widgets_(catalogue_),
      dialogs_(catalogue_),
      manager_(services_, widgets_) {}

std::wstring Application::InstanceName(const CommandLine& command_line) {
  return command_line.settings_title + L" menus";
}

int Application::Run() {
  Main();
  return RunMessageLoop(ui_);
}

void Application::Main() {
  const HourglassPointer pointer;
  ui_.log.SetFile(services_.program_folder + L"debug.log");
  Guard(ui_.log, L"constants", [this] {
    pages_ = ReadWebAddresses(settings_);
    update_checker_.SetPages(pages_);
  });
  closing_ = false;
  Guard(ui_.log, L"fonts", [this] {
    if (!LoadFontResource(ui_.instance, L"ICONWORKS")) ui_.log.Write(L"no symbol font");
  });
  for (const Family family : families_) {
    Guard(ui_.log, L"family", [&] { family(catalogue_); });
  }
  Guard(ui_.log, L"data folders", [this] {
    for (const FolderSetting& folder : catalogue_.folders()) {
      PrepareFolder(settings_, files_, folder, services_.program_folder);
    }
  });
  Guard(ui_.log, L"theme folders", [this] {
    if (!EnsureThemeFolders(files_, services_.program_folder, colours_)) {
      ui_.log.Write(L"theme presets are missing; the next start writes them");
    }
  });
  Guard(ui_.log, L"manager", [this] {
    // The manager opens the widgets that were open last time.
    if (manager_.WidgetForm::Load()) manager_.StartUp();
  });
  Guard(ui_.log, L"menus", [this] {
    menus_.OnAlarmTick([this] { OnAlarmTick(); });
    menus_.OnShow([this](int widget) { ShowWhatIsAskedFor(widget); });
    menus_.Load(InstanceName(command_line_));
  });
  Guard(ui_.log, L"tray icon", [this] {
    tray_.Unload();
    tray_.Load();
  });
  Guard(ui_.log, L"update check", [this] { CheckForUpdate(0); });
  Guard(ui_.log, L"first window", [this] { ShowStartupWindow(); });
}

void Application::OnAlarmTick() {
  widgets_.DropRetired();
  for (const auto& service : catalogue_.family_services()) service->OnAlarmTick();
}

void Application::ShowStartupWindow() {
  if (command_line_.to_tray || ReadCheck(settings_, kMinimizeOnStart)) {
    HideToTray();
  } else {
    manager_.WidgetForm::Show(true);
  }
  if (command_line_.show >= 0) ShowWhatIsAskedFor(command_line_.show);
}

void Application::ShowManager() {
  if (closing_) return;
  manager_.WidgetForm::Show(true);
  manager_.ThemeRefresh();
}

void Application::HideToTray() {
  manager_.WidgetForm::Show(false);
  manager_.ThemeRefresh();
}

void Application::RegisterRunAtLogon() {
  const std::wstring path = ProgramPath();
  WriteRunAtLogon(settings_, RunValueName(command_line_),
                  RunAtLogonCommand(FolderOf(path), BaseName(path), command_line_));
}

void Application::ShowWhatIsAskedFor(int widget) {
  if (widget < 0) {
    ShowManager();
  } else if (!closing_) {
    manager_.WidgetOpen(widget);
  }
}

void Application::CloseFromOutside(int index) {
  if (index == kManagerIndex) {
    ExitProgram();
  } else {
    manager_.CloseFromOutside(index);
  }
}

void Application::SightChanged(int index) {
  if (index != kManagerIndex && manager_.handle()) manager_.ShowSight(index);
}

void Application::OnSessionEnd() {
  session_ends_ = true;
  const auto save = [this](WidgetForm& form) {
    Guard(ui_.log, L"saving", [&] { form.SaveState(SaveReason::kSessionEnd); });
  };
  save(manager_);
  widgets_.ForEach(save);
}

void Application::ExitProgram() {
  // All are asked before any closes; at the session's end nobody is there to answer.
  if (closing_ || (!session_ends_ && !widgets_.AllMayClose())) return;
  closing_ = true;
  Guard(ui_.log, L"tray icon", [this] { tray_.Unload(); });
  Guard(ui_.log, L"manager", [this] { manager_.WidgetForm::Unload(); });
  widgets_.ForEach(
      [this](WidgetForm& widget) { Guard(ui_.log, L"widget", [&] { widget.Unload(); }); });
  dialogs_.ForEach([this](Dialog& dialog) { Guard(ui_.log, L"dialog", [&] { dialog.Close(); }); });
  Guard(ui_.log, L"menus", [this] { menus_.Unload(); });
  ::PostQuitMessage(0);
}

void Application::OpenPage(const std::wstring& address) {
  OpenWebPage(menus_.handle(), address);
}

}  // namespace varnel
