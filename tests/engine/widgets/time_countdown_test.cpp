#include <gtest/gtest.h>

#include <random>

#include "base/number_text.h"
#include "tests/support/cases.h"
#include "tests/support/memory_settings.h"
#include "widgets/time/countdown_engine.h"

namespace varnel {
namespace {

using enum CountdownField;

std::wstring Display(const CountdownEngine& countdown) {
  return countdown.DisplayText(kHours) + L":" + countdown.DisplayText(kMinutes) + L":" +
         countdown.DisplayText(kSeconds);
}

std::wstring Captions(const CountdownEngine& countdown) {
  return std::wstring(countdown.start_caption()) + std::wstring(countdown.stop_caption());
}

void Set(CountdownEngine& countdown, std::wstring_view hours, std::wstring_view minutes,
         std::wstring_view seconds) {
  countdown.Edit(kHours, hours);
  countdown.Edit(kMinutes, minutes);
  countdown.Edit(kSeconds, seconds);
}

TEST(Countdown, FreshOneCountsTwoMinutes) {
  test::MemorySettings store;
  EXPECT_EQ(Display(CountdownEngine(store)), L"00:02:00");
  EXPECT_TRUE(store.values.empty());
  store.Write(countdown_settings::kHours, L"1");
  store.Write(countdown_settings::kMinutes, L"rubbish");
  store.Write(countdown_settings::kSeconds, L"99999999999999999999");
  EXPECT_EQ(Display(CountdownEngine(store)), L"01:00:999");
}

TEST(Countdown, EditsAreStoredAndShown) {
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"5", L"05"},  {L"", L"00"},    {L"abc", L"00"},  {L"7x", L"07"},
      {L"75", L"75"}, {L"-5", L"00"},  {L"123", L"123"}, {L"12345", L"999"},
      {L" 8", L"08"}, {L"010", L"10"}, {L"1.9", L"02"}};
  test::MemorySettings store;
  CountdownEngine countdown(store);
  for (const auto& [text, field] : cases) {
    countdown.Edit(kMinutes, text);
    EXPECT_EQ(countdown.DisplayText(kMinutes), field) << text;
    EXPECT_EQ(countdown.IntervalText(kMinutes), field);
    EXPECT_EQ(store.Read(L"frmCDNwg\\Details", L"Timer-Interval-mins", L""), field);
  }
  EXPECT_EQ(store.Read(L"frmCDNwg\\Details", L"Timer-Interval-hrs", L""), L"00");
  EXPECT_EQ(store.Read(L"frmCDNwg\\Details", L"Timer-Interval-secs", L""), L"00");
}

TEST(Countdown, ButtonsAreOffWhereTheyWouldDoNothing) {
  test::MemorySettings store;
  CountdownEngine countdown(store);
  EXPECT_TRUE(countdown.can_start() && !countdown.can_stop());
  EXPECT_EQ(countdown.remaining(), 120);
  Set(countdown, L"0", L"0", L"1");
  countdown.PressStart();
  countdown.Tick();
  EXPECT_TRUE(countdown.can_start() && countdown.can_stop());  // at zero, but counting
  EXPECT_EQ(countdown.remaining(), 0);
  Set(countdown, L"1", L"2", L"3");
  EXPECT_EQ(countdown.remaining(), 3723);
  countdown.PressStart();
  countdown.PressStop();
  Set(countdown, L"0", L"0", L"0");
  EXPECT_FALSE(countdown.can_start());
}

TEST(Countdown, BorrowsAcrossFields) {
  const struct {
    const wchar_t* fields[3];
    const wchar_t* next;
  } cases[] = {{{L"1", L"0", L"0"}, L"00:59:59"},   {{L"0", L"1", L"0"}, L"00:00:59"},
               {{L"2", L"30", L"0"}, L"02:29:59"},  {{L"1", L"0", L"1"}, L"01:00:00"},
               {{L"0", L"75", L"0"}, L"00:74:59"},  {{L"0", L"0", L"90"}, L"00:00:89"},
               {{L"120", L"0", L"0"}, L"119:59:59"}};
  test::MemorySettings store;
  CountdownEngine countdown(store);
  for (const auto& test : cases) {
    Set(countdown, test.fields[0], test.fields[1], test.fields[2]);
    countdown.PressStart();
    EXPECT_EQ(countdown.Tick(), CountdownTick::kChanged);
    EXPECT_EQ(Display(countdown), test.next);
    countdown.PressStop();
    countdown.PressStop();
  }
}

// The rules over again with the display as a number of seconds.
struct Model {
  enum State { kSet, kCounting, kPaused, kEnding } state = kSet;
  int interval[3] = {0, 2, 0};
  int left = 120;

  void Reset() { left = interval[0] * 3600 + interval[1] * 60 + interval[2]; }
  void Start() {
    if (state != kEnding && left > 0) state = state == kCounting ? kPaused : kCounting;
  }
  void Stop() {
    if (state == kCounting) {
      state = kPaused;
    } else if (state != kEnding) {
      state = kSet;
      Reset();
    }
  }
  CountdownTick Tick() {
    if (state != kCounting) return CountdownTick::kNothing;
    if (left-- > 0) return CountdownTick::kChanged;
    left = 0;
    state = kEnding;
    return CountdownTick::kEnded;
  }
};

int SecondsShown(const CountdownEngine& countdown) {
  const auto number = [&](CountdownField field) {
    return static_cast<int>(WholeNumber(countdown.DisplayText(field)).value_or(-1000000));
  };
  return number(kHours) * 3600 + number(kMinutes) * 60 + number(kSeconds);
}

TEST(Countdown, TenThousandTicksAndPressesAgainstTheModel) {
  constexpr const wchar_t* kCaptions[] = {L" Start  Stop ", L" Pause  Stop ", L" Resume  Reset ",
                                          L" Pause  Stop "};
  int ends = 0;
  for (const unsigned seed : {1u, 2u, 3u}) {
    std::minstd_rand random(seed);
    test::MemorySettings store;
    CountdownEngine countdown(store);
    Model model;
    for (int step = 0; step < 10000; ++step) {
      const unsigned draw = random() % 400;
      if (draw < 6) {
        countdown.PressStart();
        model.Start();
      } else if (draw < 8) {
        countdown.PressStop();
        model.Stop();
      } else if (draw < 11) {
        const bool large = draw == 10 || random() % 4 == 0;
        const int value = large ? static_cast<int>(random() % 80) : 0;
        countdown.Edit(static_cast<CountdownField>(draw - 8), NumberText(value));
        model.interval[draw - 8] = value;
        model.Reset();
      } else if (draw < 20 && model.state == Model::kEnding) {
        countdown.AcknowledgeEnd();
        model.state = Model::kSet;
        model.Reset();
        ++ends;
      } else {
        ASSERT_EQ(countdown.Tick(), model.Tick());
      }
      ASSERT_EQ(SecondsShown(countdown), model.left) << seed << ' ' << step;
      ASSERT_EQ(countdown.counting(), model.state == Model::kCounting);
      ASSERT_EQ(Captions(countdown), kCaptions[model.state]);
    }
  }
  EXPECT_GT(ends, 0);
}

}  // namespace
}  // namespace varnel
