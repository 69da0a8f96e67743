#include "core/widget_shelf_win.h"

#include <algorithm>
#include <utility>

#include "frame/arrange.h"
#include "frame/screens_win.h"

namespace varnel {

bool WidgetShelf::Available(int index) const {
  return std::ranges::count(catalogue_.widgets(), index, &CatalogueWidget::index) > 0;
}

bool WidgetShelf::LoadWidget(int index) {
  if (widgets_[index]) return true;
  const auto entries = catalogue_.widgets();
  const auto entry = std::ranges::find(entries, index, &CatalogueWidget::index);
  if (entry == entries.end()) return false;
  auto form = entry->create();
  if (!form->Load()) return false;
  widgets_[index] = std::move(form);
  return true;
}

bool WidgetShelf::MayClose(int index) {
  if (!widgets_[index]) return true;
  // While a form asks, messages go on: a second wish to close waits for the answer to the first.
  if (std::exchange(asking_, true)) return false;
  struct Answered {
    bool& asking;
    ~Answered() { asking = false; }
  } answered{asking_};
  return widgets_[index]->MayClose();
}

bool WidgetShelf::AllMayClose() {
  for (int i = 0; i < kWidgetCount; ++i) {
    if (!MayClose(i)) return false;
  }
  return true;
}

void WidgetShelf::UnloadWidget(int index) {
  if (!widgets_[index]) return;
  widgets_[index]->Unload();
  // The call may come from one of the form's own handlers, so the form itself goes a little later.
  retired_.push_back(std::move(widgets_[index]));
}

void WidgetShelf::ShowWidget(int index, bool shown) {
  if (widgets_[index]) widgets_[index]->Show(shown);
}

Sight WidgetShelf::SightOfWidget(int index) const {
  return widgets_[index] ? widgets_[index]->sight() : Sight::kHidden;
}

void WidgetShelf::BringToFront() {
  ForEach([](WidgetForm& widget) {
    if (widget.sight() == Sight::kShown) ::BringWindowToTop(widget.handle());
  });
}

void WidgetShelf::ArrangeAll(WidgetForm& manager) {
  std::vector<WidgetForm*> shown;
  std::vector<Size> sizes;
  const auto add = [&](WidgetForm& form) {
    if (form.sight() != Sight::kShown) return;
    shown.push_back(&form);
    sizes.push_back(form.place().size);
  };
  add(manager);
  ForEach(add);
  const std::vector<Place> places = Arranged(sizes, CurrentScreens());
  for (std::size_t i = 0; i < places.size(); ++i) shown[i]->MoveTo(places[i]);
}

void WidgetShelf::ForEach(const std::function<void(WidgetForm&)>& work) const {
  for (const auto& widget : widgets_) {
    if (widget) work(*widget);
  }
}

void WidgetShelf::DropRetired() {
  std::erase_if(retired_, [](const auto& form) { return !form->busy(); });
}

}  // namespace varnel
