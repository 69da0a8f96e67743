#include "core/dialog_shelf_win.h"

#include <algorithm>

namespace varnel {

bool DialogShelf::Has(std::wstring_view form) const {
  return std::ranges::count(catalogue_.dialogs(), form, &CatalogueDialog::form_name) > 0;
}

Dialog* DialogShelf::Open(std::wstring_view form, HWND owner) {
  auto made = dialogs_.find(form);
  if (made == dialogs_.end()) {
    const auto entries = catalogue_.dialogs();
    const auto entry = std::ranges::find(entries, form, &CatalogueDialog::form_name);
    if (entry == entries.end()) return nullptr;
    made = dialogs_.emplace(std::wstring(form), entry->create()).first;
  }
  Dialog& dialog = *made->second;
  return dialog.Open(owner) ? &dialog : nullptr;
}

void DialogShelf::ForEach(const std::function<void(Dialog&)>& work) const {
  for (const auto& [name, dialog] : dialogs_) work(*dialog);
}

}  // namespace varnel
