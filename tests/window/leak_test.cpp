// What is opened again and again for months must give everything back. The system tells no counts,
// so they are taken by using up what is left.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/shared_menu.h"
#include "core/widget_index.h"
#include "dialogs/theme/theme_preview_win.h"
#include "tests/support/fake_program.h"
#include "tests/support/memory_files.h"
#include "tests/support/memory_settings.h"
#include "tests/window/drawing_objects.h"
#include "theme/system_colours_win.h"
#include "widgets/time/alarm_service_win.h"
#include "widgets/time/clock_form.h"
#include "win/system/local_time.h"
#include "win/system/sound.h"
#include "win/windows/popup_menu.h"

namespace varnel {
namespace {

// How many more menus the system gives.
int FreeMenus() {
  std::vector<UniqueMenu> menus;
  while (UniqueMenu menu{::CreatePopupMenu()}) menus.push_back(std::move(menu));
  return static_cast<int>(menus.size());
}

// Closes every menu as soon as it has opened.
class MenuOwner : public Window {
 public:
  explicit MenuOwner(Ui& ui) : Window(ui) {
    Creation creation;
    creation.class_name = L"VarnelMenuOwner";
    EXPECT_TRUE(Create(creation));
  }

  int opened = 0;

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_INITMENUPOPUP) {
      ++opened;
      ::PostMessageW(handle(), WM_CANCELMODE, 0, 0);
    }
    return Window::OnMessage(message, wparam, lparam);
  }
};

TEST(Leaks, AThousandMenusOpenedLeaveNothingBehind) {
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  MenuOwner owner(ui);
  const std::vector<MenuItem> items = BuildSharedMenu({});
  const auto open = [&] { ASSERT_EQ(ShowPopupMenu(owner.handle(), {10, 10}, items), 0); };
  for (int i = 0; i < 10; ++i) open();
  FreeMenus();
  const int menus = FreeMenus();
  const int drawing_objects = test::FreeDrawingObjects();
  for (int i = 0; i < 1000; ++i) open();
  // Each menu is four with its submenus; the count itself drifts by a few.
  EXPECT_NEAR(FreeMenus(), menus, 20);
  EXPECT_NEAR(test::FreeDrawingObjects(), drawing_objects, 20);
  EXPECT_EQ(owner.opened, 1010);
}

TEST(Leaks, AThousandThemesPaintedLeaveNothingBehind) {
  Ui ui;
  Surface surface({200, 130});
  const auto paint = [&](int i) {
    ThemeRecord theme;
    theme.lngTHEMECOLOR = i * 15'485;
    theme.lngTHEMECONTRAST = i % 256;
    theme.lngTHEMEBARFONTANGLE = i;
    PaintThemePreview(ui, surface, theme, kManagerForm, 96, true, UserSystemColours());
    PaintSwatch(surface.dc(), {10, 10, 40, 24}, theme.lngTHEMECOLOR, 96, UserSystemColours());
  };
  for (int i = 0; i < 10; ++i) paint(i);
  const int before = test::FreeDrawingObjects();
  for (int i = 0; i < 1000; ++i) paint(i);
  EXPECT_EQ(test::FreeDrawingObjects(), before);
}

class WidgetLeaks : public ::testing::Test {
 protected:
  void Repaint() {
    ::RedrawWindow(form_.handle(), nullptr, nullptr,
                   RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  }

  Ui ui_{::GetModuleHandleW(nullptr), {}, {}};
  test::MemorySettings settings_;
  test::MemoryFiles files_;
  SystemClock clock_;
  SystemTimeFormatter formatter_;
  UserSystemColours colours_;
  FormRegistry forms_;
  test::FakeProgram program_;
  Sound sound_{nullptr};
  Services services_{ui_,      settings_, files_,   clock_, formatter_,
                     colours_, forms_,    program_, sound_, L"C:\\"};
  AlarmService alarms_{services_};
  ClockForm form_{services_, *WidgetAt(0), 0, alarms_};
};

TEST_F(WidgetLeaks, AThousandRepaintsAndThemesLeaveNothingBehind) {
  ASSERT_TRUE(form_.Load());
  form_.Show(true);
  const auto change = [&](int round) {
    form_.theme().lngTHEMECOLOR = round * 7919 % 0xFFFFFF;
    form_.theme().lngTHEMECONTRAST = round % 256;
    form_.ApplyChrome();
    form_.Form_Resize();
    form_.WidgetRefresh();
    Repaint();
  };
  for (int i = 0; i < 20; ++i) change(i);  // fonts and caches
  const int before = test::FreeDrawingObjects();
  for (int i = 0; i < 1000; ++i) Repaint();
  EXPECT_EQ(test::FreeDrawingObjects(), before) << "repaints";
  for (int i = 0; i < 1000; ++i) change(i);
  EXPECT_EQ(test::FreeDrawingObjects(), before) << "theme changes";
}

TEST_F(WidgetLeaks, SizesComeAndGoWithoutLeakingFonts) {
  ASSERT_TRUE(form_.Load());
  form_.Show(true);
  const auto grow = [&] {
    for (int width = 2400; width < 15000; width += 300) {
      form_.SetSize(width, width * 10 / 17);
      Repaint();
    }
  };
  grow();
  const int before = test::FreeDrawingObjects();
  for (int i = 0; i < 5; ++i) grow();
  // Fonts of the sizes seen may be kept, but only a bounded number of them.
  EXPECT_GE(test::FreeDrawingObjects(), before - 250);
}

}  // namespace
}  // namespace varnel
