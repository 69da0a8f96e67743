// The part of the context menus that is the same everywhere.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/menu.h"
#include "core/widget_index.h"
#include "frame/command.h"

namespace varnel {

struct SharedMenuState {
  std::array<bool, kWidgetCount> available = {};  // widgets that this build has, by index
  std::array<bool, kWidgetCount> open = {};
  bool sizable = false;       // the current widget can be resized by command; else no item does it
  bool has_widget = false;    // there is a current widget at all
  std::wstring widget_title;  // its title
  bool of_tray = false;       // the menu is the tray icon's
  bool on_top = false;        // it is kept above other windows
};

// In the tray icon's menu the item that a double click on the icon stands for is the default one,
// and the commands for one widget name it; the sizes always do. The shared menu with "Show Varnel"
// and "Hide to Tray" as its captions have to read whenever a menu pops up.
std::vector<MenuItem> BuildSharedMenu(const SharedMenuState& state);

}  // namespace varnel
