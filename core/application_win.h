// The application: owns every service and form, starts the program and ends it.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/logged_files.h"
#include "core/command_line.h"
#include "core/dialog_shelf_win.h"
#include "core/manager_form.h"
#include "core/menus_form.h"
#include "core/settings_store.h"
#include "core/shared_menu.h"
#include "core/tray_form.h"
#include "core/update_checker_win.h"
#include "core/widget_catalogue_win.h"
#include "core/widget_shelf_win.h"
#include "theme/system_colours_win.h"
#include "win/files/disk_files.h"
#include "win/system/local_time.h"
#include "win/system/sound.h"
#include "win/system/system_registry.h"

namespace varnel {

class Application : public Program {
 public:
  Application(HINSTANCE instance, const CommandLine& command_line,
              std::span<const Family> families);

  // Starts the program, runs it until its last form is gone, and gives the process's exit code.
  int Run();

  // The title of the hidden form by which a second start finds the first one with the same
  // settings.
  static std::wstring InstanceName(const CommandLine& command_line);

  bool closing() const override { return closing_; }
  void ExitProgram() override;
  void ShowManager() override;
  void HideToTray() override;
  void RegisterRunAtLogon() override;
  void CheckForUpdate(int mode) override { update_checker_.CheckForUpdate(mode); }
  void WidgetCheck(int index) override { manager_.WidgetCheck(index); }
  void CloseFromOutside(int index) override;
  void SightChanged(int index) override;
  void OpenDialog(std::wstring_view form) override;
  bool HasDialog(std::wstring_view form) const override { return dialogs_.Has(form); }
  void SetCurrentWidget(std::wstring_view form) override { current_widget_ = form; }
  LiveForm& CurrentForm() override;
  std::vector<MenuItem> SharedMenu() const override { return BuildSharedMenu(MenuState()); }
  std::vector<MenuItem> TrayMenu() const override;
  void RunCommand(int id) override;

 private:
  void Main();
  void OnAlarmTick();
  void ShowStartupWindow();
  // The manager, or the widget of that index.
  void ShowWhatIsAskedFor(int widget);
  void OnSessionEnd();
  // Null when no menu was opened yet, or its widget is closed.
  LiveForm* OpenCurrentForm() const { return forms_.Find(current_widget_); }
  SharedMenuState MenuState() const;
  void RunSizeCommand(int id);
  void OpenPage(const std::wstring& address);

  CommandLine command_line_;
  std::span<const Family> families_;
  Ui ui_;
  SystemRegistry registry_;
  SettingsStore settings_;
  DiskFiles disk_;
  LoggedFiles files_{disk_, [this](std::wstring_view line) { ui_.log.Write(line); }};
  SystemClock clock_;
  SystemTimeFormatter formatter_;
  UserSystemColours colours_;
  FormRegistry forms_;
  Sound sound_;
  Services services_;
  Catalogue catalogue_;
  WebAddresses pages_;
  bool closing_ = false;
  bool session_ends_ = false;
  std::wstring current_widget_;
  MenusForm menus_;
  UpdateChecker update_checker_;
  TrayForm tray_;
  WidgetShelf widgets_;
  DialogShelf dialogs_;
  ManagerForm manager_;
};

}  // namespace varnel
