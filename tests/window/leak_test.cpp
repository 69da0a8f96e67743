// What is opened again and again for months must give everything back. The system tells no counts,
// so they are taken by using up what is left.
#include <gtest/gtest.h>

#include <vector>

#include "core/shared_menu.h"
#include "core/theme_preview_win.h"
#include "theme/system_colours_win.h"
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

}  // namespace
}  // namespace varnel
