#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "core/widget_index.h"
#include "frame/arrange.h"
#include "frame/placement.h"
#include "frame/sizes.h"
#include "tests/support/boxes.h"
#include "tests/support/cases.h"
#include "tests/support/garbage_values.h"
#include "tests/support/memory_settings.h"

namespace varnel {
namespace {

using test::Inside;
using test::Overlap;

const Screens kOne{{{{0, 0, 1280, 770}, 96}}, 96};
// The primary one in the middle, a sharper one on its left, one above it.
const Screens kThree{
    {{{0, 40, 1920, 1080}, 96}, {{-2560, -300, 0, 1140}, 144}, {{100, -1024, 1380, 0}, 96}}, 96};
const Place kFallback{{150, 750}, {5900, 3471}};

class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  int Any(int low, int high) { return std::uniform_int_distribution(low, high)(engine_); }

  // One to four monitors side by side, task bars on any edge, the primary one anywhere.
  Screens AnyScreens() {
    constexpr int kResolutions[] = {96, 120, 144, 192, 240};
    Screens screens;
    int left = Any(-6000, 0);
    for (int count = Any(1, 4); count > 0; --count) {
      const Size size{Any(640, 3840), Any(480, 2160)};
      Rect area = RectAt({left, Any(-1500, 1500)}, size);
      left = area.right;
      int* edges[] = {&area.left, &area.top, &area.right, &area.bottom};
      const int edge = Any(0, 3);
      *edges[edge] += edge < 2 ? 40 : -40;
      screens.monitors.push_back({area, kResolutions[Any(0, 4)]});
    }
    std::ranges::shuffle(screens.monitors, engine_);
    screens.system_dpi = screens.monitors.front().dpi;
    return screens;
  }

  std::wstring AnyValue() {
    if (Any(0, 1) == 0) return NumberText(Any(-40'000, 40'000));
    if (Any(0, 1) == 0) return NumberText(Any(-2'000'000, 2'000'000));
    return garbage_[Any(0, static_cast<int>(garbage_.size()) - 1)];
  }

 private:
  std::mt19937 engine_;
  const std::vector<std::wstring> garbage_ = test::GarbageValues();
};

Place Restored(const Settings& settings, std::wstring_view form, const Place& fallback,
               const Screens& screens) {
  return FitPlace(ReadPosition(settings, form, fallback, true), screens);
}

bool OnSomeMonitor(const Rect& pixels, const Screens& screens) {
  return std::ranges::any_of(
      screens.monitors, [&](const Monitor& monitor) { return Inside(pixels, monitor.work_area); });
}

TEST(Grid, SnapsToTheNearestLineHalvesToTheEvenOne) {
  const test::Cases<int, int> cases = {
      {0, 0},     {70, 0},     {74, 0},      {75, 0},      {76, 150},   {80, 150},
      {225, 300}, {220, 150},  {370, 300},   {375, 300},   {380, 450},  {-70, 0},
      {-75, 0},   {-80, -150}, {-225, -300}, {-375, -300}, {1500, 1500}};
  for (const auto& [from, to] : cases) {
    Point corner{from, 300};
    SnappedPosition old{-15'000, 300};
    EXPECT_TRUE(SnapToGrid(corner, old));
    EXPECT_EQ(corner, (Point{to, 300})) << from;
    EXPECT_EQ(old.lngLEFTOLD, to);
    corner = {300, from};
    EXPECT_TRUE(SnapToGrid(corner, old) || to == 300);
    EXPECT_EQ(corner, (Point{300, to}));
    EXPECT_EQ(old.lngTOPOLD, to);
    EXPECT_FALSE(SnapToGrid(corner, old));
  }
  for (const int extreme : {std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
    Point corner{extreme, extreme};
    SnappedPosition old;
    SnapToGrid(corner, old);
    EXPECT_EQ(corner.x % kGridStep, 0);
    EXPECT_LT(std::abs(corner.x / 2 - extreme / 2), kGridStep);
  }
}

TEST(KeepOnScreen, BringsWindowsInsideTheNearestWorkArea) {
  const test::Cases<Screens, Rect, Point> cases = {
      {kOne, {100, 100, 400, 300}, {100, 100}},
      {kOne, {1100, 100, 1400, 300}, {980, 100}},
      {kOne, {-50, -60, 250, 140}, {0, 0}},
      {kOne, {5000, 5000, 5300, 5200}, {980, 570}},
      {kOne, {-100, 700, 2000, 1700}, {0, 0}},             // larger than the screen
      {kThree, {100, 0, 400, 200}, {100, 40}},             // under a task bar at the top
      {kThree, {-200, 100, 100, 300}, {-300, 100}},        // more of it on the left monitor
      {kThree, {-100, 100, 200, 300}, {0, 100}},           // more of it on the primary one
      {kThree, {1500, -400, 1800, -200}, {1080, -400}},    // beside the upper one
      {kThree, {-3000, 2000, -2700, 2200}, {-2560, 940}},  // far below the left one
      {Screens{}, {-3000, 2000, -2700, 2200}, {-3000, 2000}},
  };
  for (const auto& [screens, from, to] : cases) {
    const Place place = PlaceFromPixels(from, {}, screens);
    const Place kept = KeepOnScreen(place, screens);
    const Rect pixels = PixelsFromPlace(kept, screens);
    EXPECT_EQ((Point{pixels.left, pixels.top}), to);
    EXPECT_EQ(kept.size, place.size);
  }
}

TEST(KeepOnScreen, AnyWindowOnAnyMonitors) {
  Dice dice(1);
  for (int i = 0; i < 2000; ++i) {
    const Screens screens = dice.AnyScreens();
    const Place window{{dice.Any(-300'000, 300'000), dice.Any(-300'000, 300'000)},
                       {dice.Any(15, 3600), dice.Any(15, 2640)}};
    const Place kept = KeepOnScreen(window, screens);
    ASSERT_TRUE(OnSomeMonitor(PixelsFromPlace(kept, screens), screens));
    ASSERT_EQ(KeepOnScreen(kept, screens), kept);
  }
}

TEST(FitPlace, ConvertsSizesByTheMonitorAndPositionsByTheSystem) {
  const Place on_left{{-15'000, 1500}, {2400, 1600}};
  const Rect pixels = PixelsFromPlace(on_left, kThree);
  EXPECT_EQ(pixels, RectAt({-1000, 100}, {240, 160}));
  EXPECT_EQ(PlaceFromPixels(pixels, {}, kThree), on_left);
  EXPECT_EQ(FitPlace(on_left, kThree), on_left);
}

TEST(FitPlace, LeavesWhatFitsToTheTwip) {
  const Place odd{{157, 1003}, {5903, 3471}};  // no multiples of a pixel
  EXPECT_EQ(FitPlace(odd, kOne), odd);
  EXPECT_EQ(KeepOnScreen(odd, kOne), odd);
  EXPECT_EQ(PlaceFromPixels(PixelsFromPlace(odd, kOne), odd, kOne), odd);
  const Place too_far{{18'000, 1003}, {5903, 3471}};
  EXPECT_EQ(FitPlace(too_far, kOne), (Place{{(1280 - 394) * 15, 1003}, {5903, 3471}}));
  const Place too_large{{0, 0}, {30'000, 3471}};
  EXPECT_EQ(FitPlace(too_large, kOne), (Place{{0, 0}, {1280 * 15, 3471}}));
  EXPECT_EQ(FitPlace(odd, Screens{}), odd);
  const Screens tiny{{{{0, 0, 100, 50}, 96}}, 96};
  EXPECT_EQ(PixelsFromPlace(FitPlace(too_far, tiny), tiny), (Rect{0, 0, 160, 107}));
}

TEST(SizeGrip, KeepsToTheGridTheSmallestSizeAndTheScreen) {
  const test::Cases<Place, Size> cases = {
      {{{1500, 1500}, {5900, 3471}}, {5850, 3450}},
      {{{1500, 1500}, {2475, 2475}}, {2400, 2400}},  // 16.5 steps
      {{{1500, 1500}, {100, -900}}, kSmallestSize},
      {{{1500, 1500}, {90'000, 90'000}}, {1180 * 15, 670 * 15}},
      {{{18'900, 11'400}, {6000, 6000}}, kSmallestSize},
  };
  for (const auto& [place, size] : cases) EXPECT_EQ(SnapSize(place, kOne), size);
  EXPECT_EQ(SnapSize({{0, 0}, {90'000, 90'000}}, Screens{}), (Size{90'000, 90'000}));
}

TEST(SizeGrip, AStepInOneDirectionLeavesTheOtherLength) {
  const Place odd{{1500, 1500}, {5905, 3471}};
  EXPECT_EQ(SteppedSize(odd, kGridStep, 0, kOne), (Size{6000, 3471}));
  EXPECT_EQ(SteppedSize(odd, 0, -kGridStep, kOne), (Size{5905, 3300}));
  EXPECT_EQ(SteppedSize({{0, 0}, {2405, 90'000}}, -kGridStep, 0, kOne), (Size{2400, 90'000}));
}

TEST(FitPlace, LeavesTheWholeScreenToWhatIsExactlyAsLarge) {
  // The task bar is above; the second monitor is sharper.
  const Screens screens{{{{0, 40, 1280, 800}, 96, {0, 0, 1280, 800}},
                         {{1280, 0, 3840, 1400}, 192, {1280, 0, 3840, 1440}}},
                        96};
  const Place whole{{1500, 1500}, {1280 * 15, 800 * 15}};
  EXPECT_EQ(PixelsFromPlace(FitPlace(whole, screens), screens), (Rect{0, 0, 1280, 800}));
  const Place sharp{{1300 * 15, 1500}, {19'200, 10'800}};
  EXPECT_EQ(PixelsFromPlace(FitPlace(sharp, screens), screens), (Rect{1280, 0, 3840, 1440}));
  const Place less{{1500, 1500}, {1280 * 15, 799 * 15}};
  EXPECT_EQ(PixelsFromPlace(FitPlace(less, screens), screens), screens.monitors[0].work_area);
}

TEST(RestAfterDrag, OnTheMonitorThatShowsMostWithItsSize) {
  const Screens screens{{{{0, 0, 1280, 800}, 96}, {{1280, 0, 3840, 1440}, 192}}, 96};
  const Place meant{{1500, 1500}, {6000, 3000}};  // 400 x 200 pixels, 800 x 400 on the right
  struct Drop {
    Rect seen;
    Rect rest;
  };
  const Drop drops[] = {
      {{1100, 100, 1500, 300}, {1280, 100, 2080, 500}},  // more than half is on the right
      {{1000, 104, 1400, 304}, {880, 100, 1280, 300}},
      {{1000, 100, 1800, 500}, {1280, 100, 2080, 500}},  // scaled by the system on its way
      {{2004, 96, 2804, 496}, {2000, 100, 2800, 500}},
  };
  for (const auto& [seen, rest] : drops) {
    SnappedPosition old;
    const Place place = RestAfterDrag(seen, meant, old, screens);
    EXPECT_EQ(PixelsFromPlace(place, screens), rest);
    EXPECT_EQ(place.size, meant.size);
    EXPECT_EQ(FitPlace(place, screens), place);
  }
  SnappedPosition old;
  EXPECT_EQ(RestAfterDrag({104, 95, 504, 295}, meant, old, Screens{}).corner, (Point{1500, 1500}));
}

// Whether the window could stand elsewhere on the grid, a step away from edges and all others.
bool HasRoomElsewhere(std::size_t window, const std::vector<Rect>& seen, const Screens& screens) {
  const int gap = PixelsFromTwips(kGridStep, screens.system_dpi);
  const Rect& area = screens.monitors.front().work_area;
  const auto first_line = [&](int edge) {
    return TwipsFromPixels(edge, screens.system_dpi) / kGridStep * kGridStep;
  };
  const Size size{seen[window].width(), seen[window].height()};
  const auto is_free = [&](const Rect& rect) {
    for (std::size_t i = 0; i < seen.size(); ++i) {
      if (i != window && Overlap(rect, Inset(seen[i], -gap))) return false;
    }
    return Inside(rect, {area.left + gap, area.top + gap, area.right, area.bottom});
  };
  Rect rect;
  for (int y = first_line(area.top); rect.top < area.bottom; y += kGridStep) {
    rect = RectAt({area.left, PixelsFromTwips(y, screens.system_dpi)}, size);
    for (int x = first_line(area.left); rect.left < area.right; x += kGridStep) {
      rect = RectAt({PixelsFromTwips(x, screens.system_dpi), rect.top}, size);
      if (is_free(rect)) return true;
    }
  }
  return false;
}

TEST(Arranged, WindowsStandApartUnlessThereIsNoRoom) {
  Dice dice(5);
  int apart = 0;
  for (int round = 0; round < 100; ++round) {
    const Screens screens = dice.AnyScreens();
    const Monitor& primary = screens.monitors.front();
    std::vector<Size> sizes;
    for (int count = dice.Any(1, 9); count > 0; --count) {
      sizes.push_back({dice.Any(2400, 9000), dice.Any(1600, 6000)});
    }
    const std::vector<Place> places = Arranged(sizes, screens);
    ASSERT_EQ(places.size(), sizes.size());
    std::vector<Rect> seen;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
      EXPECT_EQ(places[i].size, sizes[i]);
      EXPECT_EQ(places[i].corner.x % kGridStep, 0);
      EXPECT_EQ(places[i].corner.y % kGridStep, 0);
      seen.push_back(PixelsFromPlace(FitPlace(places[i], screens), screens));
      EXPECT_TRUE(Inside(seen.back(), primary.work_area)) << round;
    }
    for (std::size_t i = 0; i < seen.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        const bool across = Overlap(seen[i], seen[j]);
        apart += across ? 0 : 1;
        EXPECT_FALSE(across && HasRoomElsewhere(i, seen, screens) &&
                     HasRoomElsewhere(j, seen, screens))
            << round;
      }
    }
  }
  EXPECT_GT(apart, 1000);
}

TEST(Arranged, NineOfTheFirstSizeFillAScreen) {
  const std::vector<Size> sizes(9, DefaultSize());
  std::vector<Rect> seen;
  for (const Place& place : Arranged(sizes, kOne)) seen.push_back(PixelsFromPlace(place, kOne));
  test::ExpectApart(seen, kOne.monitors.front().work_area);
  EXPECT_EQ(seen[1], RectAt({420, 10}, {393, 231}));
  EXPECT_TRUE(Arranged(sizes, Screens{}).empty());
}

TEST(DefaultPlace, TilesThePrimaryMonitor) {
  EXPECT_EQ(DefaultPlace(kManagerIndex, kOne), (Place{{150, 150}, DefaultSize()}));
  EXPECT_EQ(DefaultPlace(0, kOne).corner, (Point{6300, 150}));
  EXPECT_EQ(DefaultPlace(2, kOne).corner, (Point{150, 3750}));
  EXPECT_EQ(DefaultPlace(7, kOne).corner, (Point{12'450, 7350}));
  EXPECT_EQ(DefaultPlace(99, kOne), DefaultPlace(kManagerIndex, kOne));
  EXPECT_EQ(DefaultPlace(0, Screens{}).corner, (Point{6300, 150}));
  std::vector<Rect> taken;
  for (int index = kManagerIndex; index < kWidgetCount; ++index) {
    const Place place = DefaultPlace(index, kThree);
    EXPECT_EQ(place.corner.x % kGridStep, 0);
    EXPECT_EQ(place.corner.y % kGridStep, 0);
    taken.push_back(PixelsFromPlace(place, kThree));
  }
  test::ExpectApart(taken, kThree.monitors[0].work_area);
}

TEST(DefaultPlace, IsOnThePrimaryMonitorWhateverItsSize) {
  Dice dice(2);
  for (int i = 0; i < 500; ++i) {
    const Screens screens = dice.AnyScreens();
    for (int index = kManagerIndex; index < kWidgetCount; ++index) {
      const Rect pixels = PixelsFromPlace(DefaultPlace(index, screens), screens);
      ASSERT_TRUE(Inside(pixels, screens.monitors[0].work_area));
    }
  }
}

TEST(WindowMemory, KeepsPlaceAndSize) {
  test::MemorySettings settings;
  const Place place{{-9000, 450}, {4955, 3508}};
  SavePosition(settings, L"frmCLKwg", WindowState::kNormal, place, true);
  EXPECT_EQ(settings.Read(L"frmCLKwg\\Window", L"Window State", L""), L"0");
  EXPECT_EQ(settings.Read(L"frmCLKwg\\Window", L"Left", L""), L"-9000");
  EXPECT_EQ(settings.Read(L"frmCLKwg\\Window", L"Height", L""), L"3508");
  EXPECT_EQ(Restored(settings, L"frmCLKwg", kFallback, kThree), place);
  EXPECT_EQ(Restored(settings, L"frmCLCwg", kFallback, kThree), kFallback);
  EXPECT_EQ(ReadPosition(settings, L"frmCLKwg", kFallback, false).size, kFallback.size);
}

TEST(WindowMemory, KeepsOnlyTheStateOfAWindowThatIsNotNormal) {
  test::MemorySettings settings;
  const Place place{{1500, 1500}, {4950, 3500}};
  SavePosition(settings, L"frmCLKwg", WindowState::kNormal, place, false);
  EXPECT_EQ(settings.values.size(), 3u);
  SavePosition(settings, L"frmCLKwg", WindowState::kMinimised, {}, true);
  EXPECT_EQ(settings.values.size(), 3u);
  EXPECT_EQ(settings.Read(L"frmCLKwg\\Window", L"Window State", L""), L"1");
  EXPECT_EQ(ReadPosition(settings, L"frmCLKwg", kFallback, true),
            (Place{place.corner, kFallback.size}));
}

TEST(WindowMemory, AWindowReturnsWithItsMonitor) {
  test::MemorySettings settings;
  const Place place{{-30'000, 3000}, {4950, 3500}};
  SavePosition(settings, L"frmNOTwg", WindowState::kNormal, place, true);
  Screens unplugged = kThree;
  unplugged.monitors.erase(unplugged.monitors.begin() + 1);
  const Place wish = ReadPosition(settings, L"frmNOTwg", kFallback, true);
  EXPECT_EQ(FitPlace(wish, unplugged), (Place{{0, 3000}, {4950, 3500}}));
  EXPECT_EQ(FitPlace(wish, kThree), place);
}

TEST(WindowMemory, EveryWindowIsReachableWhateverIsStored) {
  Dice dice(3);
  for (int i = 0; i < 1000; ++i) {
    const Screens screens = dice.AnyScreens();
    test::MemorySettings settings;
    for (int index = kManagerIndex; index < kWidgetCount; ++index) {
      const std::wstring form(index < 0 ? kManagerForm.form_name : WidgetAt(index)->form_name);
      for (const wchar_t* name : {L"Window State", L"Left", L"Top", L"Width", L"Height"}) {
        if (dice.Any(0, 4) > 0) settings.Write(form + L"\\Window", name, dice.AnyValue());
      }
      const Place place = Restored(settings, form, DefaultPlace(index, screens), screens);
      ASSERT_TRUE(OnSomeMonitor(PixelsFromPlace(place, screens), screens));
      ASSERT_EQ(FitPlace(place, screens), place);
      ASSERT_GE(std::min(place.size.width, place.size.height), 600);
    }
  }
}

}  // namespace
}  // namespace varnel
