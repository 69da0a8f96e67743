// The open widgets' windows: made from the catalogue when they are wanted, dropped when it is safe.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <vector>

#include "core/manager_form.h"
#include "core/widget_catalogue_win.h"

namespace varnel {

class WidgetShelf : public WidgetHost {
 public:
  // `catalogue` outlives the shelf.
  explicit WidgetShelf(const Catalogue& catalogue) : catalogue_(catalogue) {}

  bool Available(int index) const override;
  bool LoadWidget(int index) override;
  bool MayClose(int index) override;
  void UnloadWidget(int index) override;
  void ShowWidget(int index, bool shown) override;
  Sight SightOfWidget(int index) const override;
  void BringToFront() override;
  void ArrangeAll(WidgetForm& manager) override;

  // Asks every open widget's form in turn, up to the first that is to stay; false then.
  bool AllMayClose();

  // Calls `work` for every open widget, in the order of their indexes.
  void ForEach(const std::function<void(WidgetForm&)>& work) const;

  // Lets go of the forms that were unloaded while one of their handlers was at work, as far as that
  // has ended. To be called now and then, from no form's handler.
  void DropRetired();

 private:
  const Catalogue& catalogue_;
  std::array<std::unique_ptr<WidgetForm>, kWidgetCount> widgets_;
  std::vector<std::unique_ptr<WidgetForm>> retired_;
  bool asking_ = false;
};

}  // namespace varnel
