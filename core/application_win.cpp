#include "core/application_win.h"

#include <exception>
#include <utility>

#include "base/path.h"
#include "base/text.h"
#include "core/core_settings.h"
#include "core/start_options.h"
#include "theme/preset_generator.h"
#include "win/shell.h"
#include "win/single_instance.h"

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
                         const Catalogue& catalogue)
    : command_line_(command_line),
      catalogue_(catalogue),
      ui_{instance, {}, {}},
      settings_(registry_, RegistryRoot(command_line.settings_title)),
      sound_(instance),
      services_{ui_,      settings_, files_, clock_, formatter_,
                colours_, forms_,    *this,  sound_, ProgramFolder(command_line)},
      menus_(ui_, *this, [this] { SaveEverything(); }),
      tray_(ui_, *this),
      manager_(services_, *this) {}

std::wstring Application::InstanceName(const CommandLine& command_line) {
  return command_line.settings_title + L" menus";
}

template <class Step>
void Application::Guarded(const wchar_t* name, Step step) {
  try {
    step();
  } catch (const std::exception& fault) {
    ui_.log.Write(std::wstring(name) + L" failed: " + WideFromUtf8(fault.what()));
  } catch (...) {
    ui_.log.Write(std::wstring(name) + L" failed");
  }
}

int Application::Run() {
  Main();
  return RunMessageLoop();
}

void Application::Main() {
  const HourglassPointer pointer;
  ui_.log.SetFile(services_.program_folder + L"debug.log");
  Guarded(L"constants", [this] {
    version_ = VersionText(VARNEL_VERSION_MAJOR, VARNEL_VERSION_MINOR);
    pages_ = ReadWebAddresses(settings_);
  });
  closing_ = false;
  Guarded(L"fonts", [this] {
    if (!LoadFontResource(ui_.instance, L"ICONWORKS")) ui_.log.Write(L"no symbol font");
  });
  Guarded(L"data folders", [this] {
    for (const FolderSetting& folder : catalogue_.folders) {
      PrepareFolder(settings_, files_, folder, services_.program_folder);
    }
  });
  Guarded(L"theme folders",
          [this] { EnsureThemeFolders(files_, services_.program_folder, colours_); });
  Guarded(L"manager", [this] {
    // The manager opens the widgets that were open last time.
    if (manager_.WidgetForm::Load()) manager_.StartUp();
  });
  Guarded(L"menus", [this] {
    LoadResidents();
    menus_.Load(InstanceName(command_line_));
  });
  Guarded(L"tray icon", [this] {
    tray_.Unload();
    tray_.Load();
  });
  Guarded(L"update check", [this] { CheckForUpdate(0); });
  Guarded(L"first window", [this] { ShowStartupWindow(); });
}

void Application::LoadResidents() {
  for (const CatalogueDialog& entry : catalogue_.dialogs) {
    if (entry.resident) FindDialog(entry.form_name);
  }
  menus_.OnAlarmTick([this] { OnAlarmTick(); });
}

void Application::OnAlarmTick() {
  std::erase_if(retired_, [](const auto& form) { return !form->busy(); });
  for (AlarmTickListener* listener : tick_listeners_) listener->OnAlarmTick();
}

void Application::ShowStartupWindow() {
  if (command_line_.to_tray || ReadCheck(settings_, kMinimizeOnStart)) {
    HideToTray();
  } else {
    manager_.WidgetForm::Show(true);
  }
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
  varnel::RegisterRunAtLogon(settings_, RunAtLogonCommand(FolderOf(path), BaseName(path)));
}

void Application::CheckForUpdate(int mode) {
  update_mode_ = mode;
  menus_.Post([this] {
    const HourglassPointer pointer;
    menus_.webDATA().Start(pages_.version_file,
                           [this](const HttpResult& page) { UpdateCheckDone(page); });
  });
}

void Application::UpdateCheckDone(const HttpResult& page) {
  if (!page.ok) {
    ui_.log.Write(L"update check: " + page.reason);
    if (update_mode_ == 0) return;
    ShowInformation(menus_.handle(), L"The newest version is not known: " + page.reason + L".",
                    L"No Answer to the Update Check");
  } else if (UpdateAvailable(WideFromUtf8(page.body), version_)) {
    OpenPage(pages_.update);
  } else if (update_mode_ != 0) {
    ShowInformation(menus_.handle(),
                    L"If you are in need of updates due to bugs or whatever then let me know.",
                    L"There Are No Updates Available as Yet");
  }
}

void Application::SaveEverything() {
  Guarded(L"saving", [this] {
    manager_.SavePlace();
    for (const auto& widget : widgets_) {
      if (widget) widget->SavePlace();
    }
  });
}

void Application::ExitProgram() {
  if (std::exchange(closing_, true)) return;
  Guarded(L"tray icon", [this] { tray_.Unload(); });
  Guarded(L"manager", [this] { manager_.WidgetForm::Unload(); });
  for (const auto& widget : widgets_) {
    Guarded(L"widget", [&] {
      if (widget) widget->Unload();
    });
  }
  for (const auto& [name, dialog] : dialogs_) {
    Guarded(L"dialog", [&] { dialog->Close(); });
  }
  Guarded(L"menus", [this] { menus_.Unload(); });
  ::PostQuitMessage(0);
}

bool Application::Available(int index) const {
  for (const CatalogueWidget& entry : catalogue_.widgets) {
    if (entry.index == index) return true;
  }
  return false;
}

bool Application::LoadWidget(int index) {
  if (widgets_[index]) return true;
  for (const CatalogueWidget& entry : catalogue_.widgets) {
    if (entry.index != index) continue;
    auto form = entry.create(services_, *WidgetAt(index), index);
    if (!form->Load()) return false;
    widgets_[index] = std::move(form);
    return true;
  }
  return false;
}

void Application::UnloadWidget(int index) {
  if (!widgets_[index]) return;
  widgets_[index]->Unload();
  // The call may come from one of the form's own handlers, so the form itself goes a little later.
  retired_.push_back(std::move(widgets_[index]));
}

void Application::ShowWidget(int index, bool shown) {
  if (widgets_[index]) widgets_[index]->Show(shown);
}

void Application::BringToFront() {
  for (const auto& widget : widgets_) {
    if (widget && widget->visible()) ::BringWindowToTop(widget->handle());
  }
}

void Application::ArrangeAll() {
  for (const auto& widget : widgets_) {
    if (widget) widget->MoveToDefaultPlace();
  }
}

void Application::OpenSupportPage() {
  OpenPage(pages_.support);
}

void Application::OpenPage(const std::wstring& address) {
  OpenWebPage(menus_.handle(), address);
}

}  // namespace varnel
