// The commands of a widget as one table, from which its menus, its keys, its tools with their
// tooltips, and the tests are made. The rows are constant data beside the widget's other rules; the
// widget's form binds what they do.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/menu.h"
#include "frame/command_key.h"
#include "frame/program.h"

namespace varnel {

// The button that runs a command.
struct CommandTool {
  int number = -1;         // in the widget's strip of tools; -1: none
  std::wstring_view word;  // what it is called
  wchar_t glyph = 0;
};

// What stands for a command: in the menu (nowhere where the caption is empty), of keys (the menu
// and the tooltip tell the first), and of buttons.
struct CommandFace {
  std::wstring_view caption;
  CommandKey keys[3] = {};
  CommandTool tool = {};
};

// A command, or a line between two groups of the menu where nothing is given.
struct CommandRow {
  std::wstring_view name;
  CommandFace face;
  std::wstring_view dialog = {};  // what it opens, where this build has the dialog
  // An array of commands: `array` with the element's number in parentheses is the name of one. They
  // are the submenu of this row.
  std::wstring_view array = {};
  std::span<const CommandFace> elements = {};
};

inline constexpr CommandRow kMenuLine{};

// What a command does, when it can be used (without `usable`: always), and when it is on (without
// `checked`: never).
struct CommandDeed {
  std::wstring name;
  std::function<void()> run;
  std::function<bool()> usable = {};
  std::function<bool()> checked = {};
};

class CommandTable {
 public:
  using Rows = std::span<const CommandRow>;

  // One command; valid as long as the table.
  struct Command {
    const CommandFace* face;
    const CommandRow* row;
    std::uint16_t id;
    CommandDeed deed = {};
  };

  // `menus`, one after the other, outlive the table; as `program` does.
  CommandTable(Program& program, std::vector<Rows> menus);

  // Gives commands their deeds; a name that is no command's throws std::invalid_argument. What has
  // neither deed nor dialog can never be used.
  void Bind(std::vector<CommandDeed> deeds);
  // The same for the elements 0 to `count` - 1 of an array.
  void BindArray(std::wstring_view array, int count, const std::function<void(int)>& run,
                 const std::function<bool(int)>& checked = {});

  // Null where there is none.
  const Command* OfName(std::wstring_view name) const;
  const Command* OfTool(int number) const;
  // A key that runs a command only in the list or the text goes before one that does so anywhere.
  const Command* OfKey(const CommandKey& pressed, Focus focus) const;

  bool Usable(const Command& command) const;
  // Runs it where it can be used. False for null.
  bool Run(const Command* command) const;
  // The same for what was chosen in a menu.
  bool Run(int id) const;

  // As it stands now.
  std::vector<MenuItem> Menu(std::size_t menu = 0) const;
  MenuItem Item(const Command& command) const;

 private:
  Program& program_;
  std::vector<Rows> menus_;
  std::vector<Command> commands_;  // each array's elements after its row
};

// What the menu and the tooltip tell as the key; empty where there is none, or only one in the
// list, which another key may be elsewhere.
std::wstring KeyToldOf(const CommandFace& face);

// The full name of an array's element, as "mnuDCWIDGETS(3)".
std::wstring ElementName(std::wstring_view array, std::size_t element);

}  // namespace varnel
