// The program as its forms see it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "base/menu.h"

namespace varnel {

class LiveForm;

class Program {
 public:
  virtual ~Program() = default;

  // True from the beginning of the shutdown on; no bar button reacts to the mouse any more.
  virtual bool closing() const = 0;
  virtual void ExitProgram() = 0;
  virtual void ShowManager() = 0;
  virtual void HideToTray() = 0;
  virtual void RegisterRunAtLogon() = 0;
  // `mode` 0 is the silent check; any other says so when there is no update.
  virtual void CheckForUpdate(int mode) = 0;

  // Opens a closed widget and closes an open one; an unknown index does nothing.
  virtual void WidgetCheck(int index) = 0;
  // Another program has closed the widget's window, or the manager's, which ends the program. What
  // opens at the next start stays as the user left it.
  virtual void CloseFromOutside(int index) = 0;
  // The widget, or the manager, has come into sight or gone out of it.
  virtual void SightChanged(int index) = 0;
  // Opens the dialog of that form name, or brings it to the front; once made it stays until
  // the program ends. Unknown names do nothing.
  virtual void OpenDialog(std::wstring_view form) = 0;
  // Whether this build has the dialog.
  virtual bool HasDialog(std::wstring_view form) const = 0;

  // The widget whose menu was opened last; size, theme and on-top commands act on it.
  virtual void SetCurrentWidget(std::wstring_view form) = 0;
  // Its form; the manager's before any menu was opened, and once it is closed.
  virtual LiveForm& CurrentForm() = 0;
  // The commands common to every menu, as they stand now.
  virtual std::vector<MenuItem> SharedMenu() const = 0;
  // The same for the tray icon, where nothing else tells which widget they act on.
  virtual std::vector<MenuItem> TrayMenu() const = 0;
  // Runs a shared command; an id that is none does nothing.
  virtual void RunCommand(int id) = 0;
};

}  // namespace varnel
