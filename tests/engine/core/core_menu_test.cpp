#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "core/shared_menu.h"

namespace varnel {
namespace {

void ForEach(const std::vector<MenuItem>& items, const std::function<void(const MenuItem&)>& see) {
  for (const MenuItem& item : items) {
    see(item);
    ForEach(item.children, see);
  }
}

const MenuItem* Find(const std::vector<MenuItem>& items, std::wstring_view name) {
  const MenuItem* found = nullptr;
  ForEach(items, [&](const MenuItem& item) {
    if (item.id == CommandId(name)) found = &item;
  });
  return found;
}

TEST(SharedMenu, EveryLevelHasUniqueMnemonics) {
  const std::function<void(const std::vector<MenuItem>&)> check =
      [&](const std::vector<MenuItem>& items) {
        std::map<wchar_t, std::wstring> used;
        for (const MenuItem& item : items) {
          check(item.children);
          if (item.caption.empty()) continue;
          const std::size_t mark = item.caption.find(L'&');
          ASSERT_NE(mark, std::wstring::npos) << "no mnemonic in an item";
          const wchar_t letter = item.caption[mark + 1] | 0x20;
          EXPECT_TRUE(used.emplace(letter, item.caption).second)
              << "the mnemonic " << static_cast<char>(letter) << " stands twice in a menu";
        }
      };
  SharedMenuState all;
  all.sizable = true;
  check(BuildSharedMenu(all));
}

TEST(SharedMenu, ShowsTheStateAndGreysWhatCannotBeDone) {
  SharedMenuState state;
  state.available[0] = state.available[1] = true;
  state.open[1] = true;
  auto menu = BuildSharedMenu(state);
  EXPECT_TRUE(Find(menu, L"mnuDCWIDGETS(1)")->checked);
  EXPECT_FALSE(Find(menu, L"mnuDCWIDGETS(0)")->checked);
  EXPECT_TRUE(Find(menu, L"mnuDCWIDGETS(0)")->enabled);
  EXPECT_FALSE(Find(menu, L"mnuDCWIDGETS(3)")->enabled);
  for (const wchar_t* name : {L"mnuDCTOP", L"mnuDCSETTINGS"}) {
    EXPECT_FALSE(Find(menu, name)->enabled) << name;
  }
  state.has_widget = state.on_top = true;
  menu = BuildSharedMenu(state);
  EXPECT_TRUE(Find(menu, L"mnuDCTOP")->checked);
  EXPECT_TRUE(Find(menu, L"mnuDCSETTINGS")->enabled);
}

TEST(SharedMenu, OfTheTrayIconNamesTheWidgetAndHasADefault) {
  SharedMenuState state;
  const auto captions = [&] {
    std::wstring all;
    for (const MenuItem& item : BuildSharedMenu(state)) {
      if (item.is_default) all += L"* ";
      if (item.caption.find_first_of(L"zKT") != std::wstring::npos) all += item.caption + L"; ";
    }
    return all;
  };
  state.has_widget = state.sizable = true;
  state.widget_title = L"Clock";
  EXPECT_EQ(captions(), L"Hide to T&ray; Si&ze of Clock; &Keep on top; &Theme...; ");
  state.of_tray = true;
  EXPECT_EQ(captions(),
            L"* Hide to T&ray; Si&ze of Clock; &Keep Clock on top; &Theme of Clock...; ");
  state.has_widget = state.sizable = false;
  EXPECT_EQ(captions(), L"* Hide to T&ray; &Keep on top; &Theme...; ");
}

TEST(CommandIds, ArrayElementsAreFoundAgain) {
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(ArrayCommandIndex(L"mnuDCWIDGETS", 8, ArrayCommandId(L"mnuDCWIDGETS", i)), i);
  }
  EXPECT_EQ(ArrayCommandIndex(L"mnuDCWIDGETS", 8, CommandId(L"mnuDCEXIT")), -1);
  EXPECT_EQ(CommandId(L"mnuDCEXIT"), 51861) << "the check of all commands counts on it";
}

}  // namespace
}  // namespace varnel
