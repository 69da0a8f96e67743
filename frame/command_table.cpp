#include "frame/command_table.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/number_text.h"
#include "frame/command_id.h"

namespace varnel {
namespace {

bool IsLine(const CommandRow& row) {
  return row.name.empty();
}

}  // namespace

CommandTable::CommandTable(Program& program, std::vector<Rows> menus)
    : program_(program), menus_(std::move(menus)) {
  for (const Rows& rows : menus_) {
    for (const CommandRow& row : rows) {
      if (IsLine(row)) continue;
      commands_.push_back({&row.face, &row, CommandId(row.name)});
      for (std::size_t i = 0; i < row.elements.size(); ++i) {
        commands_.push_back({&row.elements[i], &row, CommandId(ElementName(row.array, i))});
      }
    }
  }
}

void CommandTable::Bind(std::vector<CommandDeed> deeds) {
  for (CommandDeed& deed : deeds) {
    const auto found = std::ranges::find(commands_, CommandId(deed.name), &Command::id);
    if (found == commands_.end()) throw std::invalid_argument("no such command");
    found->deed = std::move(deed);
  }
}

void CommandTable::BindArray(std::wstring_view array, int count,
                             const std::function<void(int)>& run,
                             const std::function<bool(int)>& checked) {
  for (int i = 0; i < count; ++i) {
    CommandDeed deed{ElementName(array, static_cast<std::size_t>(i)), [run, i] { run(i); }};
    if (checked) deed.checked = [checked, i] { return checked(i); };
    Bind({std::move(deed)});
  }
}

const CommandTable::Command* CommandTable::OfName(std::wstring_view name) const {
  const auto found = std::ranges::find(commands_, CommandId(name), &Command::id);
  return found == commands_.end() ? nullptr : &*found;
}

const CommandTable::Command* CommandTable::OfTool(int number) const {
  const auto found = std::ranges::find_if(commands_, [number](const Command& command) {
    return number >= 0 && command.face->tool.number == number;
  });
  return found == commands_.end() ? nullptr : &*found;
}

const CommandTable::Command* CommandTable::OfKey(const CommandKey& pressed, Focus focus) const {
  const Command* anywhere = nullptr;
  for (const Command& command : commands_) {
    for (const CommandKey& key : command.face->keys) {
      if (key.code == 0 || key.code != pressed.code || key.held != pressed.held) continue;
      if (!Reaches(key, focus)) continue;
      if (key.place != KeyPlace::kAnywhere) return &command;
      anywhere = &command;
    }
  }
  return anywhere;
}

bool CommandTable::Usable(const Command& command) const {
  const CommandDeed& deed = command.deed;
  if (deed.usable && !deed.usable()) return false;
  return deed.run || (!command.row->dialog.empty() && program_.HasDialog(command.row->dialog));
}

bool CommandTable::Run(const Command* command) const {
  if (!command) return false;
  if (!Usable(*command)) return true;
  if (command->deed.run) {
    command->deed.run();
  } else {
    program_.OpenDialog(command->row->dialog);
  }
  return true;
}

bool CommandTable::Run(int id) const {
  // What stands in no menu cannot be chosen, whatever its number.
  const auto found = std::ranges::find_if(commands_, [id](const Command& command) {
    return command.id == id && !command.face->caption.empty();
  });
  return found != commands_.end() && Run(&*found);
}

MenuItem CommandTable::Item(const Command& command) const {
  MenuItem item;
  item.id = command.id;
  item.caption = command.face->caption;
  item.key = KeyToldOf(*command.face);
  item.checked = command.deed.checked && command.deed.checked();
  const bool submenu = command.face == &command.row->face && !command.row->elements.empty();
  item.enabled = submenu || Usable(command);
  if (!submenu) return item;
  const auto first = commands_.begin() + (&command - commands_.data()) + 1;
  for (auto element = first; element != commands_.end() && element->row == command.row; ++element) {
    item.children.push_back(Item(*element));
  }
  return item;
}

std::vector<MenuItem> CommandTable::Menu(std::size_t menu) const {
  std::vector<MenuItem> items;
  if (menu >= menus_.size()) return items;
  for (const CommandRow& row : menus_[menu]) {
    if (IsLine(row)) {
      items.push_back(MenuSeparator());
    } else if (!row.face.caption.empty()) {
      items.push_back(Item(*OfName(row.name)));
    }
  }
  return items;
}

std::wstring KeyToldOf(const CommandFace& face) {
  const CommandKey& key = face.keys[0];
  return key.place == KeyPlace::kList ? std::wstring() : KeyText(key);
}

std::wstring ElementName(std::wstring_view array, std::size_t element) {
  return std::wstring(array) + L"(" + NumberText(static_cast<long long>(element)) + L")";
}

}  // namespace varnel
