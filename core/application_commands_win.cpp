// The part of the application that answers the shared menu commands.
#include <algorithm>
#include <optional>

#include "core/application_win.h"
#include "core/core_settings.h"
#include "frame/screens_win.h"
#include "frame/sizes.h"
#include "win/windows/hourglass.h"
#include "win/windows/message_box.h"
#include "win/windows/window.h"

namespace varnel {
namespace {

constexpr Message kHelp{L"Widget Varnel: keys and tips",
                        L"Drag the title bar to move a widget,\n"
                        L"its lower right corner to size it.\n\n"
                        L"Tab, Shift+Tab: go from button to button\n"
                        L"Space, Enter: press the button\n"
                        L"Ctrl+arrow: move the widget by one step\n"
                        L"Ctrl+Shift+arrow: size it by one step\n"
                        L"Shift+F10: open its menu\n"
                        L"Alt+F4: close it\n\n"
                        L"A double click on the icon beside the\n"
                        L"system's clock brings back the manager."};

}  // namespace

void Application::OpenDialog(std::wstring_view form) {
  if (!HasDialog(form)) return;
  const HourglassPointer pointer;
  const Dialog* dialog = dialogs_.Open(form, menus_.handle());
  if (!dialog) {
    ui_.log.Write(L"no window for " + std::wstring(form));
    return;
  }
  // A dialog would otherwise lie beneath a window that is kept on top.
  const auto kept_on_top = [](const auto& entry) { return entry.second->on_top(); };
  KeepOnTop(dialog->handle(), std::ranges::any_of(forms_.all(), kept_on_top));
}

SharedMenuState Application::MenuState() const {
  SharedMenuState state;
  for (int i = 0; i < kWidgetCount; ++i) {
    state.available[i] = widgets_.Available(i);
    state.open[i] = manager_.IsOpen(i);
  }
  const LiveForm* current = OpenCurrentForm();
  state.has_widget = current != nullptr;
  if (current) state.widget_title = current->entry().title;
  state.sizable = current && WidgetNamed(current_widget_);
  state.on_top = current && current->on_top();
  return state;
}

std::vector<MenuItem> Application::TrayMenu() const {
  SharedMenuState state = MenuState();
  state.of_tray = true;
  return BuildSharedMenu(state);
}

LiveForm& Application::CurrentForm() {
  LiveForm* form = OpenCurrentForm();
  return form ? *form : manager_;
}

void Application::RunSizeCommand(int id) {
  LiveForm* form = WidgetNamed(current_widget_) ? OpenCurrentForm() : nullptr;
  if (!form) return;
  std::optional<Size> twips = FixedSize(ArrayCommandIndex(L"mnuWIDGRESETA", 3, id));
  if (id == CommandId(L"mnuWIDGRESETD")) twips = DefaultSize();
  if (const int part = ArrayCommandIndex(L"mnuWIDGRESET", 4, id); part >= 0) {
    twips = ScreenPartSize(ScreenSizeAt(form->Bounds()), part);
  }
  if (!twips) return;
  form->SetSize(twips->width, twips->height);
  form->Form_Resize();
  manager_.WidgetRefresh();
}

void Application::RunCommand(int id) {
  struct Handler {
    std::wstring_view name;
    void (*run)(Application&);
  };
  static constexpr Handler kHandlers[] = {
      {L"mnuDCSHOWALL", [](Application& self) { self.manager_.WidgetSel(2); }},
      {L"mnuDCHIDEALL", [](Application& self) { self.manager_.WidgetSel(1); }},
      {L"mnuDCMANAGER", [](Application& self) { self.ShowManager(); }},
      {L"mnuDCMANAGERHIDE", [](Application& self) { self.HideToTray(); }},
      {kTopCommand,
       [](Application& self) {
         if (LiveForm* form = self.OpenCurrentForm()) form->SetOnTop(!form->on_top());
       }},
      {L"mnuDCSETTINGS", [](Application& self) { self.OpenDialog(L"frmTHEME"); }},
      {L"mnuDCGENSET", [](Application& self) { self.OpenDialog(L"frmVRNpr"); }},
      {L"mnuDCUPDATES", [](Application& self) { self.CheckForUpdate(1); }},
      {L"mnuDCHELP", [](Application&) { Ask(nullptr, kHelp); }},
      {L"mnuDCTUTS", [](Application& self) { self.OpenPage(self.pages_.videos); }},
      {L"mnuDCWEB", [](Application& self) { self.OpenPage(self.pages_.support); }},
      {L"mnuDCWEBFEEDBACK", [](Application& self) { self.OpenPage(self.pages_.feedback); }},
      {L"mnuDCABOUT", [](Application& self) { self.OpenDialog(L"frmABOUT"); }},
      {L"mnuDCDONATE", [](Application& self) { self.OpenDialog(L"frmDONATE"); }},
      {L"mnuDCMORE", [](Application& self) { self.OpenDialog(L"frmMORE"); }},
      {L"mnuDCEXIT", [](Application& self) { self.ExitProgram(); }}};
  if (id == 0 || closing_) return;
  RunSizeCommand(id);
  const int widget = ArrayCommandIndex(L"mnuDCWIDGETS", kWidgetCount, id);
  if (widget >= 0) WidgetCheck(widget);
  for (const Handler& handler : kHandlers) {
    if (CommandId(handler.name) == id) handler.run(*this);
  }
}

}  // namespace varnel
