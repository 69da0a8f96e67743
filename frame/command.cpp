#include "frame/command.h"

#include <string>

#include "base/number_text.h"

namespace varnel {

MenuItem ItemOf(const Command& command, bool enabled, bool checked) {
  MenuItem item;
  item.id = CommandId(command.name);
  item.caption = command.caption;
  item.key = command.key;
  item.enabled = enabled;
  item.checked = checked;
  return item;
}

std::uint16_t ArrayCommandId(std::wstring_view name, int index) {
  return CommandId(std::wstring(name) + L"(" + NumberText(index) + L")");
}

int ArrayCommandIndex(std::wstring_view name, int count, int id) {
  for (int i = 0; i < count; ++i) {
    if (ArrayCommandId(name, i) == id) return i;
  }
  return -1;
}

}  // namespace varnel
