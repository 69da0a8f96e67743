// What a build of the program consists of, told to the core by the one place that knows every room.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "frame/data_folder.h"
#include "frame/services.h"
#include "frame/widget_form.h"
#include "win/dialog.h"

namespace varnel {

struct CatalogueWidget {
  int index;  // of the widget table
  std::unique_ptr<WidgetForm> (*create)(Services& services, const FormEntry& entry, int index);
};

struct CatalogueDialog {
  std::wstring_view form_name;
  std::unique_ptr<Dialog> (*create)(Services& services);
  bool resident = false;  // made at start-up, not when first opened
};

struct Catalogue {
  std::span<const CatalogueWidget> widgets;
  std::span<const CatalogueDialog> dialogs;
  std::span<const FolderSetting> folders;  // made at start-up when they are missing
};

// For catalogue entries: makes a form or dialog of that class.
template <class Form>
std::unique_ptr<WidgetForm> MakeWidget(Services& services, const FormEntry& entry, int index) {
  return std::make_unique<Form>(services, entry, index);
}
template <class Form>
std::unique_ptr<Dialog> MakeDialog(Services& services) {
  return std::make_unique<Form>(services);
}

}  // namespace varnel
