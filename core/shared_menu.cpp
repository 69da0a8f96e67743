#include "core/shared_menu.h"

#include <string>

#include "core/widget_index.h"

namespace varnel {
namespace {

MenuItem Submenu(std::wstring_view caption, std::vector<MenuItem> children) {
  MenuItem item;
  item.caption = caption;
  item.children = std::move(children);
  return item;
}

MenuItem ArrayItem(std::wstring_view name, int index, std::wstring_view caption) {
  MenuItem item;
  item.id = ArrayCommandId(name, index);
  item.caption = caption;
  return item;
}

constexpr std::wstring_view kWidgetCaptions[kWidgetCount] = {
    L"&Clock",     L"C&alculator", L"Cal&endar",   L"&Notes",
    L"&Stopwatch", L"Count&down",  L"&Whiteboard", L"Wea&ther"};

std::vector<MenuItem> WidgetItems(const SharedMenuState& state) {
  std::vector<MenuItem> items;
  for (int i = 0; i < kWidgetCount; ++i) {
    MenuItem item = ArrayItem(L"mnuDCWIDGETS", i, kWidgetCaptions[i]);
    item.enabled = state.available[i];
    item.checked = state.open[i];
    items.push_back(std::move(item));
  }
  return items;
}

std::vector<MenuItem> SizeItems() {
  return {ArrayItem(L"mnuWIDGRESETA", 0, L"&Large"),
          ArrayItem(L"mnuWIDGRESETA", 1, L"&Medium"),
          ArrayItem(L"mnuWIDGRESETA", 2, L"&Small"),
          ItemOf({L"mnuWIDGRESETD", L"&Default size"}),
          MenuSeparator(),
          ArrayItem(L"mnuWIDGRESET", 0, L"&Full screen"),
          ArrayItem(L"mnuWIDGRESET", 1, L"&Half of the screen"),
          ArrayItem(L"mnuWIDGRESET", 2, L"&Quarter of the screen"),
          ArrayItem(L"mnuWIDGRESET", 3, L"&Eighth of the screen")};
}

std::vector<MenuItem> HelpItems() {
  return {ItemOf({L"mnuDCHELP", L"&Keys and tips..."}),
          ItemOf({L"mnuDCTUTS", L"&Video tutorials"}),
          ItemOf({L"mnuDCWEB", L"&Support on the web"}),
          ItemOf({L"mnuDCWEBFEEDBACK", L"Send &feedback"}),
          ItemOf({L"mnuDCUPDATES", L"Check for &updates"}),
          MenuSeparator(),
          ItemOf({L"mnuDCMORE", L"&Other apps..."}),
          ItemOf({L"mnuDCDONATE", L"&Donate..."}),
          ItemOf({L"mnuDCABOUT", L"&About Widget Varnel..."})};
}

}  // namespace

std::vector<MenuItem> BuildSharedMenu(const SharedMenuState& state) {
  MenuItem show = ItemOf({L"mnuDCMANAGER", L"Show &Varnel"});
  show.is_default = state.of_tray;
  const bool named = state.of_tray && state.has_widget;
  const std::wstring of_widget = L" of " + state.widget_title;
  const std::wstring top = named ? L"&Keep " + state.widget_title + L" on top" : L"&Keep on top";
  const std::wstring theme = L"&Theme" + (named ? of_widget : L"") + L"...";
  std::vector<MenuItem> items = {Submenu(L"&Widgets", WidgetItems(state)),
                                 ItemOf({L"mnuDCSHOWALL", L"Show &all widgets"}),
                                 ItemOf({L"mnuDCHIDEALL", L"&Hide all widgets"}),
                                 MenuSeparator(),
                                 show,
                                 ItemOf({L"mnuDCMANAGERHIDE", L"Hide to T&ray"}),
                                 MenuSeparator(),
                                 ItemOf({kTopCommand, top}, state.has_widget, state.on_top),
                                 ItemOf({L"mnuDCSETTINGS", theme}, state.has_widget),
                                 ItemOf({L"mnuDCGENSET", L"&Options..."}),
                                 MenuSeparator(),
                                 Submenu(L"H&elp", HelpItems()),
                                 ItemOf({L"mnuDCEXIT", L"E&xit"})};
  constexpr auto kBeforeTop = 7;
  if (state.sizable) {
    items.insert(items.begin() + kBeforeTop, Submenu(L"Si&ze" + of_widget, SizeItems()));
  }
  return items;
}

}  // namespace varnel
