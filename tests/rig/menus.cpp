#include "tests/rig/menus.h"

#include <algorithm>

#include "frame/command.h"

namespace varnel::rig {
namespace {

constexpr std::wstring_view kMenuClass = L"#32768";
constexpr std::wstring_view kMenusForm = L"frmSTRmn";

// How many menus the program has open, submenus counted.
int OpenMenus(const Program& program) {
  const std::vector<HWND> menus = FindForms(program, kMenuClass);
  return static_cast<int>(std::count_if(menus.begin(), menus.end(), IsShown));
}

// Menus are shown before the program takes mouse and keys for them.
bool TakesInputForMenus(const Program& program) {
  GUITHREADINFO info = {};
  info.cbSize = sizeof info;
  const DWORD thread = ::GetWindowThreadProcessId(FindForm(program, kMenusForm), nullptr);
  return ::GetGUIThreadInfo(thread, &info) && (info.flags & GUI_INMENUMODE);
}

bool PostCommand(HWND form, std::uint16_t id) {
  return form && ::PostMessageW(form, WM_COMMAND, MAKEWPARAM(id, 0), 0);
}

// Comes after the first windows when the program starts.
HWND MenusForm(const Program& program) {
  WaitUntil([&] { return !program.running() || FindForm(program, kMenusForm) != nullptr; });
  return FindForm(program, kMenusForm);
}

}  // namespace

void Choose(HWND form, std::wstring_view command) {
  PostCommand(form, CommandId(command));
}

void Choose(HWND form, std::wstring_view array, int index) {
  PostCommand(form, ArrayCommandId(array, index));
}

bool ChooseShared(const Program& program, std::wstring_view command) {
  return PostCommand(MenusForm(program), CommandId(command));
}

bool ChooseShared(const Program& program, std::wstring_view array, int index) {
  return PostCommand(MenusForm(program), ArrayCommandId(array, index));
}

std::optional<DWORD> LeaveByMenu(const Program& program, int deadline) {
  if (!ChooseShared(program, L"mnuDCEXIT")) return std::nullopt;
  return program.WaitForExit(deadline);
}

bool WaitForMenus(const Program& program, int count, int deadline) {
  return WaitUntil(
      [&] { return OpenMenus(program) == count && TakesInputForMenus(program) == (count > 0); },
      deadline);
}

}  // namespace varnel::rig
