// What is opened again and again for months must give everything back. The system tells no counts,
// so they are taken by using up what is left.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/shared_menu.h"
#include "core/theme_preview_win.h"
#include "theme/system_colours_win.h"
#include "widgets/calculator/log_list_win.h"
#include "win/popup_menu.h"

namespace varnel {
namespace {

// How many more menus the system gives.
int FreeMenus() {
  std::vector<UniqueMenu> menus;
  while (UniqueMenu menu{::CreatePopupMenu()}) menus.push_back(std::move(menu));
  return static_cast<int>(menus.size());
}

// How many more drawing objects the system gives.
int FreeDrawingObjects() {
  std::vector<UniqueBrush> brushes;
  while (UniqueBrush brush{::CreateSolidBrush(0x123456)}) brushes.push_back(std::move(brush));
  return static_cast<int>(brushes.size());
}

TEST(Leaks, AThousandMenusLeaveNothingBehind) {
  const std::vector<MenuItem> items = BuildSharedMenu({});
  const auto open = [&] { ASSERT_GE(::GetMenuItemCount(BuildPopupMenu(items).get()), 10); };
  for (int i = 0; i < 10; ++i) open();
  FreeMenus();
  const int before = FreeMenus();
  for (int i = 0; i < 1000; ++i) open();
  // Each menu is four with its submenus; the count itself drifts by a few.
  EXPECT_NEAR(FreeMenus(), before, 20);
}

TEST(Leaks, AThousandThemesPaintedLeaveNothingBehind) {
  Ui ui;
  Surface surface({200, 130});
  const auto paint = [&](int i) {
    ThemeRecord theme;
    theme.lngTHEMECOLOR = i * 15'485;
    theme.lngTHEMECONTRAST = i % 256;
    theme.lngTHEMEBARFONTANGLE = i;
    PaintThemePreview(ui, surface, theme, kManagerForm, 96, UserSystemColours());
    PaintSwatch(surface.dc(), {10, 10, 40, 24}, theme.lngTHEMECOLOR, 96, UserSystemColours());
  };
  for (int i = 0; i < 10; ++i) paint(i);
  const int before = FreeDrawingObjects();
  for (int i = 0; i < 1000; ++i) paint(i);
  EXPECT_EQ(FreeDrawingObjects(), before);
}

class LogOwner : public Window {
 public:
  explicit LogOwner(Ui& ui)
      : Window(ui),
        list(
            ui, [](LogList::Line line) { return std::to_wstring(line) + L" + 0 = 1.0"; },
            [](LogList::Line) {}) {
    Creation creation;
    creation.class_name = L"VarnelLogOwner";
    creation.style = WS_POPUP | WS_VISIBLE;
    creation.place = {0, 0, 300, 200};
    EXPECT_TRUE(Create(creation) && list.Load(handle(), 1));
  }

  LogList list;

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_NOTIFY) return list.OnNotify(*reinterpret_cast<NMHDR*>(lparam));
    return Window::OnMessage(message, wparam, lparam);
  }
};

TEST(Leaks, LogsShownLeaveNothingBehind) {
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  LogOwner owner(ui);
  const auto show = [&](int i) {
    LogListLook look;
    look.text.font = {L"Tahoma", 10 + i % 20, false};
    look.text.ground = i * 15'485;
    owner.list.Place({10, 10, 100 + i % 190, 190}, look);
    owner.list.ShowLines(static_cast<std::size_t>(i), static_cast<std::size_t>(i));
    owner.list.Select(static_cast<std::size_t>(i / 2));
    ::RedrawWindow(owner.handle(), nullptr, nullptr,
                   RDW_ALLCHILDREN | RDW_INVALIDATE | RDW_UPDATENOW);
    ui.fonts.Trim(0);
  };
  for (int i = 0; i < 40; ++i) show(i);
  const int before = FreeDrawingObjects();
  for (int i = 0; i < 100; ++i) show(i);
  // The list view keeps a few of its own.
  EXPECT_NEAR(FreeDrawingObjects(), before, 20);
  EXPECT_EQ(owner.list.Selected(), std::vector<LogList::Line>{49});
}

}  // namespace
}  // namespace varnel
