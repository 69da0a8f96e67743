#include "win/windows/popup_menu.h"

namespace varnel {

UniqueMenu BuildPopupMenu(const std::vector<MenuItem>& items) {
  UniqueMenu menu(::CreatePopupMenu());
  for (const MenuItem& item : items) {
    if (item.caption.empty()) {
      ::AppendMenuW(menu.get(), MF_SEPARATOR, 0, nullptr);
      continue;
    }
    UINT flags = MF_STRING | (item.enabled ? MF_ENABLED : MF_GRAYED) |
                 (item.checked ? MF_CHECKED : MF_UNCHECKED);
    const std::wstring text = item.key.empty() ? item.caption : item.caption + L"\t" + item.key;
    if (item.children.empty()) {
      ::AppendMenuW(menu.get(), flags, static_cast<UINT_PTR>(item.id), text.c_str());
      if (item.is_default) ::SetMenuDefaultItem(menu.get(), static_cast<UINT>(item.id), FALSE);
      continue;
    }
    UniqueMenu submenu = BuildPopupMenu(item.children);
    // The parent menu destroys its submenus.
    if (::AppendMenuW(menu.get(), flags | MF_POPUP, reinterpret_cast<UINT_PTR>(submenu.get()),
                      text.c_str())) {
      submenu.release();
    }
  }
  return menu;
}

int ShowPopupMenu(HWND owner, Point point, const std::vector<MenuItem>& items) {
  const UniqueMenu menu = BuildPopupMenu(items);
  ::SetForegroundWindow(owner);
  const int chosen = ::TrackPopupMenuEx(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, point.x,
                                        point.y, owner, nullptr);
  // The system needs one more message to see that the menu's owner has lost the foreground.
  ::PostMessageW(owner, WM_NULL, 0, 0);
  return chosen;
}

}  // namespace varnel
