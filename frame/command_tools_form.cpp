#include "frame/command_tools_form.h"

#include <algorithm>

#include "win/windows/popup_menu.h"

namespace varnel {

void CommandTools::AddTool(int id, const Command* command) {
  if (!command) return;
  const CommandTool& tool = command->face->tool;
  if (!buttons_.Add(id, std::wstring(tool.word), tool.glyph, false)) return;
  buttons_.TellKey(id, KeyToldOf(*command->face));
  tools_.emplace_back(id, command);
}

void CommandTools::RefreshTools() {
  for (const auto& [id, command] : tools_) buttons_.Enable(id, Usable(*command));
}

bool CommandTools::OnTool(int id) const {
  const auto found = std::ranges::find(tools_, id, [](const auto& tool) { return tool.first; });
  return found != tools_.end() && Run(found->second);
}

void CommandTools::DropMenu(int id, const std::vector<MenuItem>& items) const {
  RECT box = {};
  ::GetWindowRect(::GetDlgItem(owner_.handle(), id), &box);
  const Point corner{static_cast<int>(box.left), static_cast<int>(box.bottom)};
  const int chosen = ShowPopupMenu(owner_.handle(), corner, items);
  if (owner_.handle()) Run(chosen);
}

}  // namespace varnel
