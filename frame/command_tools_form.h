// A widget's commands with the buttons that run them.
#pragma once

#include <utility>
#include <vector>

#include "frame/command_table.h"
#include "frame/text_buttons_form.h"

namespace varnel {

class CommandTools : public CommandTable {
 public:
  // `buttons` stand on `owner`, and both outlive the commands.
  CommandTools(Window& owner, TextButtons& buttons, Program& program, std::vector<Rows> menus)
      : CommandTable(program, std::move(menus)), owner_(owner), buttons_(buttons) {}

  // Makes the command's button; the tooltip tells the key behind the word. Null makes none.
  void AddTool(int id, const Command* command);
  // Greys the buttons of commands that cannot be used.
  void RefreshTools();
  // A button was clicked; false when it runs no command.
  bool OnTool(int id) const;
  // Opens a menu of commands below a button.
  void DropMenu(int id, const std::vector<MenuItem>& items) const;

 private:
  Window& owner_;
  TextButtons& buttons_;
  std::vector<std::pair<int, const Command*>> tools_;
};

}  // namespace varnel
