// The application: owns every service and form, starts the program and ends it.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>

#include "core/command_line.h"
#include "core/manager_form.h"
#include "core/menus_form.h"
#include "core/settings_store.h"
#include "core/tray_form.h"
#include "core/update_check.h"
#include "core/widget_catalogue_win.h"
#include "frame/alarm_tick.h"
#include "theme/system_colours_win.h"
#include "win/disk_files.h"
#include "win/local_time.h"
#include "win/sound.h"
#include "win/system_registry.h"

namespace varnel {

class Application : public Program, private WidgetHost {
 public:
  Application(HINSTANCE instance, const CommandLine& command_line, const Catalogue& catalogue);

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
  void CheckForUpdate(int mode) override;
  void WidgetCheck(int index) override { manager_.WidgetCheck(index); }
  Dialog* FindDialog(std::wstring_view form) override;
  void OpenDialog(std::wstring_view form) override;
  bool HasDialog(std::wstring_view form) const override;
  void SetCurrentWidget(std::wstring_view form) override { current_widget_ = form; }
  LiveForm& CurrentForm() override;
  std::vector<MenuItem> SharedMenu() const override;
  void RunCommand(int id) override;

 private:
  // One step of starting or ending the program: what fails in it is logged and skipped.
  template <class Step>
  void Guarded(const wchar_t* name, Step step);

  bool Available(int index) const override;
  bool LoadWidget(int index) override;
  void UnloadWidget(int index) override;
  void ShowWidget(int index, bool shown) override;
  void BringToFront() override;
  void ArrangeAll() override;
  void OpenSupportPage() override;

  void Main();
  void LoadResidents();
  void OnAlarmTick();
  void ShowStartupWindow();
  void UpdateCheckDone(const HttpResult& page);
  void SaveEverything();
  // Null when no menu was opened yet, or its widget is closed.
  LiveForm* OpenCurrentForm() const { return forms_.Find(current_widget_); }
  void RunSizeCommand(int id);
  void OpenPage(const std::wstring& address);
  void ShowHelp();

  CommandLine command_line_;
  const Catalogue& catalogue_;
  Ui ui_;
  SystemRegistry registry_;
  SettingsStore settings_;
  DiskFiles files_;
  SystemClock clock_;
  SystemTimeFormatter formatter_;
  UserSystemColours colours_;
  FormRegistry forms_;
  Sound sound_;
  Services services_;
  std::wstring version_;
  WebAddresses pages_;
  bool closing_ = false;
  int update_mode_ = 0;
  std::wstring current_widget_;
  MenusForm menus_;
  TrayForm tray_;
  ManagerForm manager_;
  std::array<std::unique_ptr<WidgetForm>, kWidgetCount> widgets_;
  std::vector<std::unique_ptr<WidgetForm>> retired_;  // unloaded, but perhaps still at work
  std::map<std::wstring, std::unique_ptr<Dialog>, std::less<>> dialogs_;
  std::vector<AlarmTickListener*> tick_listeners_;  // among the dialogs
};

}  // namespace varnel
