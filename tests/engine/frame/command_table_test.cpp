#include <gmock/gmock.h>

#include <map>
#include <set>

#include "core/manager_commands.h"
#include "frame/command_id.h"
#include "tests/support/cases.h"
#include "tests/support/fake_program.h"
#include "widgets/boards/calendar_commands.h"
#include "widgets/boards/whiteboard_commands.h"
#include "widgets/calculator/calculator_commands.h"
#include "widgets/calculator/calculator_keys.h"
#include "widgets/notes/notes_commands.h"
#include "widgets/time/clock_commands.h"
#include "widgets/weather/weather_commands.h"

namespace varnel {
namespace {

// --- the tables of all widgets

const std::vector<std::vector<CommandTable::Rows>> kWidgets = {
    {kManagerCommands},   {kClockCommands},
    {kStopwatchCommands}, {kCalculatorCommands},
    {kWeatherCommands},   {kWhiteboardCommands},
    {kCalendarCommands},  {kNotesCommands, kNoteTextCommands}};

// The faces of rows and of the elements of their arrays, with the commands' names.
std::vector<std::pair<std::wstring, const CommandFace*>> FacesOf(CommandTable::Rows rows) {
  std::vector<std::pair<std::wstring, const CommandFace*>> faces;
  for (const CommandRow& row : rows) {
    if (!row.name.empty()) faces.emplace_back(row.name, &row.face);
    for (std::size_t i = 0; i < row.elements.size(); ++i) {
      faces.emplace_back(ElementName(row.array, i), &row.elements[i]);
    }
  }
  return faces;
}

std::string Narrow(std::wstring_view text) {
  return {text.begin(), text.end()};
}

TEST(CommandTables, NumbersDifferAndNoKeyOrToolStandsForTwoCommandsOfAWidget) {
  std::map<std::uint16_t, std::wstring> names;
  for (const auto& menus : kWidgets) {
    std::set<std::tuple<int, int, KeyPlace>> keys;
    std::set<int> tools;
    for (const CommandTable::Rows rows : menus) {
      for (const auto& [name, face] : FacesOf(rows)) {
        EXPECT_TRUE(names.emplace(CommandId(name), name).second) << Narrow(name);
        const int tool = face->tool.number;
        EXPECT_TRUE(tool < 0 || tools.insert(tool).second) << Narrow(name);
        for (const CommandKey& key : face->keys) {
          EXPECT_TRUE(key.code == 0 || keys.emplace(key.code, key.held, key.place).second)
              << Narrow(name) << " shares " << Narrow(KeyText(key));
        }
      }
    }
  }
}

void CheckMnemonics(const std::vector<std::wstring_view>& captions) {
  std::map<wchar_t, std::wstring_view> used;
  for (const std::wstring_view caption : captions) {
    const std::size_t mark = caption.find(L'&');
    if (mark == caption.npos) continue;
    EXPECT_TRUE(used.emplace(caption.at(mark + 1) | 0x20, caption).second) << Narrow(caption);
  }
  for (const std::wstring_view caption : captions) {
    if (caption.find(L'&') != caption.npos) continue;
    for (const wchar_t unit : caption) {
      const bool letter = (unit | 0x20) >= L'a' && (unit | 0x20) <= L'z';
      EXPECT_TRUE(!letter || used.contains(unit | 0x20)) << Narrow(caption) << " could have one";
    }
  }
}

TEST(CommandTables, NoLetterOfAMenuStandsForTwoItems) {
  for (const auto& menus : kWidgets) {
    for (const CommandTable::Rows rows : menus) {
      std::vector<std::wstring_view> captions;
      for (const CommandRow& row : rows) {
        if (!row.face.caption.empty()) captions.push_back(row.face.caption);
        std::vector<std::wstring_view> submenu;
        for (const CommandFace& face : row.elements) submenu.push_back(face.caption);
        CheckMnemonics(submenu);
      }
      CheckMnemonics(captions);
    }
  }
}

// --- keys

TEST(CommandKeys, AreToldInWords) {
  const test::Cases<CommandKey, const wchar_t*> cases = {{CommandKey{}, L""},
                                                         {Ctrl('S'), L"Ctrl+S"},
                                                         {CtrlShift('V'), L"Ctrl+Shift+V"},
                                                         {CtrlAlt('1'), L"Ctrl+Alt+1"},
                                                         {Plain(FunctionKey(12)), L"F12"},
                                                         {Ctrl(kKeyPageDown), L"Ctrl+Page Down"},
                                                         {Ctrl(kKeyDelete), L"Ctrl+Del"},
                                                         {Typed('['), L"["}};
  for (const auto& [key, text] : cases) EXPECT_EQ(KeyText(key), text);
}

TEST(CommandKeys, AreKeptByWhoNeedsThem) {
  // Who gets the key: panel, list, text, field, box of a new name; "c" for the command.
  const test::Cases<CommandKey, std::string> cases = {
      {Ctrl('S'), "ccccr"},
      {Plain(FunctionKey(5)), "ccccr"},
      {Plain(kKeyEscape), "ccccr"},
      {Shift(FunctionKey(3)), "ccccr"},
      {Ctrl('C'), "cckkr"},
      {Ctrl('A'), "cckkr"},
      {CtrlShift('Z'), "cckkr"},
      {Plain(kKeyDelete), "cckkr"},
      {Ctrl(kKeyLeft), "cckkr"},
      {CtrlShift(kKeyRight), "cckkr"},
      {Ctrl(kKeyBackspace), "cckkr"},
      {Plain('5'), "cckkr"},
      {Plain(kKeyEnter), "cckkr"},
      {Typed('E'), "cckkr"},
      {Plain(kKeyDelete).In(KeyPlace::kList), "-c---"},
      {Ctrl('B').In(KeyPlace::kText), "--c--"},
      {Ctrl('X').In(KeyPlace::kControl), "-----"}};
  constexpr Focus kFocuses[] = {Focus::kPanel, Focus::kList, Focus::kText, Focus::kField,
                                Focus::kRename};
  for (const auto& [key, who] : cases) {
    for (std::size_t i = 0; i < std::size(kFocuses); ++i) {
      EXPECT_EQ(Reaches(key, kFocuses[i]), who[i] == 'c') << Narrow(KeyText(key)) << ' ' << i;
    }
  }
}

TEST(CommandKeys, OfTheCalculatorPressWhatStandsOnThem) {
  const test::Cases<CommandKey, std::optional<CalculatorKey>> cases = {
      {Plain('0'), CalculatorKey::kDigit0},
      {Plain('9'), CalculatorKey::kDigit9},
      {Shift('8'), CalculatorKey::kMultiply},
      {Shift('9'), std::nullopt},
      {Plain(kKeyPlus), CalculatorKey::kPoint},
      {Shift(kKeyPlus), CalculatorKey::kAdd},
      {Ctrl(kKeyDelete), std::nullopt},
      {Plain(kKeyBackspace), std::nullopt},
      {Typed('8'), std::nullopt}};
  for (const auto& [key, pressed] : cases) EXPECT_EQ(KeyFor(key), pressed) << key.code;
}

// --- a table

constexpr CommandFace kSizes[] = {{L"&One", {Typed('1')}}, {L"&Two", {Typed('2')}}};
constexpr CommandRow kRows[] = {
    {L"mnuTESTOPEN", {L"&Open", {Ctrl('O'), Plain(FunctionKey(2))}, {3, L"Open", L'o'}}},
    {L"mnuTESTRENAME", {L"&Rename", {Plain(FunctionKey(2)).In(KeyPlace::kList)}}},
    kMenuLine,
    {L"mnuTESTSIZES", {L"&Sizes"}, {}, L"mnuTESTSIZE", kSizes},
    {L"mnuTESTLATER", {L"&Later"}},
    {L"mnuTESTHIDDEN", {{}, {Ctrl('H')}}},
    {L"mnuTESTPROPS", {L"&Properties..."}, L"frmTESTpr"}};
constexpr CommandRow kOther[] = {
    {L"mnuTESTOTHER", {L"&Other", {Ctrl('X').In(KeyPlace::kControl)}}}};

class ACommandTable : public ::testing::Test {
 protected:
  ACommandTable() {
    table_.Bind({{L"mnuTESTOPEN", [this] { Note(L"open"); }, [this] { return usable_; }},
                 {L"mnuTESTRENAME", [this] { Note(L"rename"); }},
                 {L"mnuTESTHIDDEN", [this] { Note(L"hidden"); }},
                 {L"mnuTESTOTHER", [this] { Note(L"other"); }}});
    table_.BindArray(
        L"mnuTESTSIZE", 2, [this](int size) { Note(size == 0 ? L"one" : L"two"); },
        [](int size) { return size == 1; });
  }

  void Note(const wchar_t* what) { program_.calls.push_back(what); }
  bool Press(const CommandKey& key, Focus focus) { return table_.Run(table_.OfKey(key, focus)); }
  std::vector<std::wstring> Calls() { return std::exchange(program_.calls, {}); }

  test::FakeProgram program_;
  bool usable_ = true;
  CommandTable table_{program_, {kRows, kOther}};
};

TEST_F(ACommandTable, RunsByKeyWhatTheFocusAllows) {
  for (const Focus focus : {Focus::kPanel, Focus::kList, Focus::kField}) {
    EXPECT_TRUE(Press(Plain(FunctionKey(2)), focus));
  }
  EXPECT_FALSE(Press(Ctrl('X'), Focus::kText)) << "left to the text";
  EXPECT_FALSE(Press(CtrlShift('O'), Focus::kPanel)) << "with more held";
  EXPECT_TRUE(Press(Typed('2'), Focus::kPanel));
  EXPECT_THAT(Calls(), ::testing::ElementsAre(L"open", L"rename", L"open", L"two"));
  usable_ = false;
  EXPECT_TRUE(Press(Ctrl('O'), Focus::kPanel)) << "nobody else acts on its key";
  EXPECT_TRUE(Calls().empty());
}

TEST_F(ACommandTable, RunsFromMenuAndToolAndOpensDialogs) {
  EXPECT_TRUE(table_.Run(CommandId(L"mnuTESTPROPS")));
  EXPECT_TRUE(table_.Run(CommandId(L"mnuTESTSIZE(0)")));
  EXPECT_TRUE(table_.Run(CommandId(L"mnuTESTOTHER")));
  EXPECT_TRUE(table_.Run(table_.OfTool(3)));
  EXPECT_THAT(Calls(), ::testing::ElementsAre(L"open frmTESTpr", L"one", L"other", L"open"));
  EXPECT_FALSE(table_.Run(CommandId(L"mnuTESTHIDDEN"))) << "stands in no menu";
  EXPECT_FALSE(table_.Run(0));
  EXPECT_FALSE(table_.Run(table_.OfTool(-1))) << "most commands have no tool";
  EXPECT_THROW(table_.Bind({{L"mnuTESTOPEM", [] {}}}), std::invalid_argument);
}

TEST_F(ACommandTable, MakesMenusOfTheMoment) {
  usable_ = false;
  std::wstring menu;
  const std::function<void(const std::vector<MenuItem>&)> write =
      [&](const std::vector<MenuItem>& items) {
        for (const MenuItem& item : items) {
          menu += item.caption + L' ' + item.key;
          menu += item.enabled ? L"" : L"-";
          menu += item.checked ? L"*;" : L";";
          if (!item.children.empty()) write(item.children);
        }
      };
  write(table_.Menu());
  EXPECT_EQ(menu, L"&Open Ctrl+O-;&Rename ; ;&Sizes ;&One 1;&Two 2*;&Later -;&Properties... ;")
      << "a key of the list alone is not told";
  menu.clear();
  write(table_.Menu(1));
  EXPECT_EQ(menu, L"&Other Ctrl+X;");
}

}  // namespace
}  // namespace varnel
