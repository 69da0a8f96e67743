#include <gtest/gtest.h>

#include <array>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "core/core_settings.h"
#include "core/widget_index.h"
#include "core/widget_states.h"
#include "frame/sizes.h"
#include "tests/support/cases.h"
#include "tests/support/memory_settings.h"

namespace varnel {
namespace {

TEST(WidgetIndex, NamesEveryWidgetOnce) {
  const test::Cases<const wchar_t*, const wchar_t*, const wchar_t*> expected = {
      {L"frmCLKwg", L"Start-Load-Clock", L"Alarm Clock Theme Settings"},
      {L"frmCLCwg", L"Start-Load-Calc", L"Calculator Theme Settings"},
      {L"frmCALwg", L"Start-Load-Calendar", L"Calendar Theme Settings"},
      {L"frmNOTwg", L"Start-Load-Notes", L"Notes Theme Settings"},
      {L"frmSTWwg", L"Start-Load-Stopwatch", L"Stopwatch Theme Settings"},
      {L"frmCDNwg", L"Start-Load-Timer", L"Countdown Theme Settings"},
      {L"frmWBDwg", L"Start-Load-Whiteboard", L"Whiteboard Theme Settings"},
      {L"frmWTHwg", L"Start-Load-Weather", L"Weather Theme Settings"}};
  int index = 0;
  for (const auto& [form, flag, caption] : expected) {
    const WidgetEntry* widget = WidgetAt(index);
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(widget->index, index++);
    EXPECT_EQ(widget->start_load.name, flag);
    EXPECT_EQ(widget->theme_caption, caption);
    EXPECT_EQ(WidgetNamed(form), widget);
    EXPECT_EQ(FormNamed(form), widget);
  }
  for (const int bad : {-1, kWidgetCount, 1000}) EXPECT_EQ(WidgetAt(bad), nullptr);
  EXPECT_EQ(WidgetNamed(L"frmVRNwg"), nullptr);
  EXPECT_EQ(FormNamed(L"frmVRNwg"), &kManagerForm);
  EXPECT_EQ(FormNamed(L"frmclkwg"), nullptr);
}

TEST(Sizes, AreThoseOfTheCommands) {
  EXPECT_EQ(FixedSize(0), (Size{7500, 5250}));
  EXPECT_EQ(FixedSize(1), (Size{4950, 3500}));
  EXPECT_EQ(FixedSize(2), (Size{2400, 1600}));
  EXPECT_EQ(DefaultSize(), (Size{5900, 3471}));
  const Size screen{19200, 10804};
  EXPECT_EQ(ScreenPartSize(screen, 0), screen);
  EXPECT_EQ(ScreenPartSize(screen, 1), (Size{9600, 5402}));
  EXPECT_EQ(ScreenPartSize(screen, 3), (Size{2400, 1350}));  // 1350.5
  EXPECT_EQ(ScreenPartSize({15, 7}, 1), (Size{8, 4}));       // 7.5 and 3.5
  for (const int index : {-1, 3}) EXPECT_FALSE(FixedSize(index));
  for (const int index : {-1, 4}) EXPECT_FALSE(ScreenPartSize(screen, index));
}

// Windows that remember what was done to them, and complain about senseless requests.
class FakeWindows : public WidgetWindows {
 public:
  bool Load(int index) override {
    if (broken.contains(index)) return false;
    loaded.insert(index);
    order.push_back(index);
    return true;
  }
  bool MayClose(int index) override {
    EXPECT_TRUE(loaded.contains(index));
    return !busy.contains(index);
  }
  void Unload(int index) override {
    EXPECT_TRUE(loaded.contains(index));
    if (states != nullptr) states->WidgetClose(index);  // a form may report its own end
    loaded.erase(index);
    shown.erase(index);
  }
  void Show(int index, bool on) override {
    EXPECT_TRUE(loaded.contains(index));
    if (on) {
      shown.insert(index);
    } else {
      shown.erase(index);
    }
  }
  void Mark(int index, bool open) override { marks.at(index) = open; }

  std::set<int> broken;
  std::set<int> busy;  // they are to stay
  std::set<int> loaded;
  std::set<int> shown;
  std::vector<int> order;
  std::array<bool, kWidgetCount> marks{};
  WidgetStates* states = nullptr;
};

std::set<int> FlaggedWidgets(const Settings& settings) {
  std::set<int> flagged;
  for (int i = 0; i < kWidgetCount; ++i) {
    if (settings.Read(kStartLoad[i]) == L"True") flagged.insert(i);
  }
  return flagged;
}

TEST(WidgetStates, StartUpLoadsInIndexOrderAndShowsUnlessHidden) {
  for (const wchar_t* mode : {L"Hidden", L"Show", L"hidden", L"nonsense"}) {
    test::MemorySettings settings;
    for (const int index : {6, 1, 3}) WriteFlag(settings, kStartLoad[index], true);
    settings.Write(kShowOrHide, mode);
    FakeWindows windows;
    windows.broken = {3};
    WidgetStates states(settings, windows);
    states.StartUp();
    EXPECT_EQ(windows.order, (std::vector<int>{1, 6}));
    const bool hidden = mode == std::wstring(L"Hidden");
    EXPECT_EQ(windows.shown, hidden ? std::set<int>() : (std::set<int>{1, 6}));
    EXPECT_EQ(settings.Read(kShowOrHide), hidden ? L"Hidden" : L"Show");
    EXPECT_EQ(FlaggedWidgets(settings), (std::set<int>{1, 3, 6}));  // the broken one may recover
    states.WidgetSel(2);
    EXPECT_EQ(windows.shown, (std::set<int>{1, 6}));
  }
}

TEST(WidgetStates, RandomUseAgreesWithAPlainSet) {
  std::mt19937 random(20240607);
  const auto any = [&](int low, int high) {
    return std::uniform_int_distribution(low, high)(random);
  };
  for (int round = 0; round < 50; ++round) {
    test::MemorySettings settings;
    std::set<int> open;
    for (int session = 0; session < 4; ++session) {
      FakeWindows windows;
      WidgetStates states(settings, windows);
      windows.states = &states;
      states.StartUp();
      ASSERT_EQ(windows.loaded, open);
      for (int step = 0; step < 40; ++step) {
        const int index = any(-2, kWidgetCount + 1);
        const bool valid = WidgetAt(index) != nullptr;
        const int action = any(0, 3);
        const bool opens = action == 1 || (action == 0 && !open.contains(index));
        if (action == 0) states.WidgetCheck(index);
        if (action == 1) states.WidgetOpen(index);
        if (action == 2) states.WidgetClose(index);
        if (action == 3) states.WidgetSel(any(0, 8));
        if (valid && opens) open.insert(index);
        if (valid && !opens && action != 3) open.erase(index);
        ASSERT_EQ(windows.loaded, open);
        ASSERT_EQ(FlaggedWidgets(settings), open);
        ASSERT_EQ(states.OpenCount(), static_cast<int>(open.size()));
        for (int i = 0; i < kWidgetCount; ++i) {
          ASSERT_EQ(states.IsOpen(i), open.contains(i));
          ASSERT_EQ(windows.marks[i], open.contains(i));
        }
        if (valid && opens) {
          ASSERT_TRUE(windows.shown.contains(index));
        }
      }
    }
  }
}

TEST(WidgetStates, WhatIsToStayStaysWithItsFlag) {
  test::MemorySettings settings;
  FakeWindows windows;
  WidgetStates states(settings, windows);
  for (const int index : {1, 4, 5}) states.WidgetOpen(index);
  windows.busy = {4};
  states.WidgetCheck(4);
  states.WidgetClose(4);
  states.CloseFromOutside(4);
  states.CloseAll();
  EXPECT_EQ(windows.loaded, (std::set<int>{1, 4, 5})) << "one that is to stay keeps all open";
  states.CloseFromOutside(1);
  states.CloseFromOutside(kWidgetCount);
  EXPECT_EQ(windows.loaded, (std::set<int>{4, 5}));
  EXPECT_EQ(FlaggedWidgets(settings), (std::set<int>{1, 4, 5})) << "only the user closes for good";
  windows.busy.clear();
  states.CloseAll();
  EXPECT_TRUE(windows.loaded.empty());
  EXPECT_EQ(FlaggedWidgets(settings), std::set<int>{1});
}

TEST(WidgetStates, OnlyTheHideModesHide) {
  for (int mode = -1; mode <= 9; ++mode) {
    test::MemorySettings settings;
    FakeWindows windows;
    WidgetStates states(settings, windows);
    states.WidgetOpen(2);
    states.WidgetSel(mode);
    const bool hides = mode == 1 || mode == 6;
    EXPECT_EQ(windows.shown.empty(), hides) << mode;
    EXPECT_EQ(settings.Read(L"frmVRNpr\\Details", L"Start-Show or Hide", L"untouched"),
              hides       ? L"Hidden"
              : mode == 2 ? L"Show"
                          : L"untouched");
  }
}

}  // namespace
}  // namespace varnel
