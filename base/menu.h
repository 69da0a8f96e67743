// A menu as plain data, so that what it offers can be tested without opening it.
#pragma once

#include <string>
#include <vector>

namespace varnel {

struct MenuItem {
  int id = 0;            // what choosing the item gives; 0 for a separator or a submenu
  std::wstring caption;  // "&" before the mnemonic; empty for a separator
  std::wstring key;      // the key that does the same, as shown at the right; may be empty
  bool checked = false;
  bool enabled = true;
  bool is_default = false;         // shown in bold; at most one in a menu
  std::vector<MenuItem> children;  // not empty: a submenu
};

inline MenuItem MenuSeparator() {
  return {};
}

}  // namespace varnel
