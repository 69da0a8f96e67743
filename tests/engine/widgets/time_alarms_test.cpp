#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "tests/support/cases.h"
#include "tests/support/memory_settings.h"
#include "widgets/time/alarms.h"

namespace varnel {
namespace {

using Rings = std::vector<AlarmRing>;

LocalTime At(int hour, int minute, int second) {
  return {2010, 9, 7, 2, hour, minute, second};
}

TEST(Alarms, TimeTextsInCommonSpellings) {
  const test::Cases<const wchar_t*, const wchar_t*> cases = {
      {L"07:30:00", L"07:30:00"}, {L"7:30", L"07:30:00"},       {L" 7:5:9 ", L"07:05:09"},
      {L"7:30 pm", L"19:30:00"},  {L"7:30PM", L"19:30:00"},     {L"12:00 am", L"00:00:00"},
      {L"12:15 pm", L"12:15:00"}, {L"12:00:01 a", L"00:00:01"}, {L"7 pm", L"19:00:00"},
      {L"19:30 pm", L"19:30:00"}, {L"7.30", L"07:30:00"},       {L"23:59:59", L"23:59:59"},
      {L"0:0", L"00:00:00"},      {L"8.05.10 p", L"20:05:10"}};
  for (const auto& [text, time] : cases) EXPECT_EQ(AlarmTimeText(text), time) << text;
}

TEST(Alarms, UnreadOnesAreKeptTheNewestFirst) {
  UnreadAlarms unread;
  const AlarmRing tea{L"tea", L"07:30:00"};
  const AlarmRing call{L"call", L"07:31:00"};
  for (const AlarmRing& ring : {tea, call, tea, AlarmRing{L"", L"08:00:00"}, call})
    unread.Add(ring);
  EXPECT_EQ(unread.newest(), (AlarmRing{L"", L"08:00:00"}));
  EXPECT_EQ(unread.EarlierText(), L"07:31:00  call\r\n07:30:00  tea");
  unread.Clear();
  unread.Add(tea);
  EXPECT_EQ(unread.EarlierText(), L"");
}

TEST(Alarms, OtherTextsStayAsTheyAre) {
  for (const wchar_t* text :
       {L"", L"7", L"24:00", L"12:60", L"12:00:60", L"13:00 am", L"007:30", L"7:300", L"7:30:",
        L":30", L"7::30", L"7:30:00:00", L"7:30.00", L"-7:30", L"7:30 xm", L"7:30 pm pm", L"noon",
        L"\uFF17:\uFF13\uFF10"}) {
    EXPECT_EQ(AlarmTimeText(text), text);
    EXPECT_FALSE(IsAlarmTime(text)) << text;
  }
  EXPECT_TRUE(IsAlarmTime(L" 7:30 pm "));
  EXPECT_EQ(AlarmTimeText(L"  "), L"");
  EXPECT_EQ(AlarmTimeText(L"7:30\t"), L"7:30\t");
  EXPECT_EQ(AlarmTimeText(std::wstring(5000, L'1')).size(), 5000u);
}

TEST(Alarms, RingsInItsSecondInOrder) {
  AlarmPresets presets;
  presets[0] = {true, L"7:30", L"tea"};
  presets[1] = {false, L"07:30:00", L"switched off"};
  presets[3] = {true, L"at 07:30:00 or 08:00:00", L"holds two times"};
  presets[5] = {true, L"7:30 am", L""};
  const Rings expected{
      {L"tea", L"07:30:00"}, {L"holds two times", L"at 07:30:00 or 08:00:00"}, {L"", L"07:30:00"}};
  EXPECT_EQ(AlarmRefresh(presets, At(7, 30, 0)), expected);
  EXPECT_EQ(AlarmRefresh(presets, At(7, 30, 0)), expected);  // on every tick of the second
  EXPECT_EQ(AlarmRefresh(presets, At(8, 0, 0)), Rings{expected[1]});
  EXPECT_EQ(AlarmRefresh(presets, At(7, 30, 1)), Rings{});
  EXPECT_EQ(AlarmRefresh(presets, At(19, 30, 0)), Rings{});
}

TEST(Alarms, EmptyTimeEndsTheCheck) {
  AlarmPresets presets;
  for (AlarmPreset& preset : presets) preset = {true, L"06:00:00", L"up"};
  presets[2].time.clear();
  EXPECT_EQ(AlarmRefresh(presets, At(6, 0, 0)).size(), 2u);
  presets[2].use = false;  // an unused preset hides nothing
  EXPECT_EQ(AlarmRefresh(presets, At(6, 0, 0)).size(), 5u);
  presets[0].time = L"never";
  EXPECT_EQ(AlarmRefresh(presets, At(6, 0, 0)).size(), 4u);
}

TEST(Alarms, TheNextOneIsTodaysOrElseTomorrows) {
  AlarmPresets presets;
  EXPECT_EQ(NextAlarm(presets, At(6, 0, 0)), std::nullopt);
  presets[0] = {true, L"7:30 pm", L"tea"};
  presets[1] = {true, L"at 06:15:30 or 08:00:00", L"two"};
  presets[2] = {false, L"06:01:00", L"switched off"};
  presets[3] = {true, L"some time", L"never"};
  presets[4] = {true, L"08:00", L"later in the list"};
  presets[5] = {true, L"6:15", L"first"};
  const test::Cases<LocalTime, AlarmRing> cases = {{At(6, 0, 0), {L"first", L"06:15:00"}},
                                                   {At(6, 15, 0), {L"two", L"06:15:30"}},
                                                   {At(6, 15, 30), {L"two", L"08:00:00"}},
                                                   {At(8, 0, 0), {L"tea", L"19:30:00"}},
                                                   {At(19, 30, 0), {L"first", L"06:15:00"}}};
  for (const auto& [time, next] : cases) EXPECT_EQ(NextAlarm(presets, time), next);
  presets[1].time.clear();  // hides what follows
  EXPECT_EQ(NextAlarm(presets, At(19, 30, 0)), (AlarmRing{L"tea", L"19:30:00"}));
}

TEST(Alarms, PresetsSurviveTheStore) {
  test::MemorySettings store;
  EXPECT_EQ(LoadAlarmPresets(store), AlarmPresets{});
  AlarmPresets saved;
  saved[0] = {true, L"7:30 pm", L"tea"};
  saved[2] = {true, L"", L"a time saved empty is not midnight"};
  saved[5] = {false, L"23:45:00", L""};
  SaveAlarmPresets(store, saved);
  EXPECT_EQ(LoadAlarmPresets(store), saved);
  EXPECT_EQ(store.Read(L"frmCLKas\\Details", L"Alarm Preset Use_0", L""), L"1");
  EXPECT_EQ(store.Read(L"frmCLKas\\Details", L"Alarm Preset Time_5", L""), L"23:45:00");
  EXPECT_EQ(store.Read(L"frmCLKas\\Details", L"Alarm Preset Message_0", L""), L"tea");
  store.Write(L"frmCLKas\\Details", L"Alarm Preset Use_0", L"True");
  EXPECT_FALSE(LoadAlarmPresets(store)[0].use);
}

TEST(Alarms, SoundSurvivesTheStore) {
  test::MemorySettings store;
  EXPECT_EQ(LoadAlarmSound(store), AlarmSound{});
  for (const AlarmSound& saved : {AlarmSound{false, L"C:\\a b.mp3"}, AlarmSound{true, L"x.wav"}}) {
    SaveAlarmSound(store, saved);
    EXPECT_EQ(LoadAlarmSound(store), saved);
  }
  store.Write(alarm_settings::kType, L"neither");
  EXPECT_TRUE(LoadAlarmSound(store).bell);
}

TEST(Alarms, QuarterHoursAreTheWholeDay) {
  const std::vector<std::wstring> times = QuarterHours();
  ASSERT_EQ(times.size(), 96u);
  EXPECT_EQ(times[0], L"00:00:00");
  EXPECT_EQ(times[39], L"09:45:00");
  EXPECT_EQ(times[95], L"23:45:00");
  for (const std::wstring& time : times) EXPECT_EQ(AlarmTimeText(time), time);
}

TEST(Alarms, EachRingsInItsSecondOfTheDayAlone) {
  AlarmPresets presets;
  presets[0] = {true, L"0:00", L"day"};
  presets[2] = {true, L"12:59:59 pm", L"noon"};
  presets[4] = {false, L"noon", L"never"};
  presets[5] = {true, L"23:59:59", L"night"};
  std::map<int, std::wstring> rung;
  for (int second = 0; second < 86400; ++second) {
    for (const AlarmRing& ring :
         AlarmRefresh(presets, At(second / 3600, second / 60 % 60, second % 60))) {
      rung[second] += ring.message;
    }
  }
  EXPECT_EQ(rung, (std::map<int, std::wstring>{{0, L"day"}, {46799, L"noon"}, {86399, L"night"}}));
}

}  // namespace
}  // namespace varnel
