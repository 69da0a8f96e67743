// The dialogs: made from the catalogue when they are first opened, kept until the program ends.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "core/widget_catalogue_win.h"

namespace varnel {

class DialogShelf {
 public:
  // `catalogue` outlives the shelf.
  explicit DialogShelf(const Catalogue& catalogue) : catalogue_(catalogue) {}

  // Whether this build has the dialog of that form name.
  bool Has(std::wstring_view form) const;

  // Opens the dialog of that form name, or brings it to the front. Null when there is none or it
  // cannot be made.
  Dialog* Open(std::wstring_view form, HWND owner);

  // Calls `work` for every dialog that was made, open or not.
  void ForEach(const std::function<void(Dialog&)>& work) const;

 private:
  const Catalogue& catalogue_;
  std::map<std::wstring, std::unique_ptr<Dialog>, std::less<>> dialogs_;
};

}  // namespace varnel
