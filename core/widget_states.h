// Which widgets are open: the model behind the manager's tiles and the widgets submenu.
#pragma once

#include <array>

#include "base/settings.h"
#include "core/widget_index.h"

namespace varnel {

// The widgets' windows; indexes are always valid.
class WidgetWindows {
 public:
  virtual ~WidgetWindows() = default;
  // Creates the window, hidden; one that is there stays as it is. False when there is none
  // afterwards.
  virtual bool Load(int index) = 0;
  // Asks what has to be asked before a loaded window goes; false when it is to stay.
  virtual bool MayClose(int index) = 0;
  virtual void Unload(int index) = 0;
  virtual void Show(int index, bool shown) = 0;
  // Sets the tile's star and the check mark in the submenu.
  virtual void Mark(int index, bool open) = 0;
};

// The check marks, held here, are the one record of what is open. Opening and closing by the user
// write the widget's start-up flag. An index that is no widget's does nothing.
class WidgetStates {
 public:
  // Both outlive the states.
  WidgetStates(Settings& settings, WidgetWindows& windows);

  bool IsOpen(int index) const;
  int OpenCount() const;

  // Loads the widgets whose flag is set, in the order of their indexes, then hides or shows them
  // all as they were last time.
  void StartUp();

  // Closes a widget that is open, opens one that is not.
  void WidgetCheck(int index);
  // Loads the widget, not yet shown, when its flag is set.
  void WidgetCheckOnLoad(int index);
  // Loads and shows. A widget that cannot be loaded stays closed and keeps its flag.
  void WidgetOpen(int index);
  // A widget whose window is to stay stays, with its flag.
  void WidgetClose(int index);
  // Asks for all open widgets, then closes them; one that is to stay keeps all open.
  void CloseAll();
  // As WidgetClose, but the flag stays: another program closes the window, perhaps every window,
  // and the next start is to open what the user had open.
  void CloseFromOutside(int index);

  // 1 and 6 hide every open widget, 2 shows them; the next start does the same. Other modes are not
  // about the windows and do nothing here.
  void WidgetSel(int mode);

 private:
  void SetMark(int index, bool open);
  // Closes what nothing has to be asked for any more.
  void Close(int index);
  void ShowAll(bool shown);

  Settings& settings_;
  WidgetWindows& windows_;
  std::array<bool, kWidgetCount> open_{};
};

}  // namespace varnel
