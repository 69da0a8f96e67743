#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "base/number_text.h"
#include "base/setting_lists.h"
#include "core/core_settings.h"
#include "core/settings_store.h"
#include "core/start_options.h"
#include "tests/support/cases.h"
#include "tests/support/memory_registry.h"

namespace varnel {
namespace {

class Store : public testing::Test {
 protected:
  void Put(std::wstring data, bool is_text = true) {
    registry_.values[{Hive::kCurrentUser, L"SOFTWARE\\Test\\s\\Details", L"v"}] = {is_text, data};
  }
  std::wstring Get() const { return store_.Read(L"s\\Details", L"v", L" default "); }
  std::wstring RunEntry(Hive hive) const {
    const auto value = registry_.Query(hive, std::wstring(kRunKey), L"Widget Varnel");
    return value ? value->data : L"(none)";
  }

  test::MemoryRegistry registry_;
  SettingsStore store_{registry_, RegistryRoot(L"Test")};
};

TEST_F(Store, ReadsTextsWithAndWithoutTerminators) {
  const std::wstring longest(254, L'a');
  const test::Cases<std::wstring, std::wstring> cases = {
      {L"abc", L"abc"},
      {std::wstring(L"abc\0", 4), L"abc"},
      {std::wstring(L" abc \0\0", 7), L"abc"},
      {std::wstring(L"a\0b\0", 4), std::wstring(L"a\0b", 3)},
      {longest, longest},
      {longest + std::wstring(2, L'\0'), longest},
      {longest + L"a", L"default"},
      {longest + L" ", L"default"},  // the length counts as stored, before trimming
      {L"", L"default"},
      {L"    ", L"default"},
      {std::wstring(3, L'\0'), L"default"},
  };
  EXPECT_EQ(Get(), L"default");
  for (const auto& [stored, read] : cases) {
    Put(stored);
    EXPECT_EQ(Get(), read) << stored;
  }
  Put(L"12", false);
  EXPECT_EQ(Get(), L"default");
}

TEST_F(Store, WritesExactlyTheTextAndReadsItBack) {
  store_.Write(L"s\\Details", L"v", L" 1.5 ");
  EXPECT_EQ(registry_.values.begin()->second.data, L" 1.5 ");
  EXPECT_EQ(Get(), L"1.5");
  registry_.refused = {Hive::kCurrentUser};
  store_.Write(L"s\\Details", L"v", L"2");
  EXPECT_EQ(Get(), L"1.5");
}

TEST_F(Store, TakesTheHiveAsDecimalText) {
  for (const wchar_t* unknown :
       {L"", L"1", L"-2147483648", L"2147483649", L"HKCU", L"-2147483647x"}) {
    store_.SetKeyValue(unknown, L"a", L"b", L"c");
    EXPECT_TRUE(registry_.values.empty()) << unknown;
  }
  store_.SetKeyValue(L"-2147483647", L"a\\b", L"user", L"1");
  store_.SetKeyValue(L" -2147483646 ", L"a\\b", L"machine", L"2");
  EXPECT_EQ(store_.GetKeyValue(Hive::kCurrentUser, L"a\\b", L"user", L""), L"1");
  EXPECT_EQ(store_.GetKeyValue(Hive::kLocalMachine, L"a\\b", L"machine", L""), L"2");
  EXPECT_EQ(registry_.values.size(), 2u);
}

TEST_F(Store, RunAtLogonFallsBackToTheUsersOwnList) {
  const std::wstring command = RunAtLogonCommand(L"C:\\Tools", L"WidgetVarnel", {});
  EXPECT_EQ(command, L"C:\\Tools\\WidgetVarnel.exe");
  EXPECT_EQ(RunAtLogonCommand(L"C:\\", L"WidgetVarnel", {}), L"C:\\WidgetVarnel.exe");
  EXPECT_EQ(RunValueName({}), L"Widget Varnel");
  EXPECT_EQ(RunValueName({.settings_title = L"widget varnel", .program_folder = L""}),
            L"Widget Varnel");
  const CommandLine own{.settings_title = L"Second one", .program_folder = L"D:\\My data\\"};
  EXPECT_EQ(RunValueName(own), L"Widget Varnel (Second one)");
  EXPECT_EQ(RunAtLogonCommand(L"C:\\To ols", L"Varnel", own),
            L"\"C:\\To ols\\Varnel.exe\" /settings \"Second one\" /data \"D:\\My data\\\\\"");

  WriteRunAtLogon(store_, kApplicationTitle, command);  // on unless the user said otherwise
  EXPECT_EQ(RunEntry(Hive::kLocalMachine), command);
  EXPECT_EQ(RunEntry(Hive::kCurrentUser), L"(none)");

  registry_.refused = {Hive::kLocalMachine};
  WriteRunAtLogon(store_, kApplicationTitle, command);
  EXPECT_EQ(RunEntry(Hive::kCurrentUser), command);

  store_.Write(kProgramLaunch, L"True");  // a check box is "1" and nothing else
  WriteRunAtLogon(store_, kApplicationTitle, command);
  EXPECT_EQ(RunEntry(Hive::kCurrentUser), L"");

  store_.Write(kProgramLaunch, L"1");
  WriteRunAtLogon(store_, kApplicationTitle, command);
  registry_.refused.clear();
  store_.Write(kProgramLaunch, L"0");
  WriteRunAtLogon(store_, kApplicationTitle, command);
  EXPECT_EQ(RunEntry(Hive::kLocalMachine), L"");
  EXPECT_EQ(RunEntry(Hive::kCurrentUser), L"");  // an older entry would still start the program

  registry_.refused = {Hive::kLocalMachine, Hive::kCurrentUser};
  WriteRunAtLogon(store_, kApplicationTitle, command);
  EXPECT_EQ(store_.Read(kProgramLaunch), L"0");
}

TEST_F(Store, LongTextsGoOnInFurtherValues) {
  const auto kept = [this](const std::wstring& text) {
    WriteLongText(store_, L"s\\Details", L"v", text);
    return ReadLongText(store_, L"s\\Details", L"v");
  };
  std::minstd_rand random(4);
  for (int round = 0; round < 300; ++round) {
    std::wstring text(1, L'a');
    const std::size_t length = random() % 2000;
    while (text.size() < length) text.push_back(L" |x\u00E9"[random() % (round % 4 + 1)]);
    text.push_back(L'z');
    ASSERT_EQ(kept(text), text) << round;
  }
  EXPECT_EQ(kept(std::wstring(254, L'b')), std::wstring(254, L'b'));
  EXPECT_EQ(kept(L" short "), L"short");
  EXPECT_EQ(kept(L""), L"");
  EXPECT_EQ(kept(std::wstring(40'000, L'c')), std::wstring(30'000, L'c'));
  EXPECT_EQ(Get(), std::wstring(254, L'c')) << "the first part stands under the name itself";
}

class FakeList : public ListControl {
 public:
  int ItemCount() const override { return static_cast<int>(items.size()); }
  std::wstring ItemText(int index) const override { return items.at(index); }
  void RemoveItem(int index) override { items.erase(items.begin() + index); }
  void AppendItem(std::wstring_view new_text) override { items.emplace_back(new_text); }
  void SetText(std::wstring_view new_text) override { text = new_text; }

  std::vector<std::wstring> items;
  std::wstring text;
};

using Items = std::vector<std::wstring>;

TEST_F(Store, ListsComeBackReversedAndWithoutDuplicates) {
  const test::Cases<Items, Items> cases = {{{L"a", L"b", L"c"}, {L"c", L"b", L"a"}},
                                           {{L"a", L"b", L"a", L"c"}, {L"c", L"b", L"a"}},
                                           {{L" a ", L"a", L"A"}, {L"A", L"a"}},
                                           {{L"a", L"  ", L"b"}, {L"b", L"a"}},
                                           {{}, {}}};
  for (const auto& [items, expected] : cases) {
    FakeList saved;
    saved.items = items;
    SaveList(saved, L"history", store_);
    FakeList loaded;
    LoadList(loaded, L"history", store_);
    EXPECT_EQ(loaded.items, expected);
    EXPECT_EQ(loaded.text, expected.empty() ? L"" : expected.back());
  }
  // The empty list came last and hides the items before it without removing them.
  EXPECT_EQ(store_.Read(L"history\\Items Total", L"List Total", L"?"), L"0");
  EXPECT_EQ(store_.Read(L"history\\Details", L"List 3", L"?"), L"b");
}

TEST_F(Store, AddingATextMovesItToTheEnd) {
  FakeList list;
  list.items = {L"x", L"a", L"y", L"a"};
  AddListItem(list, L"");
  EXPECT_EQ(list.items.size(), 4u);
  AddListItem(list, L"a");  // only the first one goes
  EXPECT_EQ(list.items, (Items{L"x", L"y", L"a", L"a"}));
  AddListItem(list, L"X");
  EXPECT_EQ(list.items.back(), L"X");
  EXPECT_EQ(list.items.size(), 5u);
}

}  // namespace
}  // namespace varnel
