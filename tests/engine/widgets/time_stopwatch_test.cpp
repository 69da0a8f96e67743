#include <gtest/gtest.h>

#include <random>

#include "base/number_text.h"
#include "tests/support/cases.h"
#include "widgets/time/stopwatch_engine.h"

namespace varnel {
namespace {

void Tick(StopwatchEngine& watch, int times) {
  for (int i = 0; i < times; ++i) watch.Tick();
}

TEST(Stopwatch, CountsInTenthsShownAsSixtieths) {
  const test::Cases<int, const wchar_t*> cases = {
      {0, L"00:00.00"},    {1, L"00:00.06"},     {9, L"00:00.54"},
      {10, L"00:01.00"},   {599, L"00:59.54"},   {600, L"01:00.00"},
      {5999, L"09:59.54"}, {59999, L"99:59.54"}, {60000, L"100:00.00"}};
  StopwatchEngine watch;
  watch.PressLeft();
  int ticked = 0;
  for (const auto& [ticks, shown] : cases) {
    Tick(watch, ticks - ticked);
    ticked = ticks;
    EXPECT_EQ(watch.shown(), shown);
  }
}

// The rules over again with the time as a number of tenths.
struct Model {
  enum { kReset, kRunning, kPaused } state = kReset;
  int tenths = 0;
  int shown = 0;
  bool lapse = false;

  void Tick() {
    if (state != kRunning) return;
    ++tenths;
    if (!lapse) shown = tenths;
  }
  void Left() {
    lapse = lapse && state == kRunning;
    state = state == kRunning ? kPaused : kRunning;
  }
  void Right() {
    if (state == kRunning) {
      lapse = true;
    } else {
      state = kReset;
      tenths = 0;
    }
    shown = tenths;
  }
  std::wstring Shown() const {
    return PaddedNumber(shown / 600, 2) + L":" + PaddedNumber(shown / 10 % 60, 2) + L"." +
           PaddedNumber(shown % 10 * 6, 2);
  }
};

TEST(Stopwatch, TenThousandTicksAndPressesAgainstTheModel) {
  constexpr const wchar_t* kLeft[] = {L" Start ", L" Pause ", L" Resume "};
  constexpr const wchar_t* kRight[] = {L" Stop ", L" Lapse ", L" Reset "};
  for (const unsigned seed : {1u, 2u, 3u}) {
    std::minstd_rand random(seed);
    StopwatchEngine watch;
    Model model;
    for (int step = 0; step < 10000; ++step) {
      const unsigned draw = random() % 200;
      if (draw < 5) {
        watch.PressLeft();
        model.Left();
      } else if (draw < 8) {
        watch.PressRight();
        model.Right();
      } else {
        watch.Tick();
        model.Tick();
      }
      ASSERT_EQ(watch.shown(), model.Shown()) << seed << ' ' << step;
      ASSERT_EQ(watch.running(), model.state == Model::kRunning);
      ASSERT_EQ(watch.lapse_held(), model.lapse && model.state != Model::kReset);
      ASSERT_EQ(watch.left_caption(), kLeft[model.state]);
      ASSERT_EQ(watch.right_caption(), kRight[model.state]);
    }
  }
}

}  // namespace
}  // namespace varnel
