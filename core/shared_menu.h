// The part of the context menus that is the same everywhere.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/menu.h"
#include "core/command_id.h"
#include "core/widget_index.h"

namespace varnel {

// One menu command: its name, what the user reads, and the key that does the same.
struct Command {
  std::wstring_view name;
  std::wstring_view caption;
  std::wstring_view key = {};
};

// Keeps the current widget above other windows, or no longer.
inline constexpr std::wstring_view kTopCommand = L"mnuDCTOP";

MenuItem ItemOf(const Command& command, bool enabled = true, bool checked = false);

struct SharedMenuState {
  std::array<bool, kWidgetCount> available = {};  // widgets that this build has, by index
  std::array<bool, kWidgetCount> open = {};
  bool sizable = false;       // the current widget can be resized by command
  bool has_widget = false;    // there is a current widget at all
  bool on_top = false;        // it is kept above other windows
  bool theme_dialog = false;  // dialogs that this build has
  bool about_dialog = false;
  bool donation_dialog = false;
  bool other_apps_dialog = false;
};

// The shared menu with "Show Varnel" and "Hide to Tray" as its captions have to read whenever a
// menu pops up.
std::vector<MenuItem> BuildSharedMenu(const SharedMenuState& state);

// The names of the commands in a menu array: ArrayCommandId(L"mnuDCWIDGETS", 3).
std::uint16_t ArrayCommandId(std::wstring_view name, int index);

// The element of the array `name` (with `count` elements) that `id` stands for, or -1.
int ArrayCommandIndex(std::wstring_view name, int count, int id);

}  // namespace varnel
