// What a build of the program consists of, told to the core by the one place that knows every room.
#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "core/widget_index.h"
#include "frame/data_folder.h"
#include "frame/family_service.h"
#include "frame/pages/print_desk_win.h"
#include "frame/services.h"
#include "frame/widget_form.h"
#include "win/windows/dialog.h"

namespace varnel {

struct CatalogueWidget {
  int index;  // of the widget table
  std::function<std::unique_ptr<WidgetForm>()> create;
};

struct CatalogueDialog {
  std::wstring_view form_name;
  std::function<std::unique_ptr<Dialog>()> create;
};

class Catalogue {
 public:
  // `services` outlive the catalogue and all that it makes.
  explicit Catalogue(Services& services)
      : services_(services), printing_(AddService<PrintDesk>()) {}
  Catalogue(const Catalogue&) = delete;
  Catalogue& operator=(const Catalogue&) = delete;

  // Makes an object that lives as long as the program.
  template <class Service>
  Service& AddService() {
    auto service = std::make_unique<Service>(services_);
    Service& made = *service;
    family_services_.push_back(std::move(service));
    return made;
  }

  // What every family with pages prints through.
  PrintDesk& printing() const { return printing_; }

  // Says how the widget of that number (of the widget table), or the dialog of that name, is made
  // when it is wanted. `family` are the family services that its constructor takes at its end.
  template <class Form, class... Family>
  void AddWidget(int index, Family&... family) {
    widgets_.push_back({index, [this, index, &family...] {
                          return std::make_unique<Form>(services_, *WidgetAt(index), index,
                                                        family...);
                        }});
  }
  template <class Form, class... Family>
  void AddDialog(std::wstring_view form_name, Family&... family) {
    dialogs_.push_back(
        {form_name, [this, &family...] { return std::make_unique<Form>(services_, family...); }});
  }

  // A folder of documents, made at start-up when it is missing.
  void AddFolder(const FolderSetting& folder) { folders_.push_back(folder); }

  std::span<const std::unique_ptr<FamilyService>> family_services() const {
    return family_services_;
  }
  std::span<const CatalogueWidget> widgets() const { return widgets_; }
  std::span<const CatalogueDialog> dialogs() const { return dialogs_; }
  std::span<const FolderSetting> folders() const { return folders_; }

 private:
  Services& services_;
  std::vector<std::unique_ptr<FamilyService>> family_services_;
  PrintDesk& printing_;
  std::vector<CatalogueWidget> widgets_;
  std::vector<CatalogueDialog> dialogs_;
  std::vector<FolderSetting> folders_;
};

// Enters what one family consists of.
using Family = void (*)(Catalogue& catalogue);

}  // namespace varnel
