// A widget's window between two monitors, the right one twice as sharp. The messages that only
// real monitors bring are sent by hand.
#include <gtest/gtest.h>

#include "frame/window_mover_win.h"
#include "tests/support/memory_settings.h"
#include "win/graphics/system_rect.h"

namespace varnel {
namespace {

const Screens kTwo{{{{0, 0, 600, 700}, 96, {0, 0, 600, 720}}, {{600, 0, 1200, 700}, 192}}, 96};

class MovedWindow : public Window {
 public:
  explicit MovedWindow(Ui& ui)
      : Window(ui), mover(*this, settings, L"frmTest", [] { return kTwo; }) {
    Creation creation;
    creation.class_name = L"VarnelMoved";
    creation.place = mover.Restore(0);
    EXPECT_TRUE(Create(creation));
  }

  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override {
    const auto result = mover.OnMessage(message, wparam, lparam);
    return result ? *result : Window::OnMessage(message, wparam, lparam);
  }
  void Tell(UINT message) { ::SendMessageW(handle(), message, 0, 0); }
  void TellDpi(int dpi, const Rect& suggested) {
    RECT rect = ToSystem(suggested);
    ::SendMessageW(handle(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&rect));
  }

  test::MemorySettings settings;
  WindowMover mover;
};

TEST(WindowMover, IsScaledOnceBetweenMonitors) {
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  MovedWindow window(ui);
  window.mover.Settle({{590 * 15, 1500}, {3000, 2400}});
  EXPECT_EQ(window.screen_rect(), (Rect{400, 100, 600, 260}));
  SIZE scaled = {};
  EXPECT_TRUE(
      ::SendMessageW(window.handle(), WM_GETDPISCALEDSIZE, 192, reinterpret_cast<LPARAM>(&scaled)));
  EXPECT_EQ((Size{static_cast<int>(scaled.cx), static_cast<int>(scaled.cy)}), (Size{400, 320}));

  window.mover.Settle({{600 * 15, 1500}, {3000, 2400}});
  const Rect right = {600, 100, 1000, 420};
  EXPECT_EQ(window.screen_rect(), right);
  window.TellDpi(192, {600, 100, 1400, 740});  // what the system makes of the size it already has
  EXPECT_EQ(window.screen_rect(), right);
  EXPECT_EQ(window.settings.Read(L"frmTest\\Window", L"Width", L""), L"3000");
}

TEST(WindowMover, FullScreenSizeLastsOverBroadcasts) {
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  MovedWindow window(ui);
  window.mover.Settle({{750, 750}, {3000, 2400}});
  window.mover.SetSize({600 * 15, 720 * 15});
  for (const UINT message : {WM_SETTINGCHANGE, WM_DISPLAYCHANGE}) {
    window.Tell(message);
    EXPECT_EQ(window.screen_rect(), (Rect{0, 0, 600, 720}));
  }
  window.mover.SetSize({3000, 2400});
  EXPECT_EQ(window.screen_rect(), (Rect{50, 50, 250, 210})) << "back at its corner";
}

TEST(WindowMover, ABroadcastDoesNotTakeTheWindowFromTheMouse) {
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  MovedWindow window(ui);
  window.mover.Settle({{750, 750}, {3000, 2400}});
  window.mover.DragByGrip();
  PlaceWindow(window.handle(), {50, 50, 333, 333});
  window.Tell(WM_SETTINGCHANGE);
  EXPECT_EQ(window.screen_rect(), (Rect{50, 50, 333, 333}));
  ::ReleaseCapture();
  EXPECT_FALSE(window.mover.dragging());
  EXPECT_EQ(window.screen_rect(), (Rect{50, 50, 250, 210}));
}

}  // namespace
}  // namespace varnel
