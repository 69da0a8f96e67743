// The thin wrappers around the platform: what they promise beyond it.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <stdexcept>

#include "core/settings_store.h"
#include "tests/rig/input.h"
#include "tests/support/cases.h"
#include "tests/window/window_aid.h"
#include "win/files/disk_files.h"
#include "win/system/local_time.h"
#include "win/system/system_registry.h"
#include "win/windows/message_loop.h"
#include "win/windows/monitors.h"
#include "win/windows/painted_window.h"
#include "win/windows/timer.h"
#include "win/windows/tooltip.h"

namespace varnel {
namespace {

using test::RunMessagesFor;
using test::TemporaryFolder;

constexpr UINT kThrow = WM_APP + 1;

// Fails wherever it is told to.
class TestWindow : public PaintedWindow {
 public:
  explicit TestWindow(Ui& ui) : PaintedWindow(ui) {
    Creation creation;
    creation.class_name = L"VarnelTest";
    creation.place = {20, 20, 120, 120};
    EXPECT_TRUE(Create(creation));
  }
  using Window::Destroy;

  int after_throw = 0;
  bool busy_at_key = false;

 private:
  LRESULT OnMessage(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == kThrow) throw std::runtime_error("a handler that fails");
    if (message == kThrow + 1) return ++after_throw;
    return PaintedWindow::OnMessage(message, wparam, lparam);
  }
  bool OnKey(const MSG&) override {
    busy_at_key = busy();
    throw std::runtime_error("a key that fails");
  }
  void Paint(Surface&) override { throw std::runtime_error("a painting that fails"); }
};

TEST(WindowBase, WhateverThrowsIsLoggedAndTheWindowLivesOn) {
  const std::wstring folder = TemporaryFolder();
  DiskFiles files;
  ASSERT_TRUE(files.CreateFolder(folder));
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  ui.log.SetFile(folder + L"\\debug.log");
  TestWindow window(ui);
  EXPECT_EQ(::SendMessageW(window.handle(), kThrow, 0, 0), 0);
  EXPECT_EQ(::SendMessageW(window.handle(), kThrow + 1, 0, 0), 1);

  // Through the loop, as keys come; what is posted after them still arrives.
  ::PostMessageW(window.handle(), WM_KEYDOWN, 'A', 0);
  ::PostMessageW(window.handle(), kThrow + 1, 0, 0);
  ::PostQuitMessage(7);
  EXPECT_EQ(RunMessageLoop(ui), 7);
  EXPECT_TRUE(window.busy_at_key) << "not the time to delete it";
  EXPECT_EQ(window.after_throw, 2);

  ::ShowWindow(window.handle(), SW_SHOWNOACTIVATE);
  ::RedrawWindow(window.handle(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  EXPECT_FALSE(::GetUpdateRect(window.handle(), nullptr, FALSE)) << "would be painted for ever";

  const FileRead log = files.Read(folder + L"\\debug.log", 10'000);
  for (const char* fault : {"a handler that fails", "a key that fails", "a painting that fails"}) {
    EXPECT_NE(log.bytes.find(fault), std::string::npos) << fault;
  }
  EXPECT_FALSE(window.busy());
  window.Destroy();
  EXPECT_EQ(window.handle(), nullptr);
  files.Remove(folder + L"\\debug.log");
  ::RemoveDirectoryW(folder.c_str());
}

TEST(Timer, NeverAfterStopNorWhileItsHandlerRuns) {
  Ui ui{::GetModuleHandleW(nullptr), {}, {}};
  TestWindow window(ui);
  int ticks = 0;
  int depth = 0;
  Timer timer(window, 10, [&] {
    ++ticks;
    EXPECT_EQ(++depth, 1);
    if (ticks == 1) RunMessagesFor(80);  // as a message box would
    --depth;
  });
  timer.Start();
  RunMessagesFor(60);
  EXPECT_GE(ticks, 1);
  // A tick that is in the queue already does not arrive after the stop.
  ::PostMessageW(window.handle(), WM_TIMER, timer.id(), 0);
  timer.Stop();
  const int before = ticks;
  RunMessagesFor(40);
  EXPECT_EQ(ticks, before);
  window.Destroy();
  timer.Start();  // without a window: nothing
  EXPECT_FALSE(timer.enabled());
}

class TooltipTest : public test::Hosted {
 protected:
  HWND Button(int left) {
    return ::CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE, left, 100, 100, 40,
                             host_.handle(), nullptr, nullptr, nullptr);
  }
  // The tooltip's window, or null; other programs have some, too.
  static HWND TipWindow() {
    HWND found = nullptr;
    const auto look = [](HWND window, LPARAM result) -> BOOL {
      wchar_t name[64] = {};
      ::GetClassNameW(window, name, 64);
      const bool tip = std::wstring_view(name) == TOOLTIPS_CLASSW;
      if (tip) *reinterpret_cast<HWND*>(result) = window;
      return !tip;
    };
    ::EnumThreadWindows(::GetCurrentThreadId(), look, reinterpret_cast<LPARAM>(&found));
    return found;
  }
  // The texts that it holds ready, at the most two.
  static std::vector<std::wstring> Texts() {
    std::vector<std::wstring> texts;
    for (UINT i = 0; i < 2; ++i) {
      wchar_t text[200] = {};
      TTTOOLINFOW tool = {};
      tool.cbSize = sizeof tool;
      tool.lpszText = text;
      if (::SendMessageW(TipWindow(), TTM_ENUMTOOLSW, i, reinterpret_cast<LPARAM>(&tool))) {
        texts.emplace_back(text);
      }
    }
    return texts;
  }
  static bool IsShown() { return ::IsWindowVisible(TipWindow()) != FALSE; }

  Tooltip tooltip_;
};

TEST_F(TooltipTest, HoldsTheTextOfTheLastControlAlone) {
  HWND one = Button(20);
  HWND other = Button(220);
  tooltip_.Attach(host_.handle(), one, L"");
  EXPECT_EQ(TipWindow(), nullptr) << "made for nothing";
  tooltip_.Attach(host_.handle(), one, L"Open & close");
  EXPECT_EQ(Texts(), std::vector<std::wstring>{L"Open & close"});
  tooltip_.Attach(host_.handle(), one, L"Close");
  EXPECT_EQ(Texts(), std::vector<std::wstring>{L"Close"});
  tooltip_.Attach(host_.handle(), other, L"Other");
  EXPECT_EQ(Texts(), std::vector<std::wstring>{L"Other"});
  tooltip_.Attach(host_.handle(), one, L"");
  EXPECT_EQ(Texts(), std::vector<std::wstring>{});
}

TEST_F(TooltipTest, AppearsWhereTheMouseRestsAndGoesWhenDetached) {
  tooltip_.Attach(host_.handle(), Button(20), L"Open");
  rig::ResetInput();
  rig::MoveMouse({100, 150});
  rig::MoveMouse({101, 151});
  ASSERT_TRUE(test::RunMessagesUntil([] { return IsShown(); }, 10'000));
  tooltip_.Detach();
  EXPECT_TRUE(test::RunMessagesUntil([] { return !IsShown(); }));
}

TEST(Monitors, AreThoseOfTheDesktopThePrimaryOneFirst) {
  const std::vector<MonitorInfo> monitors = Monitors();
  ASSERT_FALSE(monitors.empty());
  EXPECT_EQ(monitors[0].area,
            RectAt({0, 0}, {::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)}));
  for (const MonitorInfo& monitor : monitors) {
    EXPECT_FALSE(monitor.work_area.empty());
    EXPECT_EQ(Intersection(monitor.work_area, monitor.area), monitor.work_area);
    EXPECT_GE(monitor.dpi, 72);
    EXPECT_EQ(MonitorAt(Inset(monitor.area, 10)).area, monitor.area);
  }
  // Far from all there is the nearest one.
  for (const Point outside : {Point{-90'000, 0}, Point{0, 90'000}}) {
    const Rect area = MonitorAt(RectAt(outside, {10, 10})).area;
    EXPECT_TRUE(std::ranges::any_of(
        monitors, [&](const MonitorInfo& monitor) { return monitor.area == area; }));
  }
  EXPECT_GE(SystemDpi(), 72);
}

TEST(SystemRegistry, KeepsTheRulesOfTheStoreOnTheRealRegistry) {
  SystemRegistry registry;
  const std::wstring root = L"Varnel Registry Test " + std::to_wstring(::GetCurrentProcessId());
  SettingsStore store(registry, RegistryRoot(root));
  store.Write(L"frmX\\Details", L"plain", L"  a text \x00e4 ");
  EXPECT_EQ(store.Read(L"frmX\\Details", L"plain", L"x"), L"a text \x00e4");
  store.Write(L"frmX\\Details", L"longest", std::wstring(254, L'q'));
  EXPECT_EQ(store.Read(L"frmX\\Details", L"longest", L"x").size(), 254u);
  store.Write(L"frmX\\Details", L"longest", std::wstring(255, L'q'));
  EXPECT_EQ(store.Read(L"frmX\\Details", L"longest", L"x"), L"x");
  HKEY key = nullptr;
  const std::wstring path = L"SOFTWARE\\" + root + L"\\frmX\\Details";
  ASSERT_EQ(::RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_ALL_ACCESS, &key),
            ERROR_SUCCESS);
  const DWORD number = 5;
  ::RegSetValueExW(key, L"number", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), 4);
  ::RegSetValueExW(key, L"expandable", 0, REG_EXPAND_SZ, reinterpret_cast<const BYTE*>(L"%TEMP%"),
                   14);
  ::RegCloseKey(key);
  EXPECT_EQ(store.Read(L"frmX\\Details", L"number", L"x"), L"x");
  EXPECT_EQ(store.Read(L"frmX\\Details", L"expandable", L"x"), L"%TEMP%");
  ::RegDeleteTreeW(HKEY_CURRENT_USER, (L"SOFTWARE\\" + root).c_str());
}

TEST(SystemTimeFormatter, SpeaksThePatternLanguageOfTheClock) {
  const SystemTimeFormatter formatter;
  const LocalTime time{2010, 9, 7, 2, 0, 5, 9};
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"HH", L"00"}, {L":nn", L":05"}, {L"ss", L"09"}, {L":nn:ss", L":05:09"}, {L"d", L"7"}};
  for (const auto& [pattern, text] : cases) EXPECT_EQ(formatter.Format(time, pattern), text);
  const std::wstring date = formatter.Format(time, L"dddd, d mmmm");
  EXPECT_NE(date.find(L", 7 "), std::wstring::npos) << "weekday, day and month";
  EXPECT_FALSE(formatter.Format(time, L"Long Date").empty());
}

}  // namespace
}  // namespace varnel
